#pragma once

class Editor;

// The commands on the current tileset and its tile: moving between tiles and
// pages of the strip, adding, inserting and deleting tiles (recorded with what
// they need to undo exactly), the map editor, arranging, undo and redo, the
// whole-tile transforms, the seam offsets and the view's zoom. Refusals are
// told to the user through the editor and record nothing.
class Tile_Commands {
public:
    explicit Tile_Commands(Editor& editor) : editor(editor) {}

    // The command's result as the dispatcher returns it; -1 for a command
    // that is not one of these.
    int execute(int command);
    // The seam buttons toggle: down scrolls the tile by half its size so its
    // edges meet in the middle; up scrolls it back.
    void switch_seam(bool horizontal);

private:
    int execute_on_tile(int command);

    Editor& editor;
};
