#include "model/map/map_editor.h"

#include <algorithm>
#include <utility>

#include "model/core/line_walk.h"

namespace {
// The cells that held a tile when it left, and the mark its history entries got.
struct Map_Uses : Tile_Uses {
    std::vector<int> cells;
    std::vector<uint8_t> turns;
    int mark = 0;
    Terrain_Set::Corners terrain{};
};

int cells_for(uint32_t tile_extent) { return Map_Editor::extent / int(tile_extent == 0 ? 1 : tile_extent); }
}  // namespace

Map_Editor::Map_Editor(uint32_t tile_width, uint32_t tile_height)
    : cells(cells_for(tile_width), cells_for(tile_height)),
      corners(cells_for(tile_width) + 1, cells_for(tile_height) + 1) {}

void Map_Editor::begin_stroke() {
    if (stroking) end_stroke();
    stroking = true;
    open_edit.cells.clear();
}

void Map_Editor::set_cell(int cell, int tile, int turn) {
    const int before = cells.at(cell);
    const int turn_before = cells.turn_at(cell);
    const int after = tile < 0 ? Tile_Map::empty : tile;
    const int turn_after = tile < 0 ? turn::none : turn & 7;
    if (before == after && turn_before == turn_after) return;
    cells.put(cell, after, turn_after);
    open_edit.cells.push_back(
        Map_Edit::Cell{cell, before, after, uint8_t(turn_before), uint8_t(turn_after)});
    ++changes;
    count_edit();
}

void Map_Editor::set_corner(int corner, int terrain) {
    const int before = corners.at(corner);
    const int after = terrain <= 0 ? Tile_Map::empty : terrain;
    if (before == after) return;
    corners.put(corner, after);
    open_edit.corners.push_back(Map_Edit::Cell{corner, before, after});
    ++changes;
}

Terrain_Set::Corners Map_Editor::wanted(int x, int y) const {
    auto at = [&](int cx, int cy) { return uint8_t(std::max(0, corners.at(cx, cy))); };
    return Terrain_Set::Corners{at(x, y), at(x + 1, y), at(x + 1, y + 1), at(x, y + 1)};
}

bool Map_Editor::is_missing(int x, int y) const {
    const Terrain_Set::Corners w = wanted(x, y);
    return terrains.complete(w) && terrains.tile_for(w, x, y) < 0;
}

void Map_Editor::paint_terrain(int corner_x, int corner_y, int terrain) {
    if (corners.is_outside(corner_x, corner_y) || terrain < 1 || terrain > terrains.terrain_count()) return;
    if (!stroking) begin_stroke();
    set_corner(corner_y * corners.columns() + corner_x, terrain);
    for (int y = corner_y - 1; y <= corner_y; ++y)
        for (int x = corner_x - 1; x <= corner_x; ++x) {
            if (cells.is_outside(x, y)) continue;
            // Corners never painted take what the cell's tile has there, or this terrain.
            const Terrain_Set::Corners has = terrains.corners(cells.at(x, y));
            const int around[4][2] = {{x, y}, {x + 1, y}, {x + 1, y + 1}, {x, y + 1}};
            for (int k = 0; k < 4; ++k)
                if (corners.at(around[k][0], around[k][1]) == Tile_Map::empty)
                    set_corner(around[k][1] * corners.columns() + around[k][0], has[k] != 0 ? has[k] : terrain);
            set_cell(y * cells.columns() + x, terrains.tile_for(wanted(x, y), x, y), turn::none);
        }
}

bool Map_Editor::set_terrain(const Terrain_Set& set) {
    end_stroke();
    terrains = set;
    ++changes;
    count_edit();  // the set is kept in the map file
    begin_stroke();
    for (int y = 0; y < cells.rows(); ++y)
        for (int x = 0; x < cells.columns(); ++x) {
            const Terrain_Set::Corners w = wanted(x, y);
            if (cells.at(x, y) == Tile_Map::empty && terrains.complete(w))
                set_cell(y * cells.columns() + x, terrains.tile_for(w, x, y), turn::none);
        }
    return end_stroke();
}

void Map_Editor::place_terrain(const Terrain_Set& set) {
    terrains = set;
    for (int y = 0; y < cells.rows(); ++y)
        for (int x = 0; x < cells.columns(); ++x) {
            const Terrain_Set::Corners c = terrains.corners(cells.at(x, y));
            const int around[4][2] = {{x, y}, {x + 1, y}, {x + 1, y + 1}, {x, y + 1}};
            for (int k = 0; k < 4; ++k)
                if (c[size_t(k)] != 0) corners.set(around[k][0], around[k][1], int(c[size_t(k)]));
        }
    ++changes;
}

void Map_Editor::paint(int x, int y, int tile, int turn) {
    if (cells.is_outside(x, y)) return;
    if (!stroking) begin_stroke();
    set_cell(y * cells.columns() + x, tile, turn);
}

