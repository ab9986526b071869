#pragma once

#include <cstdint>

#include "platform/ui_colors.h"

// The checkerboard shown behind transparent pixels in the tile views, light
// and dark grey, and a pixel laid over it.
inline constexpr Color checker_light = ui_colors[ui_grey_169];
inline constexpr Color checker_dark = ui_colors[ui_grey_101];

// The pixel blended over the checkerboard by its alpha; the result is opaque.
inline Color on_checkerboard(Color pixel, bool light) {
    const Color below = light ? checker_light : checker_dark;
    const int a = pixel.alpha;
    auto mix = [a](int d, int s) { return uint8_t((s * a + d * (255 - a)) / 255); };
    return Color(mix(below.red, pixel.red), mix(below.green, pixel.green), mix(below.blue, pixel.blue), 255);
}
