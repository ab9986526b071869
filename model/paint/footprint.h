#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

class Tile;

// The pixels one step of a brush stroke covers: the brush stamped at every
// point of the line between two pointer positions, each pixel marked once so
// that an adjusting brush (lightness, colorize) changes it once per step. The
// storage is kept between steps; it grows only when the tile size changes.
class Footprint {
public:
    // Clears the marks for a tile of this size.
    void reset(int width, int height);
    // A brush's set pixels are its white ones; no brush is a single pixel.
    // The brush is centred on each point, rounding up and left.
    void stamp_line(const Tile* brush, int x1, int y1, int x2, int y2);
    void stamp(const Tile* brush, int x, int y);
    bool marked(int x, int y) const;

    // Calls visit(x, y) for every marked pixel, row by row.
    template <typename Visit>
    void for_each(Visit&& visit) const {
        for (int y = top; y <= bottom; ++y)
            for (int x = left; x <= right; ++x)
                if (marks[size_t(y) * size_t(mark_width) + size_t(x)]) visit(x, y);
    }

private:
    void mark(int x, int y);

    int mark_width = 0;
    int mark_height = 0;
    // The box around the marks, empty when left > right.
    int left = 0;
    int top = 0;
    int right = -1;
    int bottom = -1;
    std::vector<uint8_t> marks;
};
