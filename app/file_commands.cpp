#include "app/file_commands.h"

#include <SDL3/SDL.h>

#include <filesystem>
#include <memory>
#include <system_error>
#include <string>

#include "app/batch.h"
#include "app/canvas_view.h"
#include "app/command_line.h"
#include "app/editor.h"
#include "app/file_dialog.h"
#include "platform/globals.h"
#include "platform/image.h"
#include "platform/main_window.h"
#include "app/map_files.h"
#include "app/prompt_dialogs.h"
#include "model/core/commands.h"
#include "model/tileset/tileset_file.h"
#include "features/viewers/export_preview.h"
#include "ui/message_box.h"
#include "ui/options.h"
#include "ui/ui_globals.h"

void File_Commands::new_tileset() {
    const Prompt_Dialogs::New_Tileset answer = g_prompt_dialogs->new_tileset_dialog();
    if (!answer.confirmed) return;
    if (answer.mode == Prompt_Dialogs::mode_keep_and_resize) {
        if (!editor.tilesets().current()) return;
        Tileset& t = *editor.tilesets().current();
        const int left_out = t.resize_tiles(uint32_t(answer.width), uint32_t(answer.height));
        editor.show_current_tile();
        if (left_out > 0) {
            const Tile_Map& map = t.map().map();
            const std::string text = "The map now has " + std::to_string(map.columns()) + " x " +
                                     std::to_string(map.rows()) + " cells for the new tile size; " +
                                     std::to_string(left_out) +
                                     " placed cells beyond them were left out.\rThe map file keeps them until you "
                                     "agree to replace it.";
            g_message_box->note(text.c_str());
        }
    } else if (!editor.tilesets().new_tileset(uint32_t(answer.width), uint32_t(answer.height))) {
        return;
    }
    editor.relayout();
}

void File_Commands::close_current() {
    if (editor.tilesets().close_current()) editor.relayout();
}

void File_Commands::save(bool save_as) {
    Tileset* t = editor.tilesets().current();
    if (!t) return;
    if (save_as || !t->is_named()) {
        File_Path chosen = t->path();
        if (!choose_file(file_save_tileset, chosen)) return;
        t->set_path(chosen.full);
    } else {
        if (!t->is_modified()) return;
        if (g_options && g_options->is_on(Options::confirm_quick_save) &&
            !g_message_box->ask("Save", "Save over existing file?"))
            return;
    }
    // What the user sees is saved: a floating image is put down into the
    // saved copy of its tile (the tile itself keeps it floating).
    const std::unique_ptr<Tile> shown = editor.canvas().tile_as_shown();
    if (Tileset_File::write(t->store(), t->path().full, shown.get()) < 0) {
        g_message_box->show_message("Error", Tileset_File::save_error_text);
        return;
    }
    // The tileset file is written even when its map is not (the user was told
    // or said no); the map's edits keep the tileset marked modified then.
    if (save_map(*t)) t->clear_modified();
}

void File_Commands::load() {
    File_Path chosen = editor.tilesets().current() ? editor.tilesets().current()->path() : File_Path{};
    if (!choose_file(file_open_tileset, chosen)) return;
    open_file(chosen.full);
}

void File_Commands::open_file(const std::string& path) {
    // A second copy would be saved over the first: its tab is shown instead.
    std::error_code error;
    for (int i = 0; i < editor.tilesets().count(); ++i)
        if (std::filesystem::equivalent(editor.tilesets().at(i).path().full, path, error)) {
            editor.tilesets().make_current(editor.tilesets().at(i));
            editor.relayout();
            return;
        }
    if (!editor.tilesets().open_file(path)) {
        g_message_box->show_message("Error", Tileset_File::load_error_text);
        return;
    }
    load_map(*editor.tilesets().current());
    editor.relayout();
}

void File_Commands::open_sheet(const std::string& path, int tile_width, int tile_height) {
    std::string why;
    int left_out = 0;
    std::unique_ptr<Tile_Store> tiles = tiles_of_sheet(path, tile_width, tile_height, why, left_out);
    if (!tiles) {
        const std::string text = "The sheet could not be opened as tiles:\r" + why;
        g_message_box->show_message("Error", text.c_str());
        return;
    }
    // Named after the sheet, so the tab and the title say where it came from.
    const std::string named = std::filesystem::path(path).replace_extension(".wst").string();
    auto tileset = std::make_unique<Tileset>(named, std::move(tiles));
    tileset->history().record_if_inverse(command_select_tile, tileset->store(), nullptr);
    editor.tilesets().open(std::move(tileset));
    editor.relayout();
    if (left_out > 0) {
        const std::string text = "The sheet holds more than 256 tiles: the " + std::to_string(left_out) +
                                 " after the 256th were left out.";
        g_message_box->note(text.c_str());
    }
}

void File_Commands::open_given(const Command_Line& given) {
    Tileset_List& open = editor.tilesets();
    Tileset* fresh = open.count() == 1 ? open.current() : nullptr;
    for (const std::string& path : given.tilesets) open_file(path);
    if (!given.sheet.empty()) open_sheet(given.sheet, given.tile_width, given.tile_height);
    if (!fresh || open.count() < 2 || fresh->is_modified()) return;
    Tileset* shown = open.current();
    open.make_current(*fresh);
    open.close_current();
    if (shown != fresh) open.make_current(*shown);
    editor.relayout();
}

// The sheet of the tiles, the same one the map beside a saved tileset uses.
void File_Commands::export_sheet() {
    Tileset* t = editor.tilesets().current();
    if (!t) return;
    const Tile_Store& store = t->store();
    Image sheet(16 * store.tile_width(), 16 * store.tile_height());
    compose_sheet(store, sheet);
    if (!show_export_preview(sheet)) return;
    File_Path chosen = t->path();
    if (!choose_file(file_save_bmp, chosen)) return;
    if (!sheet.save_bmp(chosen.full, true)) g_message_box->note("Could not save the file.");
}
