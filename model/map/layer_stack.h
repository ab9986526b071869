#pragma once

#include <cstdint>
#include <vector>

#include "model/color/color.h"

class Map_Editor;
class Tile;
class Tile_Map;
class Tile_Store;

// The visible layers of a map drawn together: what each cell shows, bottom
// tile first, and its pixels with each tile laid over the ones below by its
// alpha. One tile index may be drawn from a live tile instead of the store's
// (the tile being drawn, floating image included).
class Layer_Stack {
public:
    static constexpr int most = 16;

    struct Cell {
        int count = 0;
        const Tile* tiles[most];
        int indices[most];
        uint8_t turns[most];
    };

    // Layers bottom first; a layer past the most is left out.
    Layer_Stack(std::vector<const Tile_Map*> layers, const Tile_Store& store, const Tile* live = nullptr,
                int live_index = -2);
    // The editor's visible layers.
    Layer_Stack(const Map_Editor& editor, const Tile_Store& store, const Tile* live = nullptr, int live_index = -2);
    // Nothing shown until show().
    Layer_Stack() = default;
    // The editor's visible layers as they stand now, in place of what was shown.
    void show(const Map_Editor& editor, const Tile_Store& store, const Tile* live = nullptr, int live_index = -2);

    int columns() const { return width; }
    int rows() const { return height; }
    bool is_outside(int x, int y) const { return x < 0 || y < 0 || x >= width || y >= height; }
    // The tiles the cell shows (none outside the map), from the topmost
    // opaque one up: what lies under a tile with no clear pixel is not seen.
    // Indices past the store's tiles show nothing.
    void at(int x, int y, Cell& out) const;
    // Whether the cell holds the tile in a visible layer.
    bool holds(int cell, int tile) const;
    // A number for what the cell shows: equal for cells that show the same
    // (2^-64 aside), 0 for an empty one.
    uint64_t key(int cell) const;
    // The cell's pixel at (x, y) of its tile size.
    static Color pixel(const Cell& cell, int x, int y);

private:
    bool is_opaque(int index, const Tile* tile) const;
    void take_tiles(const Tile_Store& store, const Tile* live, int live_index);

    std::vector<const Tile_Map*> maps;
    // The store's tiles by index: looked up once, not per cell.
    std::vector<const Tile*> tile_list;
    // Per tile index: -1 not looked at yet, 0 has a clear pixel, 1 opaque.
    mutable std::vector<int8_t> opaque;
    mutable int8_t live_opaque = -1;
    const Tile* live_tile = nullptr;
    int live_at = -2;
    int width = 0;
    int height = 0;
};

// The colour seen where above lies over below, both by their alpha.
Color composited(Color below, Color above);
