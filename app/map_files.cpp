#include "app/map_files.h"

#include <SDL3/SDL.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "app/image.h"
#include "document/tileset.h"
#include "mapeditor/map_file.h"
#include "ui/message_box.h"
#include "ui/ui_globals.h"

namespace {
std::string file_name(const std::string& path) { return std::filesystem::path(path).filename().string(); }
}  // namespace

void compose_sheet(const Tile_Store& store, Image& sheet) {
    const int tw = int(store.tile_width());
    const int th = int(store.tile_height());
    sheet.fill(Rectangle{0, 0, 16 * tw, 16 * th}, Image::Rgba{0, 0, 0, 255});
    int index = 0;
    for (const auto& tile : store.all()) {
        if (index >= 256) break;
        const int ox = (index % 16) * tw;
        const int oy = (index / 16) * th;
        for (int y = 0; y < th; ++y)
            for (int x = 0; x < tw; ++x) {
                const Color c = tile->get_pixel(x, y);
                sheet.set_pixel(ox + x, oy + y, Image::Rgba{c.red, c.green, c.blue, c.alpha});
            }
        ++index;
    }
}

bool save_map(Tileset& tileset) {
    Map_Editor& map = tileset.map();
    const std::string path = Map_File::map_path(tileset.path().full);
    std::error_code error;
    if (map.map().is_blank()) {
        // A map the user emptied must not come back from the file it was read
        // from or written to; any other file of that name is left alone.
        if (map.own_file == path) {
            std::filesystem::remove(path, error);
            map.own_file.clear();
        }
        return true;
    }
    if (map.own_file != path && std::filesystem::exists(path, error)) {
        const std::string question = "Replace the map file " + file_name(path) +
                                     "?\rIt holds a map this tileset did not read whole.";
        if (!g_message_box->ask("Save map", question.c_str())) return true;
    }
    const Tile_Store& store = tileset.store();
    Image sheet(16 * store.tile_width(), 16 * store.tile_height());
    compose_sheet(store, sheet);
    const std::string sheet_path = Map_File::sheet_path(tileset.path().full);
    if (!SDL_SaveBMP(sheet.surface(), sheet_path.c_str()) ||
        !Map_File::write(map.map(), store.tile_width(), store.tile_height(), path)) {
        const std::string text = "Could not save the map beside the tileset as " + file_name(path) + ".";
        g_message_box->show_message("Error", text.c_str());
        return false;
    }
    map.own_file = path;
    return true;
}

void load_map(Tileset& tileset) {
    const std::string path = Map_File::map_path(tileset.path().full);
    const Tile_Store& store = tileset.store();
    const Map_File::Reading reading =
        Map_File::read(path, tileset.map(), store.tile_width(), store.tile_height(), store.tile_count());
    if (!reading.found) return;
    if (reading.whole) {
        tileset.map().own_file = path;
        return;
    }
    // Kept as it is: saving asks before replacing it.
    const std::string text = "The map " + file_name(path) + " could not be read whole:\r" + reading.problems +
                              "\rThe file stays as it is until you agree to replace it.";
    g_message_box->show_message("Map", text.c_str());
}
