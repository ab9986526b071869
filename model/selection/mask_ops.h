#pragma once

#include "model/color/color.h"
#include "model/core/rectangle.h"

class Distance_Grid;
class Tile;

// The selection mask is a tile of the tile's size in which white pixels (blue,
// green and red all 255) are selected and black ones are not. These are the
// mask's own operations and what the selection does to the tile under it.
namespace mask_ops {

inline constexpr Color selected{255, 255, 255};
inline constexpr Color unselected{0, 0, 0};

bool is_selected(const Tile& mask, int x, int y);
bool any_selected(const Tile& mask);
// The smallest rectangle holding every selected pixel; empty when none is.
Rectangle bounds(const Tile& mask);

// A shape of the shape tools (rectangle from corner to corner, ellipse from
// centre and radii) added to the mask or taken from it. Filled, always.
void apply_rectangle(Tile& mask, int ax, int ay, int bx, int by, bool add);
void apply_ellipse(Tile& mask, int cx, int cy, int rx, int ry, bool add);
// The 4-connected area of the colour at (x, y) in the tile, by the flood
// fill's rules (alpha not compared), added to the mask or taken from it.
void apply_wand(Tile& mask, const Tile& tile, Distance_Grid& grid, int x, int y, bool add);

void invert(Tile& mask);
void clear(Tile& mask);

// Every selected pixel of the tile set to the colour (alpha included).
void fill_selected(Tile& tile, const Tile& mask, Color c);

}  // namespace mask_ops
