#include "model/tileset/tileset_list.h"

#include <algorithm>

#include "model/core/commands.h"
#include "model/tileset/tileset_file.h"

Tileset_List::~Tileset_List() { destroy_all(); }

bool Tileset_List::new_tileset(uint32_t width, uint32_t height) {
    if (untitled_counter > last_untitled || width == 0 || height == 0) return false;
    const std::string path = "untitled" + std::to_string(untitled_counter) + ".wst";
    auto tileset = std::make_unique<Tileset>(path, width, height);
    tileset->store().add_tile();
    tileset->history().start(tileset->store());
    open(std::move(tileset));
    ++untitled_counter;
    return true;
}

Tileset& Tileset_List::open(std::unique_ptr<Tileset> tileset) {
    Tileset& added = *tileset;
    watch(added);
    tilesets.push_back(std::move(tileset));
    make_current(added);
    return added;
}

bool Tileset_List::open_file(const std::string& path) {
    std::unique_ptr<Tile_Store> tiles = Tileset_File::read(path);
    if (!tiles) return false;
    auto tileset = std::make_unique<Tileset>(path, std::move(tiles));
    // A loaded tileset's first record is the one a click on its first tile makes.
    tileset->history().record_if_inverse(command_select_tile, tileset->store(), nullptr);
    open(std::move(tileset));
    return true;
}

// Each tileset keeps its current tile: coming back to a tab shows the tile
// left there (a floating image carried along lands where the user sees it).
void Tileset_List::make_current(Tileset& tileset) {
    current_tileset = &tileset;
    refresh_title();
    if (current_changed) current_changed(tileset);
}

bool Tileset_List::close_current() {
    if (!current_tileset) return false;
    if (current_tileset->is_modified() && !(confirm_close && confirm_close())) return false;
    if (tilesets.size() < 2) {
        // Without a name left for the fresh tileset the last one stays open.
        if (untitled_counter > last_untitled) return false;
        if (closing) closing(*current_tileset);
        destroy_all();
        return new_tileset(fresh_size, fresh_size);
    }
    auto it = std::find_if(tilesets.begin(), tilesets.end(),
                           [this](const auto& t) { return t.get() == current_tileset; });
    if (closing) closing(*current_tileset);
    it = tilesets.erase(it);
    if (it == tilesets.end()) --it;
    make_current(**it);
    return true;
}

bool Tileset_List::any_modified() const {
    return std::any_of(tilesets.begin(), tilesets.end(),
                       [](const auto& t) { return t->is_modified(); });
}

void Tileset_List::destroy_all() {
    current_tileset = nullptr;
    tilesets.clear();
}

void Tileset_List::refresh_title() {
    if (set_window_title && current_tileset) set_window_title(current_tileset->display_name());
}

void Tileset_List::watch(Tileset& tileset) {
    tileset.name_changed = [this] { refresh_title(); };
}
