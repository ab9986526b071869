#pragma once

#include "model/core/rectangle.h"

class Tile_Store;

// One row of cells showing a tileset's tiles from index first onward. Paging
// keeps a few tiles of overlap so the user does not lose their place, and
// first never passes the last tile, so at least one tile stays in view.
class Tile_Strip {
public:
    static constexpr int standard_cells = 51;
    static constexpr int cell_size = 24;
    static constexpr int overlap = 5;

    explicit Tile_Strip(Tile_Store& store, int cells = standard_cells);

    // The display places the strip; the model only needs its geometry.
    void set_position(int x, int y);
    const Rectangle& area() const { return strip_area; }
    int cell_count() const { return cells; }
    int first() const { return first_index; }
    Tile_Store& store() const { return *tiles; }

    // The tile under a window point, or -1 off the strip or past the last tile.
    int tile_at(int x, int y) const;
    // The left edge of a tile's cell; only meaningful while it is shown.
    int cell_x(int index) const { return strip_area.x + (index - first_index) * cell_size; }
    bool is_shown(int index) const;

    void make_current_visible();
    // Tiles lie beyond the last cell, or before the first one.
    bool can_page_forward() const;
    bool can_page_back() const { return first_index > 0; }
    void next_page();
    void previous_page();
    // The store goes to its first or last tile; the caller scrolls to it.
    void rewind();
    void forward();

private:
    void clamp();

    Tile_Store* tiles;
    int cells;
    Rectangle strip_area;
    int first_index = 0;
};
