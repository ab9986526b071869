#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "model/tile/tile_store.h"

// The ".wst" tileset file: an 11-byte header ("WST", 0x0A, 0x00, tile width
// and height as one byte each, tile count as a little-endian u32) followed by
// every tile's pixels, row by row, each pixel as alpha, blue, green, red.
class Tileset_File {
public:
    static constexpr uint32_t header_size = 11;
    // A file may hold more tiles than a tileset can take (they load, but no
    // more can be added), up to this many; beyond, it is refused.
    static constexpr uint32_t maximum_tiles_read = 4096;
    static constexpr const char* load_error_text =
        "Error occurred in tileset loading. This file may not be in Mosswick format.";
    static constexpr const char* save_error_text =
        "Unable to create a save file in the destination device.\rCheck out write access "
        "properties.";

    // Returns the bytes written, or -1 when the file could not be written; a
    // failed write leaves any previous file at the path as it was. A current
    // tile given is written in place of the store's current tile (the tile as
    // the user sees it, with a floating image put down).
    static int32_t write(const Tile_Store& store, const std::string& path, const Tile* current = nullptr);

    // The tiles of the file, or none when it is no regular file, cannot be
    // opened, does not start with "WST", has a zero tile width, height or
    // count, or more than maximum_tiles_read tiles; the caller shows
    // load_error_text then. A header or tile record shorter than expected ends
    // the program with the block error naming the path.
    static std::unique_ptr<Tile_Store> read(const std::string& path);
};
