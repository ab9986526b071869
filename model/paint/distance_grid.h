#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// The fill's grid of signed cells, one per tile pixel: 0 open, 10000 wall,
// otherwise the wave level that reached the cell. Its storage is kept between
// fills so that filling allocates only when the tile size changes.
class Distance_Grid {
public:
    static constexpr int32_t open = 0;
    static constexpr int32_t wall = 10000;
    static constexpr int32_t outside = -2;

    void resize(int width, int height);
    int width() const { return grid_width; }
    int height() const { return grid_height; }

    // Reading outside yields -2; writing outside is ignored.
    int32_t get(int x, int y) const {
        return is_outside(x, y) ? outside : cells[size_t(y) * size_t(grid_width) + size_t(x)];
    }
    void set(int x, int y, int32_t value) {
        if (!is_outside(x, y)) cells[size_t(y) * size_t(grid_width) + size_t(x)] = value;
    }
    bool is_outside(int x, int y) const { return x < 0 || y < 0 || x >= grid_width || y >= grid_height; }

    // Wave expansion from the cell holding 1: every open 4-connected
    // neighbour of a level-n cell gets n + 1, until no cell changes or level
    // 10000 is reached. Cells are visited level by level from a queue, which
    // gives the same levels as scanning the whole grid once per level.
    void expand();

private:
    int grid_width = 0;
    int grid_height = 0;
    std::vector<int32_t> cells;
    std::vector<int32_t> queue;
};
