#pragma once

#include <memory>

#include "model/tileset/undo_target.h"

class Editor;
class TileListUndoNode;
class Tileset;
class Undo_Meter;

// The editor's side of undo: hands strokes and commands to the current
// tileset's history, gives that history the canvas's selection and floating
// area, carries its undo and redo commands back to the dispatch, and shows
// the history in the undo meter and the history viewer.
class Undo_Control : public Undo_Target {
public:
    static constexpr int meter_x = 28;
    static constexpr int meter_y = 250;

    explicit Undo_Control(Editor& editor);
    ~Undo_Control() override;

    // The state after a stroke or command joins the current tileset's
    // history; an image change marks the tileset modified.
    bool record(int command);
    bool record_if_inverse(int command);
    // A change of the tile list, recorded by the command that made it; the
    // tileset is marked modified. Returns the record's command.
    int record_list_change(std::unique_ptr<TileListUndoNode> record);
    // A floating image carried away to another tileset: the tileset it left
    // records its tile without it.
    void record_float_left(Tileset& from);
    // A floating image was put down on the tile the canvas shows because
    // that tile is being left: recorded on that tile, in its tileset.
    void record_put_down();
    bool undo();
    bool redo();
    void view();
    void draw_meter();
    // True while undo or redo runs a record's commands and applies it: the
    // record sets the tile, the selection and the floating image itself.
    bool replaying() const { return replay_depth > 0; }
    Undo_Meter& meter() { return *undo_meter; }

    const Tile* selection_mask() const override;
    bool has_selection() const override;
    const Tile* floating_area() const override;
    int floating_x() const override;
    int floating_y() const override;
    void run_command(int command) override;
    void tile_changed() override;
    void restore_selection(const Tile* mask) override;
    void restore_floating_area(const Tile* area, int x, int y) override;

private:
    Editor& editor;
    int replay_depth = 0;
    std::unique_ptr<Undo_Meter> undo_meter;
};
