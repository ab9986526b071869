#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "model/tile/tile_store.h"
#include "model/tile/tile_strip.h"
#include "model/tileset/tileset_navigation.h"
#include "model/tileset/undo_history.h"
#include "model/map/map_editor.h"

// The path of a document split once into its parts: the file name is what
// follows the last separator up to the first "." after it, the extension is
// everything after that ".".
struct File_Path {
    std::string full;
    std::string name;
    std::string extension;

    void set(const std::string& path);
};

// One open document: its path, flags and tiles.
class Tileset {
public:
    static constexpr int32_t maximum_tiles = 256;

    // Width and height must not be 0; the creators of tilesets refuse such
    // sizes. The store starts empty: tiles are added by the caller.
    Tileset(const std::string& path, uint32_t tile_width, uint32_t tile_height);
    // Takes over tiles that were already read, with the store's tile size.
    Tileset(const std::string& path, std::unique_ptr<Tile_Store> tiles);
    ~Tileset();
    Tileset(const Tileset&) = delete;
    Tileset& operator=(const Tileset&) = delete;

    Tile_Store& store() { return *tile_store; }
    const Tile_Store& store() const { return *tile_store; }
    Undo_History& history() { return undo_history; }
    const Undo_History& history() const { return undo_history; }
    Tile_Strip& strip() { return tile_strip; }
    const Tile_Strip& strip() const { return tile_strip; }
    // The map of this tileset's tiles; made again when the tile size changes.
    Map_Editor& map() { return *map_editor; }
    const Map_Editor& map() const { return *map_editor; }
    // None while no display has installed its maker.
    Tileset_Navigation* navigation() { return navigation_pane.get(); }
    const File_Path& path() const { return file_path; }
    // Changed since the last save or load, derived rather than kept: the
    // history's state is not the one saved (an undo back to it is no
    // change), the map differs from what was last read or written, or a
    // change the history does not hold was reported (set_modified).
    bool is_modified() const {
        return forced || undo_history.content_stamp() != saved_stamp || !map_editor->is_saved();
    }
    bool is_named() const { return named; }

    // A change the history does not hold. The window title follows.
    void set_modified();
    // Saved or loaded: the state shown is the file's. The title follows.
    void clear_modified();
    // After the history or the map changed: the title follows the mark.
    void refresh_modified();
    // A path chosen in the save dialog: the tileset is named from now on.
    void set_path(const std::string& path);
    // The file name, with "*" while modified.
    std::string display_name() const;

    // The map is made again for the new size with the cells that fit; the
    // number of placed cells left out is returned.
    int resize_tiles(uint32_t width, uint32_t height);
    std::string statistics_text() const;

    // Called whenever the display name changes; the open-tileset list connects
    // it to the window title.
    std::function<void()> name_changed;

private:
    void notify_name_changed();

    File_Path file_path;
    bool forced = false;
    uint64_t saved_stamp = 0;
    // The mark the title last showed.
    bool shown_modified = false;
    bool named = false;
    std::unique_ptr<Tile_Store> tile_store;
    // Emptied by resize_tiles.
    Undo_History undo_history;
    // The strip of 51 cells and the "Tileset navigation" pane that shows it;
    // the pane places the strip in the window.
    Tile_Strip tile_strip;
    std::unique_ptr<Tileset_Navigation> navigation_pane;
    // It watches the store's tile list, so its cells follow the tiles.
    std::unique_ptr<Map_Editor> map_editor;
    int make_map();
    // Joining as its own part is built, owned here:
    //   the title text object showing display_name().
};
