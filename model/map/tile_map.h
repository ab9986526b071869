#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/tile/tile.h"

// How a cell shows its tile, as the map file's flags say it: flipped across
// (h), flipped upside down (v), and mirrored on its diagonal (d) first. A
// quarter turn clockwise is d with h.
namespace turn {
constexpr int none = 0, flip_h = 1, flip_v = 2, diagonal = 4;
// The turn after flipping or turning the shown tile once more.
inline int flipped_h(int t) { return t ^ flip_h; }
inline int flipped_v(int t) { return t ^ flip_v; }
inline int quarter_turned(int t) {
    return ((t & flip_v) ? 0 : flip_h) | ((t & flip_h) ? flip_v : 0) | ((t & diagonal) ? 0 : diagonal);
}
// The tile's pixel shown at (x, y); a diagonal is left out for a tile that
// is not square.
inline Color pixel(const Tile& tile, int t, int x, int y) {
    if (t & flip_v) y = tile.height() - 1 - y;
    if (t & flip_h) x = tile.width() - 1 - x;
    if ((t & diagonal) && tile.width() == tile.height()) std::swap(x, y);
    return tile.get_pixel(x, y);
}
}  // namespace turn

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
    // The cell's turn (turn::none outside the map and for an empty cell).
    int turn_at(int x, int y) const { return is_outside(x, y) ? turn::none : turns[size_t(y * width + x)]; }
    int turn_at(int cell) const { return turns[size_t(cell)]; }
    // Outside the map: ignored. A negative tile empties the cell.
    void set(int x, int y, int tile, int turn = turn::none);
    // The same by the cell's index, which must be inside.
    void put(int cell, int tile, int turn = turn::none) {
        cells[size_t(cell)] = tile < 0 ? empty : tile;
        turns[size_t(cell)] = uint8_t(tile < 0 ? turn::none : turn & 7);
    }
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
        for (size_t i = 0; i < cells.size(); ++i)
            if (int& c = cells[i]; c != empty) {
                const int after = change(c);
                changed = changed || after != c;
                c = after;
                if (c == empty) turns[i] = turn::none;
            }
        return changed;
    }

    int width;
    int height;
    std::vector<int> cells;
    std::vector<uint8_t> turns;
};
