#pragma once

#include <cstdint>

// Diagnostic readouts written straight onto the window in the regular font,
// with nothing cleared first: trailing blanks wipe out longer earlier ones.

// "x, y  " at (0, 20).
void write_pair_readout(int32_t x, int32_t y);
// "name=value" at (0, 550).
void write_value_readout(const char* name, int32_t value);
// "name=true" or "name=false" at (0, 550).
void write_flag_readout(const char* name, bool flag);
// "Pos: x,y  " and "Tile: n  " on the line below, from (x, y).
void write_position_readout(int x, int y, int32_t pixel_x, int32_t pixel_y, int32_t tile);
// "Location x, y. " at the writer's current cursor.
void write_location_readout(int32_t x, int32_t y);
