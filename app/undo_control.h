#pragma once

#include <memory>


class Editor;
class TileListUndoNode;
class Tile_Selection;
class Tileset;
class Undo_Meter;

// The editor's side of undo: hands strokes and commands to the current
// tileset's history with the document's selection and floating image, shows
// the state a record brings back on the canvas (choosing the tool that made a
// stroke), and shows the history in the undo meter and the history viewer.
class Undo_Control {
public:
    static constexpr int meter_x = 28;
    static constexpr int meter_y = 250;

    explicit Undo_Control(Editor& editor);
    ~Undo_Control();

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
    // True while undo or redo chooses a record's tool and applies it: the
    // record sets the tile, the selection and the floating image itself.
    bool replaying() const { return replay_depth > 0; }
    Undo_Meter& meter() { return *undo_meter; }

private:
    Tile_Selection& selection();
    // A stroke's record chooses the tool that made it again.
    void choose_tool_of(int command);
    // The canvas shows the tile the record went to; a floating image that came
    // back is ready to be moved again.
    void show_applied();

    Editor& editor;
    int replay_depth = 0;
    std::unique_ptr<Undo_Meter> undo_meter;
};
