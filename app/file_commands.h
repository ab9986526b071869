#pragma once

#include <string>

class Editor;
struct Command_Line;

// Creating, loading, saving, exporting and closing tilesets. Save writes what
// the user sees (a floating image put down into the saved copy) and the map
// beside the tileset; Load shows the tab of a file that is open already.
class File_Commands {
public:
    explicit File_Commands(Editor& editor) : editor(editor) {}

    // The "New tileset" dialog: a new tileset, or the current one resized.
    void new_tileset();
    void close_current();
    void save(bool save_as);
    void load();
    // A tileset file opened as Load opens it (same messages, same refusals);
    // the tab of a file that is open already is shown instead.
    void open_file(const std::string& path);
    // A PNG or BMP sheet cut into tiles as a new tileset, unnamed so that Save
    // asks for a name; a refusal is told in a message.
    void open_sheet(const std::string& path, int tile_width, int tile_height);
    // The files named on the command line; the untouched tileset the editor
    // starts with is closed when any of them opened.
    void open_given(const Command_Line& given);
    // The sheet of the tiles, shown first in the export preview.
    void export_sheet();

private:
    Editor& editor;
};
