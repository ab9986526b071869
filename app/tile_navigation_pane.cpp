#include "app/tile_navigation_pane.h"

#include <cstdio>

#include "model/core/commands.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/sprites.h"
#include "platform/ui_colors.h"
#include "model/tile/tile_store.h"
#include "model/tile/tile_strip.h"

namespace {
// The buttons in the order the sheet draws them side by side, the current
// tile's number in the middle.
struct Button_Look {
    int x;
    int width;
    int up;
    int down;
    int grey;
    int command;
};
constexpr Button_Look looks[Tile_Navigation_Pane::button_count] = {
    {0, 24, sprite_rewind_depressed, sprite_rewind_pressed, sprite_rewind_grey, command_rewind_strip},
    {24, 24, sprite_strip_prev_depressed, sprite_strip_prev_pressed, sprite_strip_prev_grey,
     command_previous_tile_strip},
    {48, 24, sprite_prev_tile_depressed, sprite_prev_tile_pressed, sprite_prev_tile_grey, command_previous_tile},
    {72, 42, sprite_current_tile_id, sprite_current_tile_id, sprite_current_tile_id, no_command},
    {114, 24, sprite_next_tile_depressed, sprite_next_tile_pressed, sprite_next_tile_grey, command_next_tile},
    {138, 24, sprite_strip_next_depressed, sprite_strip_next_pressed, sprite_strip_next_grey,
     command_next_tile_strip},
    {162, 24, sprite_strip_forward_depressed, sprite_strip_forward_pressed, sprite_forward_grey,
     command_forward_strip},
};
constexpr int button_height = 23;
// Empty cells read as slots, darker than the window around them.
constexpr Color empty_cell_color = ui_colors[ui_grey_101];
constexpr Color strip_frame_color = ui_colors[ui_dark_grey];
}  // namespace

Tile_Navigation_Pane::Tile_Navigation_Pane(Tile_Strip& strip) : Pane(pane_area, "Tileset navigation"), strip(strip) {
    strip.set_position(strip_x, int(g_main_window->height()) - strip_bottom_gap);
}

std::unique_ptr<Tileset_Navigation> make_tile_navigation_pane(Tile_Strip& strip) {
    return std::make_unique<Tile_Navigation_Pane>(strip);
}

Rectangle Tile_Navigation_Pane::button_area(int button) const {
    return Rectangle{client.x + looks[button].x, client.y, looks[button].width, button_height};
}

int Tile_Navigation_Pane::button_at(int x, int y) const {
    for (int b = 0; b < button_count; ++b)
        if (button_area(b).contains(x, y)) return b;
    return -1;
}

int Tile_Navigation_Pane::command_of(int button) { return looks[button].command; }

bool Tile_Navigation_Pane::can_act(int button) const {
    const Tile_Store& store = strip.store();
    const int current = store.current_index();
    const bool at_first = current == 0;
    const bool at_last = store.is_last() || store.tile_count() == 0;
    switch (looks[button].command) {
        case command_rewind_strip: return !at_first || strip.first() > 0;
        case command_previous_tile_strip: return strip.can_page_back();
        case command_previous_tile: return !at_first;
        case command_next_tile: return !at_last;
        case command_next_tile_strip: return strip.can_page_forward();
        case command_forward_strip: return !at_last || !strip.is_shown(current);
        default: return true;
    }
}

// A cell selects its tile; a button gives its command. Presses that are
// taken but change nothing end as "Change tile", which runs and records
// nothing: the current cell, a grey button and the number box, which scrolls
// the strip back to the current tile.
int Tile_Navigation_Pane::press(int x, int y, bool left) {
    const int button = button_at(x, y);
    if (button >= 0) {
        if (!left) return command_change_tile;
        if (button == id_box) {
            strip.make_current_visible();
            return command_change_tile;
        }
        if (!can_act(button)) return command_change_tile;
        pressed = button;
        return looks[button].command;
    }
    const int index = strip.tile_at(x, y);
    if (index < 0 || !left) return no_command;
    Tile_Store& store = strip.store();
    if (index == store.current_index()) return command_change_tile;
    store.go_to(index);
    return command_select_tile;
}

void Tile_Navigation_Pane::hover(int x, int y) { hovered = strip.tile_at(x, y); }

void Tile_Navigation_Pane::draw() {
    Pane::draw();
    draw_buttons();
    draw_strip();
}

void Tile_Navigation_Pane::draw_buttons() {
    Main_Window& w = *g_main_window;
    for (int b = 0; b < button_count; ++b) {
        const Rectangle r = button_area(b);
        const Button_Look& look = looks[b];
        // A button that has just done its work stays pressed until the release.
        const int id = b == pressed ? look.down : !can_act(b) ? look.grey : look.up;
        w.sprite(id, r.x, r.y);
        if (b == id_box) draw_current_id(r.x, r.y);
    }
}

void Tile_Navigation_Pane::draw_current_id(int x, int y) {
    Main_Window& w = *g_main_window;
    char number[16];
    std::snprintf(number, sizeof number, "%d", strip.store().current_index());
    const int width = w.text_width(number);
    w.text(x + (looks[id_box].width - width) / 2, y + (button_height - w.line_height()) / 2, number);
}

// Walks the list once from first instead of looking each tile up by index.
void Tile_Navigation_Pane::draw_strip() {
    Main_Window& w = *g_main_window;
    const Rectangle& a = strip.area();
    w.frame(Rectangle{a.x - 1, a.y - 1, a.width + 2, a.height + 2}, strip_frame_color);
    w.fill_rect(a, empty_cell_color);
    const Tile_Store& store = strip.store();
    const Tile_Store::Tiles& tiles = store.all();
    const int first = strip.first();
    if (first < 0 || first >= store.tile_count()) return;
    auto it = tiles.begin();
    std::advance(it, first);
    for (int cell = 0; cell < strip.cell_count() && it != tiles.end(); ++cell, ++it) {
        Tile_Texture* texture = (*it)->texture();
        if (texture) texture->draw_scaled(a.x + cell * Tile_Strip::cell_size, a.y, Tile_Strip::cell_size,
                                          Tile_Strip::cell_size);
    }
    const int current = store.current_index();
    if (hovered >= 0 && hovered != current && strip.is_shown(hovered))
        w.sprite(sprite_second_marker, strip.cell_x(hovered), a.y);
    if (strip.is_shown(current)) w.sprite(sprite_first_marker, strip.cell_x(current), a.y);
}
