// Creating, loading, saving, exporting and closing tilesets.
#include <SDL3/SDL.h>

#include <memory>

#include "app/canvas_view.h"
#include "app/editor.h"
#include "app/file_dialog.h"
#include "app/globals.h"
#include "app/image.h"
#include "app/main_window.h"
#include "app/map_files.h"
#include "app/prompt_dialogs.h"
#include "document/tileset_file.h"
#include "ui/export_preview.h"
#include "ui/message_box.h"
#include "ui/options.h"
#include "ui/ui_globals.h"

void Editor::new_from_dialog() {
    const Prompt_Dialogs::New_Tileset answer = g_prompt_dialogs->new_tileset_dialog();
    if (!answer.confirmed) return;
    if (answer.mode == Prompt_Dialogs::mode_keep_and_resize) {
        if (!open.current()) return;
        open.current()->resize_tiles(uint32_t(answer.width), uint32_t(answer.height));
        show_current_tile();
    } else if (!open.new_tileset(uint32_t(answer.width), uint32_t(answer.height))) {
        return;
    }
    relayout();
}

void Editor::close_current() {
    if (open.close_current()) relayout();
}

void Editor::save(bool save_as) {
    Tileset* t = open.current();
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
    if (Tileset_File::write(t->store(), t->path().full) < 0) {
        g_message_box->show_message("Error", Tileset_File::save_error_text);
        return;
    }
    // The tileset is saved even when its map is not: the user was told.
    save_map(*t);
    t->clear_modified();
}

void Editor::load() {
    File_Path chosen = open.current() ? open.current()->path() : File_Path{};
    if (!choose_file(file_open_tileset, chosen)) return;
    if (!open.open_file(chosen.full)) {
        g_message_box->show_message("Error", Tileset_File::load_error_text);
        return;
    }
    load_map(*open.current());
    relayout();
}

// The sheet of the tiles, the same one the map beside a saved tileset uses.
void Editor::export_bmp() {
    Tileset* t = open.current();
    if (!t) return;
    const Tile_Store& store = t->store();
    Image sheet(16 * store.tile_width(), 16 * store.tile_height());
    compose_sheet(store, sheet);
    if (!show_export_preview(sheet)) return;
    File_Path chosen = t->path();
    if (!choose_file(file_save_bmp, chosen)) return;
    if (!SDL_SaveBMP(sheet.surface(), chosen.full.c_str())) g_message_box->note("Could not save the file.");
}
