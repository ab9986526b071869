#pragma once

#include <memory>
#include <string>

#include "model/tile/tile_store.h"

struct Command_Line;

// The batch conversions, without a window: 0 when every file asked for was
// written, 1 after one line on standard error otherwise. Every file is written
// whole through the safe writer or not at all.
int run_batch(const Command_Line& line);

// A sheet (PNG or BMP) cut into tiles, as the editor and the batch open it.
// None after a refusal, whose reason, naming the sheet's file, is put in why;
// tiles past the 256th are counted in left_out.
std::unique_ptr<Tile_Store> tiles_of_sheet(const std::string& path, int tile_width, int tile_height,
                                           std::string& why, int& left_out);
