#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// A grid of cells, each empty or holding the index of a tile of its tileset.
// It follows the tileset's tile list: the indices shift, swap and vanish with
// the tiles they name.
class Tile_Map {
public:
    static constexpr int empty = -1;

    // A negative size counts as 0.
    Tile_Map(int columns, int rows);

    int columns() const { return width; }
    int rows() const { return height; }
    int cell_count() const { return width * height; }
    bool is_outside(int x, int y) const { return x < 0 || y < 0 || x >= width || y >= height; }
    // Outside the map: empty.
    int at(int x, int y) const { return is_outside(x, y) ? empty : cells[size_t(y * width + x)]; }
    int at(int cell) const { return cells[size_t(cell)]; }
    // Outside the map: ignored. A negative tile empties the cell.
    void set(int x, int y, int tile);
    void set(int cell, int tile) { cells[size_t(cell)] = tile < 0 ? empty : tile; }
    bool is_blank() const;
    // The highest tile index any cell holds; empty for a blank map.
    int highest_tile() const;

    // The tileset's list changes: a tile placed at an index moves the tiles
    // from there one up, a removed tile leaves its cells empty and moves the
    // ones after it one down, a swap exchanges the two indices.
    // True when any cell changed.
    bool tile_inserted(int index) { return remap([index](int t) { return inserted(t, index); }); }
    bool tile_removed(int index) { return remap([index](int t) { return removed(t, index); }); }
    bool tiles_swapped(int a, int b) { return remap([a, b](int t) { return swapped(t, a, b); }); }

    // The same changes for one stored index (the map's history keeps them too).
    static int inserted(int tile, int index) { return tile >= index ? tile + 1 : tile; }
    static int removed(int tile, int index) {
        return tile == index ? empty : tile > index ? tile - 1 : tile;
    }
    static int swapped(int tile, int a, int b) { return tile == a ? b : tile == b ? a : tile; }

private:
    template <typename Change>
    bool remap(Change change) {
        bool changed = false;
        for (int& c : cells)
            if (c != empty) {
                const int after = change(c);
                changed = changed || after != c;
                c = after;
            }
        return changed;
    }

    int width;
    int height;
    std::vector<int> cells;
};
