#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "model/map/map_layer.h"
#include "model/map/terrain_set.h"

using Map_Layers = std::vector<std::shared_ptr<Map_Layer>>;

// One change of the map as the user made it (a stroke, a fill): every cell it
// touched with what the cell held before and after; or one change of the
// list of layers.
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
    // The layer the cells are in.
    int layer = 0;

    enum class Layers : uint8_t { none, added, removed, moved, renamed };
    Layers change = Layers::none;
    // Added or removed: the layer itself, kept whole for undo or redo.
    std::shared_ptr<Map_Layer> kept;
    int moved_to = 0;
    std::string name_before;
    std::string name_after;
    // The terrain set before and after, when the step changed it (copies of
    // their own: the history makes each follow the tile list).
    std::shared_ptr<Terrain_Set> terrain_before;
    std::shared_ptr<Terrain_Set> terrain_after;
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
    // The layer the step was in (or the layer it added, removed, moved or
    // renamed) becomes the current one.
    bool undo(Map_Layers& layers, Tile_Map& corners, Terrain_Set& terrain, int& current);
    bool redo(Map_Layers& layers, Tile_Map& corners, Terrain_Set& terrain, int& current);
    bool can_undo() const { return done.size() > 0; }
    size_t cells_kept() const { return kept_cells; }
    bool can_redo() const { return undone.size() > 0; }
    size_t count() const { return done.size(); }
    void clear();

    // A tile leaves the list for now: the edits that named it keep a mark of
    // it (an empty cell to the map) that returned() turns back into its index.
    void leaving(int index, int mark) {
        remap([index, mark](int t) { return t == index ? mark : t; });
        for_each_set([index, mark](Terrain_Set& s) { s.move_tile(index, mark); });
    }
    void returned(int mark, int index) {
        for (auto* list : {&done, &undone})
            for (Map_Edit& edit : *list)
                for (Map_Edit::Cell& c : edit.cells) {
                    if (c.before == mark) c.before = index;
                    if (c.after == mark) c.after = index;
                }
        for_each_set([index, mark](Terrain_Set& s) { s.move_tile(mark, index); });
    }
    // Marks are negative and below empty, so no change of the list moves them.
    static constexpr int first_mark = Tile_Map::empty - 1;

    void tile_inserted(int index) {
        remap([index](int t) { return Tile_Map::inserted(t, index); });
        for_each_stored_layer([index](const auto& l) { l->cells.tile_inserted(index); });
        for_each_set([index](Terrain_Set& s) { s.tile_inserted(index); });
    }
    void tile_removed(int index) {
        remap([index](int t) { return Tile_Map::removed(t, index); });
        for_each_stored_layer([index](const auto& l) { l->cells.tile_removed(index); });
        for_each_set([index](Terrain_Set& s) { s.tile_removed(index); });
    }
    void tiles_swapped(int a, int b) {
        remap([a, b](int t) { return Tile_Map::swapped(t, a, b); });
        for_each_stored_layer([a, b](const auto& l) { l->cells.tiles_swapped(a, b); });
        for_each_set([a, b](Terrain_Set& s) { s.tiles_swapped(a, b); });
    }

    // The layers only the history holds: removed ones a step would bring
    // back, added ones undone. (A layer the map shows is never among them.)
    template <typename Visit>
    void for_each_stored_layer(Visit visit) {
        for (Map_Edit& e : done)
            if (e.change == Map_Edit::Layers::removed && e.kept) visit(e.kept);
        for (Map_Edit& e : undone)
            if (e.change == Map_Edit::Layers::added && e.kept) visit(e.kept);
    }

private:
    template <typename Visit>
    void for_each_set(Visit visit) {
        for (auto* list : {&done, &undone})
            for (Map_Edit& edit : *list)
                for (Terrain_Set* set : {edit.terrain_before.get(), edit.terrain_after.get()})
                    if (set) visit(*set);
    }

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
