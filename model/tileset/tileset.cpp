#include "model/tileset/tileset.h"

#include <cstdio>

#include "model/tileset/tileset_file.h"

void File_Path::set(const std::string& path) {
    full = path;
    const size_t separator = path.find_last_of("/\\");
    const size_t start = separator == std::string::npos ? 0 : separator + 1;
    const size_t dot = path.find('.', start);
    if (dot == std::string::npos) {
        name = path.substr(start);
        extension.clear();
    } else {
        name = path.substr(start, dot - start);
        extension = path.substr(dot + 1);
    }
}

Tileset::Tileset(const std::string& path, uint32_t tile_width, uint32_t tile_height)
    : tile_store(std::make_unique<Tile_Store>(tile_width, tile_height, maximum_tiles)),
      tile_strip(*tile_store),
      navigation_pane(make_tileset_navigation(tile_strip)) {
    file_path.set(path);
    make_map();
    saved_stamp = undo_history.content_stamp();
}

Tileset::Tileset(const std::string& path, std::unique_ptr<Tile_Store> tiles)
    : tile_store(std::move(tiles)), tile_strip(*tile_store), navigation_pane(make_tileset_navigation(tile_strip)) {
    file_path.set(path);
    make_map();
    saved_stamp = undo_history.content_stamp();
}

Tileset::~Tileset() { tile_store->watch(nullptr); }

// A map made for a new tile size keeps the cells of the old one that fit.
// It still answers for the map file beside the tileset, unless cells were
// left out: then that file keeps them until the user agrees to replace it.
int Tileset::make_map() {
    std::unique_ptr<Map_Editor> old = std::move(map_editor);
    map_editor = std::make_unique<Map_Editor>(tile_store->tile_width(), tile_store->tile_height());
    int left_out = 0;
    if (old) {
        left_out = map_editor->take_layers(*old);
        // The tiles are the same tiles at another size: their terrains stay.
        map_editor->place_terrain(old->terrain());
        map_editor->in_preview = old->in_preview;
        if (left_out == 0) map_editor->own_file = old->own_file;
        map_editor->file_stamp = old->file_stamp;
    }
    tile_store->watch(map_editor.get());
    map_editor->saved_state_changed = [this] { refresh_modified(); };
    return left_out;
}

void Tileset::set_modified() {
    forced = true;
    refresh_modified();
}

void Tileset::clear_modified() {
    forced = false;
    saved_stamp = undo_history.content_stamp();
    shown_modified = is_modified();
    notify_name_changed();
}

void Tileset::refresh_modified() {
    if (is_modified() == shown_modified) return;
    shown_modified = is_modified();
    notify_name_changed();
}

void Tileset::set_path(const std::string& path) {
    file_path.set(path);
    named = true;
    notify_name_changed();
}

std::string Tileset::display_name() const { return is_modified() ? file_path.name + "*" : file_path.name; }

int Tileset::resize_tiles(uint32_t width, uint32_t height) {
    tile_store->resize(width, height);
    undo_history.clear();
    const int left_out = make_map();
    refresh_modified();
    return left_out;
}

std::string Tileset::statistics_text() const {
    // The full path comes last, so it is appended rather than formatted.
    static const char numbers[] =
        "Tile memory\r Tiles: %d x %d = %lu bytes\r Size: %d x %d pixels\r File size: %lu "
        "bytes\r\rFilename:\r";
    const unsigned long total = static_cast<unsigned long>(tile_store->total_bytes());
    char text[256];
    std::snprintf(text, sizeof text, numbers, tile_store->tile_count(),
                  static_cast<int>(tile_store->tile_bytes()), total,
                  static_cast<int>(tile_store->tile_width()),
                  static_cast<int>(tile_store->tile_height()), total + Tileset_File::header_size);
    return text + file_path.full;
}

void Tileset::notify_name_changed() {
    if (name_changed) name_changed();
}
