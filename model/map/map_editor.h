#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "model/core/safe_file.h"
#include "model/tile/tile_store.h"
#include "model/map/map_history.h"
#include "model/map/terrain_set.h"
#include "model/map/tile_map.h"

// A tileset's map: its cells and their history. The map is made for
// (480 / tile width) x (480 / tile height) cells; the tileset makes a new one
// whenever its tile size changes. Edits come in steps: a stroke of the
// pointer or a fill is one step to undo.
class Map_Editor : public Tile_List_Watcher {
public:
    static constexpr int extent = 480;

    // Sizes of 0 count as 1.
    Map_Editor(uint32_t tile_width, uint32_t tile_height);

    const Tile_Map& map() const { return cells; }
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
    // taken away): cells left empty for a combination that now has a tile
    // get it, as one step to undo. True when a cell changed.
    bool set_terrain(const Terrain_Set& set);
    // The set as a map file keeps it, placed without history; the corners of
    // cells holding tiles of the set take those tiles' terrains.
    void place_terrain(const Terrain_Set& set);

    // The cells of another map, where they fit, placed without history; the
    // number of placed cells that did not fit.
    int take_cells(const Tile_Map& other);
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
    void set_cell(int cell, int tile, int turn);
    void count_edit();

    void set_corner(int corner, int terrain);

    Tile_Map cells;
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
