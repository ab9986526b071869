#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "model/selection/tile_selection.h"
#include "model/tileset/tileset.h"

// The open tilesets, one of them current. Once the first tileset is made, one
// is always open: closing the only one opens a fresh 24 x 24 "untitled" one.
class Tileset_List {
public:
    static constexpr int fresh_size = 24;
    static constexpr int last_untitled = 999;

    Tileset_List() = default;
    ~Tileset_List();
    Tileset_List(const Tileset_List&) = delete;
    Tileset_List& operator=(const Tileset_List&) = delete;

    // "untitled<n>.wst" with one blank tile, made current. Refused after
    // untitled999.wst, and for a zero width or height.
    bool new_tileset(uint32_t width, uint32_t height);
    // A tileset made elsewhere (a loaded file) joins the list and becomes current.
    Tileset& open(std::unique_ptr<Tileset> tileset);
    // Reads a tileset file into a new current tileset, left unnamed so that the
    // first "Save" asks for a name. False when the file is refused (the caller
    // shows the tileset file's load error); nothing changes then.
    bool open_file(const std::string& path);
    void make_current(Tileset& tileset);
    // A modified tileset is closed only when confirm_close says yes.
    bool close_current();
    bool any_modified() const;
    void destroy_all();

    Tileset* current() { return current_tileset; }
    int count() const { return static_cast<int>(tilesets.size()); }
    Tileset& at(int index) { return *tilesets[static_cast<size_t>(index)]; }
    int next_untitled_number() const { return untitled_counter; }
    // The selection and floating image of the tile being edited: one for all
    // open tilesets, since one tile is edited at a time; it follows that tile,
    // and a floating image may be carried from one tileset to another.
    Tile_Selection& selection() { return tile_selection; }
    const Tile_Selection& selection() const { return tile_selection; }

    // The "Close" question for a modified tileset; when none is connected the
    // question cannot be asked and the tileset stays open.
    std::function<bool()> confirm_close;
    // Receives the current tileset's display name whenever it may have changed.
    std::function<void(const std::string&)> set_window_title;
    // A tileset became current: the editor shows its current tile.
    std::function<void(Tileset&)> current_changed;
    // The tileset is about to be closed: nothing may show its tiles after this.
    std::function<void(Tileset&)> closing;
    bool holds(const Tileset* tileset) const {
        for (const auto& t : tilesets)
            if (t.get() == tileset) return true;
        return false;
    }

private:
    void refresh_title();
    void watch(Tileset& tileset);

    std::vector<std::unique_ptr<Tileset>> tilesets;
    Tileset* current_tileset = nullptr;
    int untitled_counter = 1;
    Tile_Selection tile_selection;
};
