#pragma once

#include "model/color/color.h"

// The pictures of the HSV selector, mixed in RGB: a hue strip of six bands
// and a square running from white (top left) and the hue colour (top right)
// down to black (bottom row).
namespace hue_square {
inline constexpr int side = 128;
inline constexpr int bands = 6;
inline constexpr int band_width = 9;
inline constexpr int strip_width = bands * band_width;

// n entries from a to b in single precision, truncated; alpha 255.
void gradient(Color a, Color b, Color* out, int n);
// strip_width x side pixels, row-major.
void build_strip(Color* pixels);
// Both edges get side entries and the square side x side pixels, row-major.
void build_square(Color hue, Color* left_edge, Color* right_edge, Color* square);
}  // namespace hue_square
