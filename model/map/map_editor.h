#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "model/core/safe_file.h"
#include "model/tile/tile_store.h"
#include "model/map/map_history.h"
#include "model/map/terrain_set.h"
#include "model/map/tile_map.h"

// A tileset's map: its layers of cells and their history. The map is made
// for (480 / tile width) x (480 / tile height) cells; the tileset makes a new
// one whenever its tile size changes. Edits come in steps: a stroke of the
// pointer or a fill is one step to undo, and so is each change of the list
// of layers. The tools paint in the current layer.
class Map_Editor : public Tile_List_Watcher {
public:
    static constexpr int extent = 480;
    static constexpr int most_layers = 16;
    static constexpr const char* first_layer_name = "Tiles";

    // Sizes of 0 count as 1. A new map has one layer.
    Map_Editor(uint32_t tile_width, uint32_t tile_height);

    // The current layer's cells.
    const Tile_Map& map() const { return live(); }
    int layer_count() const { return int(layer_list.size()); }
    const Map_Layer& layer(int index) const { return *layer_list[size_t(index)]; }
    int current_layer() const { return current; }
    // Whether a map file would keep nothing of it: one shown layer of the
    // first name without a tile, and no terrain.
    bool holds_nothing() const;

    // Each a step to undo but choosing and showing. A new layer goes above
    // the current one and becomes current; the only layer is never removed.
    void choose_layer(int index);
    bool add_layer();
    bool remove_layer();
    bool rename_layer(int index, const std::string& name);
    bool move_layer(int index, int to);
    // Shown or hidden: kept in the map file, but no step to undo (a look
    // under a layer is no edit of the map).
    void show_layer(int index, bool visible);

    // The layers as a map file gives them, placed without history (none
    // given: one blank layer); the file's layers this map knows about (to
    // tell a layer removed here from one another program added) and the
    // next free layer id.
    void place_layers(std::vector<Map_Layer> layers, std::vector<int> file_keys, int next_id);
    // The map file now holds the layers as they stand, each under the id
    // given (one for each layer, in order).
    void layers_filed(const std::vector<int>& ids);
    const std::vector<int>& known_file_keys() const { return file_keys; }
    int next_layer_id() const { return next_id; }
    // The terrain set painted with, and the terrain at each corner of the
    // map's cells ((columns + 1) x (rows + 1) of them; empty where none was
    // painted).
    const Terrain_Set& terrain() const { return terrains; }
    const Tile_Map& terrain_corners() const { return corners; }
    const Map_History& history() const { return steps; }
    // Changes with every change of the cells, so a view knows to compose again.
    uint64_t generation() const { return changes; }

    // A stroke sets cells one by one or along a line; a negative tile erases.
    void begin_stroke();
    void paint(int x, int y, int tile, int turn = turn::none);
    void paint_line(int x1, int y1, int x2, int y2, int tile, int turn = turn::none);
    // True when the stroke changed a cell (and so was recorded).
    bool end_stroke();
    bool in_stroke() const { return stroking; }
    // The cells joined to (x, y) across edges holding the same as it take the
    // tile; true when anything changed. Ends an open stroke first.
    bool fill(int x, int y, int tile, int turn = turn::none);
    bool undo();
    bool redo();

    // Paints the terrain at a corner of the cells: the four cells around it
    // take the tile whose corners match (their other corners keep the
    // terrain they had, or take this one where they had none); a cell whose
    // combination has no tile yet is left empty and counts as missing. Part
    // of the open stroke.
    void paint_terrain(int corner_x, int corner_y, int terrain);
    // The terrains the cell's corners want (0 where none).
    Terrain_Set::Corners wanted(int x, int y) const;
    // A cell whose four corners were painted but whose combination has no tile.
    bool is_missing(int x, int y) const;
    // The set's tiles change (corners marked on a tile, terrains added or
    // taken away), as one step to undo: cells left empty for a combination
    // that now has a tile get it. False when the set is the same.
    bool set_terrain(const Terrain_Set& set);
    // The terrain leaves the set and the map's corners, as one step; the
    // terrains above it move down. False when there is no such terrain.
    bool remove_terrain(int terrain);
    // The set as a map file keeps it, placed without history; the corners of
    // cells holding tiles of the set take those tiles' terrains.
    void place_terrain(const Terrain_Set& set);

    // The layers of another map (a map of another tile size), their cells
    // where they fit, placed without history; the number of placed cells
    // that did not fit.
    int take_layers(const Map_Editor& other);
    // Cells placed in one go, as reading a map file does: no history.
    void place(int x, int y, int tile, int turn = turn::none);
    void clear_history() { steps.clear(); }

    void tile_inserted(int index) override;
    void tile_removed(int index) override;
    void tiles_swapped(int a, int b) override;
    std::unique_ptr<Tile_Uses> tile_leaving(int index) override;
    void tile_returned(int index, const Tile_Uses& uses) override;

    // The map file this map was read whole from or last written to; saving
    // may replace that one without asking while it is as it was then
    // (file_stamp).
    std::string own_file;
    safe_file::Stamp file_stamp;
    // The editor's Preview shows this map around the tile being drawn
    // (a view setting of this session, not kept in the file).
    bool in_preview = false;

    // Whether the cells are as last read or written.
    bool is_saved() const { return saved_edits == edits; }
    void mark_saved();
    // Told when the cells stop or start being as last read or written (the
    // tileset's modified mark follows).
    std::function<void()> saved_state_changed;

private:
    Tile_Map& live() { return layer_list[size_t(current)]->cells; }
    const Tile_Map& live() const { return layer_list[size_t(current)]->cells; }
    void record_layers(Map_Edit edit);
    void set_cell(int cell, int tile, int turn);
    void count_edit();

    void set_corner(int corner, int terrain);
    bool change_terrain(const Terrain_Set& set, int removed);

    Map_Layers layer_list;
    int current = 0;
    int next_id = 2;
    std::vector<int> file_keys;
    Tile_Map corners;
    Terrain_Set terrains;
    Map_History steps;
    Map_Edit open_edit;
    bool stroking = false;
    uint64_t changes = 0;
    // Counts changes of the cells' contents only (a tile added at the end of
    // the list changes the generation, not a cell).
    uint64_t edits = 0;
    uint64_t saved_edits = 0;
    int next_mark = Map_History::first_mark;
};
