#include "model/map/map_history.h"

#include <cstddef>
#include <utility>

void Map_History::record(Map_Edit edit) {
    if (edit.cells.empty()) return;
    for (const Map_Edit& e : undone) kept_cells -= e.cells.size();
    undone.clear();
    kept_cells += edit.cells.size();
    done.push_back(std::move(edit));
    // The newest edit always stays, however large.
    size_t dropped = 0;
    while (done.size() - dropped > 1 && (done.size() - dropped > most_edits || kept_cells > most_cells))
        kept_cells -= done[dropped++].cells.size();
    done.erase(done.begin(), done.begin() + std::ptrdiff_t(dropped));
}

bool Map_History::undo(Tile_Map& map) {
    if (done.empty()) return false;
    const Map_Edit& edit = done.back();
    // Backwards, so a cell touched twice ends as it was first.
    for (auto it = edit.cells.rbegin(); it != edit.cells.rend(); ++it) map.set(it->cell, it->before);
    undone.push_back(std::move(done.back()));
    done.pop_back();
    return true;
}

bool Map_History::redo(Tile_Map& map) {
    if (undone.empty()) return false;
    for (const Map_Edit::Cell& c : undone.back().cells) map.set(c.cell, c.after);
    done.push_back(std::move(undone.back()));
    undone.pop_back();
    return true;
}

void Map_History::clear() {
    done.clear();
    undone.clear();
    kept_cells = 0;
}
