#pragma once

#include <cstddef>
#include <vector>

#include "model/color/color.h"

// A picture in memory, row by row: a sheet of tiles read or to be written, the
// image of a map. Files of pictures keep every channel as it is, alpha too.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<Color> pixels;

    Picture() = default;
    // A negative size counts as 0.
    Picture(int w, int h, Color fill)
        : width(w < 0 ? 0 : w), height(h < 0 ? 0 : h), pixels(size_t(width) * size_t(height), fill) {}

    Color& at(int x, int y) { return pixels[size_t(y) * size_t(width) + size_t(x)]; }
    const Color& at(int x, int y) const { return pixels[size_t(y) * size_t(width) + size_t(x)]; }
    bool operator==(const Picture&) const = default;
};
