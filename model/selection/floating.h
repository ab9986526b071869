#pragma once

#include <memory>

class Tile;

// A floating image laid onto the tile with wrap-around: the part that passes
// an edge comes back on the opposite side, so that a tile stays seamless
// while something is moved across its border. Fully transparent pixels leave
// the tile as it is; every other pixel is written whole, alpha included.
namespace floating {

// The position brought into 0 .. size - 1, for any whole number.
int wrap(int position, int size);

void stamp_wrapped(Tile& tile, const Tile& image, int x, int y);
// The whole tile moved by (dx, dy), what leaves one edge coming back at the other.
void scroll_wrapped(Tile& tile, int dx, int dy);

// Lifts the selected pixels out of the tile: they become an image of the
// selection's bounding box (the rest transparent) at the box's corner, and
// the tile is left transparent where they were. None when nothing is selected.
std::unique_ptr<Tile> lift(Tile& tile, const Tile& mask, int& x_out, int& y_out);

}  // namespace floating
