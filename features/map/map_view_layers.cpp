// The map view's list of layers: choosing, showing and hiding, renaming in
// place. The buttons under the list are the view's own (push_button).
#include <algorithm>
#include <cstring>

#include "features/map/map_view.h"
#include "features/map/map_view_style.h"
#include "model/map/map_editor.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/text_writer.h"

using namespace map_view_style;

namespace {
constexpr int eye_size = 12;
constexpr size_t longest_name = 40;

// The character a key types into a layer's name, or 0.
char typed_char(const SDL_KeyboardEvent& key) {
    const bool shift = (key.mod & SDL_KMOD_SHIFT) != 0;
    const SDL_Keycode k = key.key;
    if (k >= SDLK_A && k <= SDLK_Z) return char((shift ? 'A' : 'a') + (k - SDLK_A));
    if (k >= SDLK_0 && k <= SDLK_9 && !shift) return char('0' + (k - SDLK_0));
    if (k == SDLK_SPACE) return ' ';
    if (k == SDLK_MINUS) return shift ? '_' : '-';
    if (k == SDLK_PERIOD && !shift) return '.';
    return 0;
}
}  // namespace

Rectangle Map_View::layer_row(int layer) const {
    const Rectangle c = chooser();
    const int from_top = editor.layer_count() - 1 - layer;
    return Rectangle{c.x + chooser_size + 12, c.y + layer_row_height * (1 + from_top), layer_column, layer_row_height};
}

Rectangle Map_View::layer_eye(int layer) const {
    const Rectangle r = layer_row(layer);
    return Rectangle{r.x + 4, r.y + (r.height - eye_size) / 2, eye_size, eye_size};
}

// A press on the list; false when it was elsewhere. A press anywhere ends a
// renaming, keeping the name typed.
bool Map_View::layer_press(float x, float y, Uint8 mouse_button, int clicks) {
    if (renaming >= 0) {
        editor.rename_layer(renaming, typed_name);
        renaming = -1;
    }
    for (int i = 0; i < editor.layer_count(); ++i) {
        if (!layer_row(i).contains(x, y)) continue;
        if (mouse_button != SDL_BUTTON_LEFT) return true;
        if (layer_eye(i).contains(x, y)) {
            editor.show_layer(i, !editor.layer(i).visible);
            return true;
        }
        editor.choose_layer(i);
        if (clicks >= 2) {
            renaming = i;
            typed_name = editor.layer(i).name;
            name_selected = true;
        }
        return true;
    }
    return false;
}

void Map_View::type_name(const SDL_KeyboardEvent& key) {
    if (key.key == SDLK_RETURN || key.key == SDLK_KP_ENTER) {
        editor.rename_layer(renaming, typed_name);
        renaming = -1;
    } else if (key.key == SDLK_ESCAPE) {
        renaming = -1;
    } else if (key.key == SDLK_BACKSPACE) {
        if (!typed_name.empty()) typed_name.pop_back();
        name_selected = false;
    } else if (const char c = typed_char(key); c && (name_selected || typed_name.size() < longest_name)) {
        if (name_selected) typed_name.clear();
        name_selected = false;
        typed_name += c;
    }
}

void Map_View::draw_layers() {
    Main_Window& w = *g_main_window;
    Text_Writer& t = w.writer(font_regular);
    const Rectangle first = layer_row(editor.layer_count() - 1);
    t.write_at(first.x, first.y - layer_row_height + (layer_row_height - t.line_height()) / 2, "Layers");
    char name[64];
    for (int i = 0; i < editor.layer_count(); ++i) {
        const Rectangle r = layer_row(i);
        if (i == editor.current_layer()) {
            w.fill_opaque(r, pressed_face);
            w.frame(r, chosen_color);
        }
        const Rectangle eye = layer_eye(i);
        // A ticked box for a shown layer.
        w.fill_opaque(eye, box_face);
        w.frame(eye, mark_frame);
        if (editor.layer(i).visible)
            w.fill_opaque(Rectangle{eye.x + 3, eye.y + 3, eye.width - 6, eye.height - 6}, mark_frame);
        // The name as much as fits; while typed, its end and a cursor.
        const bool typing = i == renaming;
        const std::string& shown = typing ? typed_name : editor.layer(i).name;
        const int room = r.x + r.width - (eye.x + eye.width + 6) - 4;
        size_t from = 0;
        size_t length = std::min(shown.size(), sizeof name - 2);
        auto fill = [&] {
            std::memcpy(name, shown.data() + from, length);
            name[length] = typing ? '_' : '\0';
            name[length + 1] = '\0';
        };
        for (fill(); length > 0 && t.measure(name) > room; fill()) typing ? ++from, --length : --length;
        if (typing) w.frame(r, hover_color);
        if (typing && name_selected)
            w.fill_opaque(Rectangle{eye.x + eye.width + 5, r.y + 3, std::min(t.measure(name), room) + 2, r.height - 6},
                          chosen_color);
        t.write_at(eye.x + eye.width + 6, r.y + (r.height - t.line_height()) / 2, name);
    }
}
