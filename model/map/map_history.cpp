#include "model/map/map_history.h"

#include <cstddef>
#include <utility>

namespace {
size_t weight(const Map_Edit& e) { return e.cells.size() + e.corners.size(); }
}  // namespace

void Map_History::record(Map_Edit edit) {
    if (edit.cells.empty() && edit.corners.empty()) return;
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

bool Map_History::undo(Tile_Map& map, Tile_Map& corners) {
    if (done.empty()) return false;
    const Map_Edit& edit = done.back();
    // Backwards, so a cell touched twice ends as it was first.
    for (auto it = edit.cells.rbegin(); it != edit.cells.rend(); ++it) map.put(it->cell, it->before, it->turn_before);
    for (auto it = edit.corners.rbegin(); it != edit.corners.rend(); ++it) corners.put(it->cell, it->before);
    undone.push_back(std::move(done.back()));
    done.pop_back();
    return true;
}

bool Map_History::redo(Tile_Map& map, Tile_Map& corners) {
    if (undone.empty()) return false;
    for (const Map_Edit::Cell& c : undone.back().cells) map.put(c.cell, c.after, c.turn_after);
    for (const Map_Edit::Cell& c : undone.back().corners) corners.put(c.cell, c.after);
    done.push_back(std::move(undone.back()));
    undone.pop_back();
    return true;
}

void Map_History::clear() {
    done.clear();
    undone.clear();
    kept_cells = 0;
}
