#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/map/tile_map.h"

// One change of the map as the user made it (a stroke, a fill): every cell it
// touched with what the cell held before and after.
struct Map_Edit {
    struct Cell {
        int cell;
        int before;
        int after;
        uint8_t turn_before = 0;
        uint8_t turn_after = 0;
    };
    std::vector<Cell> cells;
    // Terrains set at the map's corners (terrain numbers, not tiles).
    std::vector<Cell> corners;
};

// The map's own undo and redo, apart from the tileset's history: map edits
// never mix with pixel edits. The stored indices follow the tile list as the
// cells do, so an undo after a tile was deleted or moved restores what the
// cell means now.
class Map_History {
public:
    // The oldest edits are dropped beyond either: a fill of a map of tiny
    // tiles touches a quarter of a million cells.
    static constexpr size_t most_edits = 1000;
    static constexpr size_t most_cells = size_t(1) << 22;

    // A new edit drops whatever could be redone.
    void record(Map_Edit edit);
    bool undo(Tile_Map& map, Tile_Map& corners);
    bool redo(Tile_Map& map, Tile_Map& corners);
    bool can_undo() const { return done.size() > 0; }
    size_t cells_kept() const { return kept_cells; }
    bool can_redo() const { return undone.size() > 0; }
    size_t count() const { return done.size(); }
    void clear();

    // A tile leaves the list for now: the edits that named it keep a mark of
    // it (an empty cell to the map) that returned() turns back into its index.
    void leaving(int index, int mark) { remap([index, mark](int t) { return t == index ? mark : t; }); }
    void returned(int mark, int index) {
        for (auto* list : {&done, &undone})
            for (Map_Edit& edit : *list)
                for (Map_Edit::Cell& c : edit.cells) {
                    if (c.before == mark) c.before = index;
                    if (c.after == mark) c.after = index;
                }
    }
    // Marks are negative and below empty, so no change of the list moves them.
    static constexpr int first_mark = Tile_Map::empty - 1;

    void tile_inserted(int index) { remap([index](int t) { return Tile_Map::inserted(t, index); }); }
    void tile_removed(int index) { remap([index](int t) { return Tile_Map::removed(t, index); }); }
    void tiles_swapped(int a, int b) { remap([a, b](int t) { return Tile_Map::swapped(t, a, b); }); }

private:
    template <typename Change>
    void remap(Change change) {
        auto one = [&](int t) { return t < 0 ? t : change(t); };
        for (auto* list : {&done, &undone})
            for (Map_Edit& edit : *list)
                for (Map_Edit::Cell& c : edit.cells) {
                    c.before = one(c.before);
                    c.after = one(c.after);
                }
    }

    std::vector<Map_Edit> done;
    std::vector<Map_Edit> undone;
    size_t kept_cells = 0;  // in done and undone together
};
