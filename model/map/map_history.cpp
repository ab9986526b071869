#include "model/map/map_history.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace {
size_t weight(const Map_Edit& e) {
    return e.cells.size() + e.corners.size() + (e.kept ? size_t(e.kept->cells.cell_count()) : 0);
}

int clamped(int index, const Map_Layers& layers) { return std::clamp(index, 0, std::max(int(layers.size()) - 1, 0)); }

void move_layer(Map_Layers& layers, int from, int to) {
    if (from < 0 || to < 0 || from >= int(layers.size()) || to >= int(layers.size())) return;
    std::shared_ptr<Map_Layer> layer = layers[size_t(from)];
    layers.erase(layers.begin() + from);
    layers.insert(layers.begin() + to, std::move(layer));
}

// The list of layers as the step leaves it (forward) or found it.
void apply_layers(const Map_Edit& e, Map_Layers& layers, bool forward, int& current) {
    using L = Map_Edit::Layers;
    const bool adds = (e.change == L::added) == forward;
    switch (e.change) {
        case L::added:
        case L::removed:
            if (adds && e.kept && e.layer <= int(layers.size()))
                layers.insert(layers.begin() + e.layer, e.kept);
            else if (!adds && e.layer < int(layers.size()))
                layers.erase(layers.begin() + e.layer);
            current = clamped(e.layer - (adds ? 0 : 1), layers);
            break;
        case L::moved:
            move_layer(layers, forward ? e.layer : e.moved_to, forward ? e.moved_to : e.layer);
            current = clamped(forward ? e.moved_to : e.layer, layers);
            break;
        case L::renamed:
            if (e.layer < int(layers.size())) layers[size_t(e.layer)]->name = forward ? e.name_after : e.name_before;
            current = clamped(e.layer, layers);
            break;
        case L::none:
            break;
    }
}
}  // namespace

void Map_History::record(Map_Edit edit) {
    if (edit.cells.empty() && edit.corners.empty() && edit.change == Map_Edit::Layers::none && !edit.terrain_before)
        return;
    for (const Map_Edit& e : undone) kept_cells -= weight(e);
    undone.clear();
    kept_cells += weight(edit);
    done.push_back(std::move(edit));
    // The newest edit always stays, however large.
    size_t dropped = 0;
    while (done.size() - dropped > 1 && (done.size() - dropped > most_edits || kept_cells > most_cells))
        kept_cells -= weight(done[dropped++]);
    done.erase(done.begin(), done.begin() + std::ptrdiff_t(dropped));
}

bool Map_History::undo(Map_Layers& layers, Tile_Map& corners, Terrain_Set& terrain, int& current) {
    if (done.empty()) return false;
    const Map_Edit& edit = done.back();
    if (edit.change != Map_Edit::Layers::none) {
        apply_layers(edit, layers, false, current);
    } else if (edit.layer < int(layers.size())) {
        Tile_Map& map = layers[size_t(edit.layer)]->cells;
        // Backwards, so a cell touched twice ends as it was first.
        for (auto it = edit.cells.rbegin(); it != edit.cells.rend(); ++it) map.put(it->cell, it->before, it->turn_before);
        current = edit.layer;
    }
    for (auto it = edit.corners.rbegin(); it != edit.corners.rend(); ++it) corners.put(it->cell, it->before);
    if (edit.terrain_before) terrain = *edit.terrain_before;
    undone.push_back(std::move(done.back()));
    done.pop_back();
    return true;
}

bool Map_History::redo(Map_Layers& layers, Tile_Map& corners, Terrain_Set& terrain, int& current) {
    if (undone.empty()) return false;
    const Map_Edit& edit = undone.back();
    if (edit.change != Map_Edit::Layers::none) {
        apply_layers(edit, layers, true, current);
    } else if (edit.layer < int(layers.size())) {
        Tile_Map& map = layers[size_t(edit.layer)]->cells;
        for (const Map_Edit::Cell& c : edit.cells) map.put(c.cell, c.after, c.turn_after);
        current = edit.layer;
    }
    for (const Map_Edit::Cell& c : edit.corners) corners.put(c.cell, c.after);
    if (edit.terrain_after) terrain = *edit.terrain_after;
    done.push_back(std::move(undone.back()));
    undone.pop_back();
    return true;
}

void Map_History::clear() {
    done.clear();
    undone.clear();
    kept_cells = 0;
}
