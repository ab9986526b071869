#include "model/map/map_editor.h"

#include <algorithm>
#include <utility>

#include "model/core/line_walk.h"

namespace {
// The cells that held a tile when it left, in each layer (those the map
// shows and those only its history keeps), and the mark its history
// entries got.
struct Map_Uses : Tile_Uses {
    struct In_Layer {
        std::shared_ptr<Map_Layer> layer;
        std::vector<int> cells;
        std::vector<uint8_t> turns;
    };
    std::vector<In_Layer> layers;
    int mark = 0;
    Terrain_Set::Corners terrain{};
};

int cells_for(uint32_t tile_extent) { return Map_Editor::extent / int(tile_extent == 0 ? 1 : tile_extent); }
}  // namespace

Map_Editor::Map_Editor(uint32_t tile_width, uint32_t tile_height)
    : corners(cells_for(tile_width) + 1, cells_for(tile_height) + 1) {
    layer_list.push_back(
        std::make_shared<Map_Layer>(first_layer_name, cells_for(tile_width), cells_for(tile_height), 1));
}

bool Map_Editor::holds_nothing() const {
    const Map_Layer& only = *layer_list.front();
    return layer_list.size() == 1 && only.cells.is_blank() && only.visible && only.name == first_layer_name &&
           terrains.is_empty();
}

void Map_Editor::record_layers(Map_Edit edit) {
    steps.record(std::move(edit));
    ++changes;
    count_edit();
}

void Map_Editor::begin_stroke() {
    if (stroking) end_stroke();
    stroking = true;
    open_edit.cells.clear();
}

void Map_Editor::set_cell(int cell, int tile, int turn) {
    const int before = live().at(cell);
    const int turn_before = live().turn_at(cell);
    const int after = tile < 0 ? Tile_Map::empty : tile;
    const int turn_after = tile < 0 ? turn::none : turn & 7;
    if (before == after && turn_before == turn_after) return;
    live().put(cell, after, turn_after);
    // What is painted is seen: a hidden layer painted on shows again.
    layer_list[size_t(current)]->visible = true;
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
            if (live().is_outside(x, y)) continue;
            // Corners never painted take what the cell's tile has there, or this terrain.
            const Terrain_Set::Corners has = terrains.corners(live().at(x, y));
            const int around[4][2] = {{x, y}, {x + 1, y}, {x + 1, y + 1}, {x, y + 1}};
            for (int k = 0; k < 4; ++k)
                if (corners.at(around[k][0], around[k][1]) == Tile_Map::empty)
                    set_corner(around[k][1] * corners.columns() + around[k][0], has[k] != 0 ? has[k] : terrain);
            set_cell(y * live().columns() + x, terrains.tile_for(wanted(x, y), x, y), turn::none);
        }
}

bool Map_Editor::set_terrain(const Terrain_Set& set) { return change_terrain(set, 0); }

bool Map_Editor::remove_terrain(int terrain) {
    if (terrain < 1 || terrain > terrains.terrain_count()) return false;
    Terrain_Set set = terrains;
    set.remove_terrain(terrain);
    return change_terrain(set, terrain);
}

// The set changed as one step: corners painted with a removed terrain become
// empty and those above it move down, and empty cells whose combination now
// has a tile get it.
bool Map_Editor::change_terrain(const Terrain_Set& set, int removed) {
    end_stroke();
    if (set == terrains) return false;
    begin_stroke();
    open_edit.terrain_before = std::make_shared<Terrain_Set>(terrains);
    open_edit.terrain_after = std::make_shared<Terrain_Set>(set);
    terrains = set;
    ++changes;
    count_edit();  // the set is kept in the map file
    if (removed > 0)
        for (int c = 0; c < corners.cell_count(); ++c)
            if (const int t = corners.at(c); t >= removed) set_corner(c, t == removed ? 0 : t - 1);
    for (int y = 0; y < live().rows(); ++y)
        for (int x = 0; x < live().columns(); ++x) {
            const Terrain_Set::Corners w = wanted(x, y);
            if (live().at(x, y) == Tile_Map::empty && terrains.complete(w))
                set_cell(y * live().columns() + x, terrains.tile_for(w, x, y), turn::none);
        }
    end_stroke();
    return true;
}

