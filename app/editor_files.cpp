// Creating, loading, saving, exporting and closing tilesets.
#include <SDL3/SDL.h>

#include <memory>

#include "app/canvas_view.h"
#include "app/editor.h"
#include "app/file_dialog.h"
#include "app/globals.h"
#include "app/image.h"
#include "app/main_window.h"
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
    t->clear_modified();
}

void Editor::load() {
    File_Path chosen = open.current() ? open.current()->path() : File_Path{};
    if (!choose_file(file_open_tileset, chosen)) return;
    if (!open.open_file(chosen.full)) {
        g_message_box->show_message("Error", Tileset_File::load_error_text);
        return;
    }
    relayout();
}

// The tiles in order, 16 to a row, on a sheet of 16 x 16 tiles whatever their
// number; empty slots stay blank and tiles past the 256th are left out.
void Editor::export_bmp() {
    Tileset* t = open.current();
    if (!t) return;
    const Tile_Store& store = t->store();
    const int tw = int(store.tile_width());
    const int th = int(store.tile_height());
    Image sheet(uint32_t(16 * tw), uint32_t(16 * th));
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
    if (!show_export_preview(sheet)) return;
    File_Path chosen = t->path();
    if (!choose_file(file_save_bmp, chosen)) return;
    if (!SDL_SaveBMP(sheet.surface(), chosen.full.c_str())) g_message_box->note("Could not save the file.");
}
