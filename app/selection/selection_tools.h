#pragma once

#include <memory>

#include "model/paint/distance_grid.h"
#include "model/paint/footprint.h"
#include "model/selection/copy_buffer.h"
#include "app/selection/selection_strokes.h"

class Editor;
class Canvas_View;
class Tile_Selection;
class Tile;

// The selection on the canvas: the selector, move, scroll and rotate strokes
// (registered with the editor under their canvas actions), the commands that
// work on the selection and the copy buffer, and the rules for when a
// floating image is put down. The copy buffer lives here, with the editor,
// so it outlives every tileset.
class Selection_Tools {
public:
    // "Mode" of the selection page.
    enum Mode : int { standard = 0, persistent = 1, fixed = 2 };

    explicit Selection_Tools(Editor& editor);
    ~Selection_Tools();
    Selection_Tools(const Selection_Tools&) = delete;
    Selection_Tools& operator=(const Selection_Tools&) = delete;

    // Deselect, Invert selection, Fill, Clear, Copy, Cut, Paste, Clone and
    // Anti-alias: the command when it did something, else -1 (a refusal says
    // why in a note and records nothing).
    static bool handles(int command);
    int execute(int command);

    // The selected pixels as an image (the floating image when one is
    // pending): what Copy puts in the buffer. None when nothing is selected.
    std::unique_ptr<Tile> selection_image() const;

    Copy_Buffer& buffer() { return copies; }
    Canvas_View& canvas();
    // The document's selection and floating image, which the canvas shows.
    Tile_Selection& marks();
    Editor& owner() { return editor; }
    int mode() const;

    // A pending floating image becomes part of the tile.
    void put_down();
    // Leaving "Work selection" and showing another tile put the floating
    // image down, unless the mode keeps it floating. Nothing is put down
    // while undo or redo replays its commands: the record sets the state.
    void leaving_work_selection();
    void tile_changing();

    // The selection's pixels become the floating image at their place,
    // lifted out of the tile or copied; the selection is dropped. False when
    // nothing is selected.
    bool float_selection(bool lift);

    Distance_Grid grid;
    Footprint footprint;

private:
    int refuse(const char* why);
    int record(int command);
    int deselect();
    int fill(bool transparent);
    int copy();
    int cut();
    int paste();
    int clone();
    int smooth();

    Editor& editor;
    Copy_Buffer copies;
    Shape_Select_Stroke rectangle{*this, false};
    Shape_Select_Stroke ellipse{*this, true};
    Brush_Select_Stroke brush{*this};
    Wand_Stroke wand{*this};
    Work_Stroke work{*this};
    Scroll_Stroke scroll{*this};
    Rotate_Stroke rotate{*this};
};