// The layers from the bottom up: a tile of the set on a higher layer has the
// last word on its corners.
void Map_Editor::place_terrain(const Terrain_Set& set) {
    terrains = set;
    for (const auto& layer : layer_list)
        for (int y = 0; y < layer->cells.rows(); ++y)
            for (int x = 0; x < layer->cells.columns(); ++x) {
                const Terrain_Set::Corners c = terrains.corners(layer->cells.at(x, y));
                const int around[4][2] = {{x, y}, {x + 1, y}, {x + 1, y + 1}, {x, y + 1}};
                for (int k = 0; k < 4; ++k)
                    if (c[size_t(k)] != 0) corners.set(around[k][0], around[k][1], int(c[size_t(k)]));
            }
    ++changes;
}

void Map_Editor::paint(int x, int y, int tile, int turn) {
    if (live().is_outside(x, y)) return;
    if (!stroking) begin_stroke();
    set_cell(y * live().columns() + x, tile, turn);
}

void Map_Editor::paint_line(int x1, int y1, int x2, int y2, int tile, int turn) {
    for_each_line_point(x1, y1, x2, y2, [&](int x, int y) { paint(x, y, tile, turn); });
}

bool Map_Editor::end_stroke() {
    if (!stroking) return false;
    stroking = false;
    const bool changed = !open_edit.cells.empty();
    open_edit.layer = current;
    steps.record(std::move(open_edit));
    open_edit = Map_Edit{};
    return changed;
}

bool Map_Editor::fill(int x, int y, int tile, int turn) {
    end_stroke();
    const Tile_Map& cells = live();
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
    if (!steps.undo(layer_list, corners, terrains, current)) return false;
    ++changes;
    count_edit();
    return true;
}

bool Map_Editor::redo() {
    end_stroke();
    if (!steps.redo(layer_list, corners, terrains, current)) return false;
    ++changes;
    count_edit();
    return true;
}

void Map_Editor::place(int x, int y, int tile, int turn) {
    if (live().at(x, y) != (tile < 0 ? Tile_Map::empty : tile) || live().turn_at(x, y) != turn) count_edit();
    live().set(x, y, tile, turn);
    ++changes;
}

void Map_Editor::tile_inserted(int index) {
    end_stroke();
    bool changed = false;
    for (const auto& l : layer_list) changed = l->cells.tile_inserted(index) || changed;
    if (changed) count_edit();
    steps.tile_inserted(index);
    terrains.tile_inserted(index);
    ++changes;
}

void Map_Editor::tile_removed(int index) {
    end_stroke();
    bool changed = false;
    for (const auto& l : layer_list) changed = l->cells.tile_removed(index) || changed;
    if (changed) count_edit();
    steps.tile_removed(index);
    terrains.tile_removed(index);
    ++changes;
}

void Map_Editor::tiles_swapped(int a, int b) {
    end_stroke();
    bool changed = false;
    for (const auto& l : layer_list) changed = l->cells.tiles_swapped(a, b) || changed;
    if (changed) count_edit();
    steps.tiles_swapped(a, b);
    terrains.tiles_swapped(a, b);
    ++changes;
}

std::unique_ptr<Tile_Uses> Map_Editor::tile_leaving(int index) {
    end_stroke();
    auto uses = std::make_unique<Map_Uses>();
    auto collect = [&](const std::shared_ptr<Map_Layer>& layer) {
        Map_Uses::In_Layer in{layer, {}, {}};
        const Tile_Map& cells = layer->cells;
        for (int c = 0; c < cells.cell_count(); ++c)
            if (cells.at(c) == index) in.cells.push_back(c), in.turns.push_back(uint8_t(cells.turn_at(c)));
        if (!in.cells.empty()) uses->layers.push_back(std::move(in));
    };
    for (const auto& layer : layer_list) collect(layer);
    // A removed layer a step would bring back is held by that step only.
    steps.for_each_stored_layer(collect);
    uses->mark = next_mark--;
    uses->terrain = terrains.corners(index);
    steps.leaving(index, uses->mark);
    return uses;
}

// Cells the user filled again while the tile was away keep what they hold.
void Map_Editor::tile_returned(int index, const Tile_Uses& uses) {
    const auto* map_uses = dynamic_cast<const Map_Uses*>(&uses);
    if (!map_uses) return;
    for (const Map_Uses::In_Layer& in : map_uses->layers) {
        Tile_Map& cells = in.layer->cells;
        for (size_t i = 0; i < in.cells.size(); ++i)
            if (const int c = in.cells[i]; c < cells.cell_count() && cells.at(c) == Tile_Map::empty) {
                cells.put(c, index, in.turns[i]);
                count_edit();
            }
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
