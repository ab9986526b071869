#include "ui/button_dialog_item.h"

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/sprites.h"
#include "platform/image_pool.h"
#include "platform/text_writer.h"
#include "ui/ui_style.h"

// The unequal widths of the text buttons are deliberate.
const Button_Record button_table[button_kind_count] = {
    {"Ok", -1, 60, 27, item_accept},
    {"Cancel", -1, 85, 27, item_cancel},
    {"Less", sprite_button_less, 0, 0, item_decrease},
    {"More", sprite_button_more, 0, 0, item_increase},
    {"Radio uncheck", sprite_radiobutton_uncheck, 0, 0, item_radio},
    {"Radio check", sprite_radiobutton_check, 0, 0, item_radio},
    {"Red", sprite_handlebutton_r, 0, 0, item_unknown},
    {"Green", sprite_handlebutton_g, 0, 0, item_unknown},
    {"Blue", sprite_handlebutton_b, 0, 0, item_unknown},
    {"Alpha", sprite_handlebutton_a, 0, 0, item_unknown},
    {"Saturation", sprite_handlebutton_s, 0, 0, item_unknown},
    {"Lightness", sprite_handlebutton_l, 0, 0, item_unknown},
    {"Middle", sprite_button_middle, 0, 0, item_middle},
    {"Left", -1, 70, 27, item_left},
    {"Right", -1, 85, 27, item_right},
};

namespace {
bool is_text_button(int32_t kind) {
    return kind == button_ok || kind == button_cancel || kind == button_left || kind == button_right;
}
}  // namespace

Button_Dialog_Item::Button_Dialog_Item(uint32_t id, uint32_t host, int32_t kind)
    : Dialog_Item(id, host), kind(kind) {
    const Button_Record& r = record();
    if (r.sprite >= 0) {
        area.width = g_main_window->pool().sprite_width(r.sprite);
        area.height = g_main_window->pool().sprite_height(r.sprite);
    } else {
        area.width = r.width;
        area.height = r.height;
    }
}

Dialog_Event Button_Dialog_Item::hit(int x, int y) {
    if (!area.contains(x, y)) return Dialog_Event{};
    return Dialog_Event{record().type, int32_t(host)};
}

void Button_Dialog_Item::set_position(int x, int y) {
    area.x = x;
    area.y = is_text_button(kind) ? y : y + 2;
}

void Button_Dialog_Item::draw() {
    Main_Window& w = *g_main_window;
    const Button_Record& r = record();
    if (r.sprite >= 0) {
        w.sprite(r.sprite, area.x, area.y);
        return;
    }
    w.bevel_fill(area, button_face_color);
    const int text_x = area.x + (area.width - writer->measure(r.label)) / 2;
    const int text_y = area.y + (area.height - writer->line_height()) / 2;
    writer->write_at(text_x, text_y, r.label);
}

void Button_Dialog_Item::save(Token_Stream& stream) const { stream.write_number(kind); }

void Button_Dialog_Item::load(Token_Stream& stream) { stream.read_number(); }
