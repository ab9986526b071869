#include "app/map_files.h"

#include <SDL3/SDL.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "platform/image.h"
#include "model/core/safe_file.h"
#include "model/tileset/tileset.h"
#include "model/map/map_file.h"
#include "model/tile/sheet.h"
#include "ui/message_box.h"
#include "ui/ui_globals.h"

namespace {
std::string file_name(const std::string& path) { return std::filesystem::path(path).filename().string(); }
}  // namespace

void compose_sheet(const Tile_Store& store, Image& sheet) { sheet.put(sheet::compose(store)); }

namespace {
bool ask_to_replace(const std::string& path, bool foreign) {
    const std::string question =
        foreign ? "Replace the map file " + file_name(path) + "?\rIt holds a map this tileset did not read whole."
                : "Replace the map file " + file_name(path) +
                      "?\rAnother program changed it since this tileset read or wrote it.";
    return g_message_box->ask("Save map", question.c_str());
}
}  // namespace

bool save_map(Tileset& tileset) {
    Map_Editor& map = tileset.map();
    const std::string path = Map_File::map_path(tileset.path().full);
    const std::string sheet_path = Map_File::sheet_path(tileset.path().full);
    std::error_code error;
    const bool exists = std::filesystem::exists(std::filesystem::symlink_status(path, error));
    const bool own = map.own_file == path;
    // Nothing to keep, and no file of the user's is touched: a blank map
    // writes nothing, and no map file is ever removed.
    if (map.holds_nothing() && !own) {
        map.mark_saved();
        return true;
    }
    const bool changed_on_disk = own && exists && safe_file::stamp_of(path) != map.file_stamp;
    if (exists && (!own || changed_on_disk) && !ask_to_replace(path, !own)) return false;
    // What another program keeps in the file stays; only the tile layers are ours.
    const std::string source = exists ? Map_File::text_of(path) : std::string();
    const std::string sheet = file_name(sheet_path);
    const bool sheet_wanted = source.empty() || Map_File::uses_sheet(source, sheet);
    const Tile_Store& store = tileset.store();
    bool written = true;
    if (sheet_wanted) {
        Image image(16 * store.tile_width(), 16 * store.tile_height());
        compose_sheet(store, image);
        written = image.save_bmp(sheet_path, false);
    }
    const bool map_needed = !own || !map.is_saved() || changed_on_disk || !exists;
    std::vector<int> layer_ids;
    if (written && map_needed) {
        written = Map_File::write(map, store.tile_width(), store.tile_height(), path, source, &layer_ids);
        if (written) map.layers_filed(layer_ids);
    }
    if (!written) {
        const std::string text = "Could not save the map beside the tileset as " + file_name(path) + ".";
        g_message_box->show_message("Error", text.c_str());
        return false;
    }
    map.own_file = path;
    map.file_stamp = safe_file::stamp_of(path);
    map.mark_saved();
    return true;
}

void load_map(Tileset& tileset) {
    const std::string path = Map_File::map_path(tileset.path().full);
    const Tile_Store& store = tileset.store();
    const Map_File::Reading reading =
        Map_File::read(path, tileset.map(), store.tile_width(), store.tile_height(), store.tile_count());
    tileset.map().mark_saved();
    if (!reading.found) return;
    if (reading.whole) {
        tileset.map().own_file = path;
        tileset.map().file_stamp = safe_file::stamp_of(path);
        return;
    }
    // Kept as it is: saving asks before replacing it.
    const std::string text = "The map " + file_name(path) + " could not be read whole:\r" + reading.problems +
                              "\rThe file stays as it is until you agree to replace it.";
    g_message_box->show_message("Map", text.c_str());
}
