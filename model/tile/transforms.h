#pragma once

class Tile;

// Whole-tile transforms. Each writes the tile from a copy of itself; the
// caller updates the texture afterwards.

// 90 degrees clockwise; square tiles only, others are left as they are.
bool rotate(Tile& tile);
// 90 degrees counter-clockwise; square tiles only.
bool rotate_back(Tile& tile);
void mirror(Tile& tile);
void flip(Tile& tile);
// The tile shifted with wrap-around: the pixel at (x, y) comes from
// (x + ox, y + oy). Wraps correctly for offsets from -size to 1; larger
// positive offsets take column (row) 0 for everything past the edge.
void offset_copy(Tile& tile, int ox, int oy);
