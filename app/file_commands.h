#pragma once

class Editor;

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
    // The sheet of the tiles, shown first in the export preview.
    void export_sheet();

private:
    Editor& editor;
};
