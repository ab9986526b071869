#include "model/tile/tile_strip.h"

#include <algorithm>

#include "model/tile/tile_store.h"

Tile_Strip::Tile_Strip(Tile_Store& store, int cells)
    : tiles(&store), cells(cells), strip_area{0, 0, cells * cell_size, cell_size} {}

void Tile_Strip::set_position(int x, int y) {
    strip_area.x = x;
    strip_area.y = y;
}

int Tile_Strip::tile_at(int x, int y) const {
    if (!strip_area.contains(x, y)) return -1;
    const int index = (x - strip_area.x) / cell_size + first_index;
    return index < tiles->tile_count() ? index : -1;
}

bool Tile_Strip::is_shown(int index) const {
    return index >= first_index && index < first_index + cells && index < tiles->tile_count();
}

void Tile_Strip::make_current_visible() {
    const int current = tiles->current_index();
    if (current < first_index) first_index = current;
    if (current >= first_index + cells) first_index = current - cells + 1;
    clamp();
}

bool Tile_Strip::can_page_forward() const { return first_index + cells < tiles->tile_count(); }

// With every remaining tile already in view, paging on would only empty cells.
void Tile_Strip::next_page() {
    if (!can_page_forward()) return;
    first_index += cells - overlap;
    clamp();
}

void Tile_Strip::previous_page() {
    first_index += overlap - cells;
    clamp();
}

void Tile_Strip::rewind() { tiles->go_to(0); }

void Tile_Strip::forward() { tiles->go_to(tiles->tile_count() - 1); }

// Tiles deleted since the strip last moved may leave first past the end.
void Tile_Strip::clamp() { first_index = std::max(0, std::min(first_index, tiles->tile_count() - 1)); }