void Map_Editor::paint_line(int x1, int y1, int x2, int y2, int tile, int turn) {
    for_each_line_point(x1, y1, x2, y2, [&](int x, int y) { paint(x, y, tile, turn); });
}

bool Map_Editor::end_stroke() {
    if (!stroking) return false;
    stroking = false;
    const bool changed = !open_edit.cells.empty();
    steps.record(std::move(open_edit));
    open_edit = Map_Edit{};
    return changed;
}

bool Map_Editor::fill(int x, int y, int tile, int turn) {
    end_stroke();
    if (cells.is_outside(x, y)) return false;
    const int target = cells.at(x, y);
    const int target_turn = cells.turn_at(x, y);
    if (target == (tile < 0 ? Tile_Map::empty : tile) && (tile < 0 || target_turn == turn)) return false;
    begin_stroke();
    // A stack of cells, each set as it is pushed so none is pushed twice.
    std::vector<int> pending{y * cells.columns() + x};
    set_cell(pending.back(), tile, turn);
    while (!pending.empty()) {
        const int cell = pending.back();
        pending.pop_back();
        const int cx = cell % cells.columns();
        const int cy = cell / cells.columns();
        const int around[4][2] = {{cx - 1, cy}, {cx + 1, cy}, {cx, cy - 1}, {cx, cy + 1}};
        for (const auto& n : around) {
            if (cells.at(n[0], n[1]) != target || cells.turn_at(n[0], n[1]) != target_turn ||
                cells.is_outside(n[0], n[1]))
                continue;
            pending.push_back(n[1] * cells.columns() + n[0]);
            set_cell(pending.back(), tile, turn);
        }
    }
    return end_stroke();
}

bool Map_Editor::undo() {
    end_stroke();
    if (!steps.undo(cells, corners)) return false;
    ++changes;
    count_edit();
    return true;
}

bool Map_Editor::redo() {
    end_stroke();
    if (!steps.redo(cells, corners)) return false;
    ++changes;
    count_edit();
    return true;
}

int Map_Editor::take_cells(const Tile_Map& other) {
    int left_out = 0;
    for (int y = 0; y < other.rows(); ++y)
        for (int x = 0; x < other.columns(); ++x) {
            const int tile = other.at(x, y);
            if (tile == Tile_Map::empty) continue;
            if (cells.is_outside(x, y))
                ++left_out;
            else
                cells.set(x, y, tile, other.turn_at(x, y));
            count_edit();
        }
    ++changes;
    return left_out;
}

void Map_Editor::place(int x, int y, int tile, int turn) {
    if (cells.at(x, y) != (tile < 0 ? Tile_Map::empty : tile) || cells.turn_at(x, y) != turn) count_edit();
    cells.set(x, y, tile, turn);
    ++changes;
}

void Map_Editor::tile_inserted(int index) {
    end_stroke();
    if (cells.tile_inserted(index)) count_edit();
    steps.tile_inserted(index);
    terrains.tile_inserted(index);
    ++changes;
}

void Map_Editor::tile_removed(int index) {
    end_stroke();
    if (cells.tile_removed(index)) count_edit();
    steps.tile_removed(index);
    terrains.tile_removed(index);
    ++changes;
}

void Map_Editor::tiles_swapped(int a, int b) {
    end_stroke();
    if (cells.tiles_swapped(a, b)) count_edit();
    steps.tiles_swapped(a, b);
    terrains.tiles_swapped(a, b);
    ++changes;
}

std::unique_ptr<Tile_Uses> Map_Editor::tile_leaving(int index) {
    end_stroke();
    auto uses = std::make_unique<Map_Uses>();
    for (int c = 0; c < cells.cell_count(); ++c)
        if (cells.at(c) == index) uses->cells.push_back(c), uses->turns.push_back(uint8_t(cells.turn_at(c)));
    uses->mark = next_mark--;
    uses->terrain = terrains.corners(index);
    steps.leaving(index, uses->mark);
    return uses;
}

// Cells the user filled again while the tile was away keep what they hold.
void Map_Editor::tile_returned(int index, const Tile_Uses& uses) {
    const auto* map_uses = dynamic_cast<const Map_Uses*>(&uses);
    if (!map_uses) return;
    for (size_t i = 0; i < map_uses->cells.size(); ++i)
        if (const int c = map_uses->cells[i]; c < cells.cell_count() && cells.at(c) == Tile_Map::empty) {
            cells.put(c, index, map_uses->turns[i]);
            count_edit();
        }
    steps.returned(map_uses->mark, index);
    terrains.set_corners(index, map_uses->terrain);
    ++changes;
}

void Map_Editor::count_edit() {
    const bool was_saved = is_saved();
    ++edits;
    if (was_saved && saved_state_changed) saved_state_changed();
}

void Map_Editor::mark_saved() {
    const bool was_saved = is_saved();
    saved_edits = edits;
    if (!was_saved && saved_state_changed) saved_state_changed();
}
