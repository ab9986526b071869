#include "features/color/adjust_items.h"

#include <algorithm>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "model/paint/adjust.h"
#include "platform/text_writer.h"
#include "ui/textlist_dialog_item.h"
#include "ui/ui_style.h"

namespace {
constexpr int track_length = 257;
}

Adjust_Slider_Item::Adjust_Slider_Item(uint32_t id, const Textlist_Dialog_Item& mode_item, int mode, int position)
    : Dialog_Item(id, no_id), modes(mode_item), shown_mode(mode), position(adjust::clamp_position(mode, position)) {
    area.width = track_length + 2;
    area.height = 15;
}

void Adjust_Slider_Item::sync() {
    const int m = std::clamp(int(modes.choice.value), 0, adjust::mode_count - 1);
    if (m == shown_mode) return;
    shown_mode = m;
    position = adjust::position_of(m, adjust::neutral_amount(m));
}

int Adjust_Slider_Item::amount() const { return adjust::amount_of(shown_mode, position); }

Dialog_Event Adjust_Slider_Item::hit(int x, int y) {
    if (!area.contains(x, y)) return Dialog_Event{};
    sync();
    position = adjust::clamp_position(shown_mode, x - area.x - 1);
    return Dialog_Event{item_self, -1};
}

void Adjust_Slider_Item::receive(int32_t type) {
    sync();
    if (type == item_increase) position = adjust::clamp_position(shown_mode, position + 1);
    if (type == item_decrease) position = adjust::clamp_position(shown_mode, position - 1);
}

void Adjust_Slider_Item::draw() {
    sync();
    Main_Window& w = *g_main_window;
    const int scale = adjust::modes[shown_mode].scale;
    w.fill_rect(Rectangle{area.x + 1, area.y + 6, scale + 1, 3}, pane_frame_color);
    w.frame(Rectangle{area.x, area.y + 5, scale + 3, 5}, pane_frame_color);
    w.bevel_fill(Rectangle{area.x + 1 + position - 2, area.y, 5, area.height}, button_face_color);
}

Adjust_Label_Item::Adjust_Label_Item(Adjust_Slider_Item& slider) : Dialog_Item(no_id, no_id), slider(slider) {
    area.width = writer->measure("Compensated lighten (-255/255.000)  ");
    area.height = writer->line_height();
}

void Adjust_Label_Item::draw() {
    slider.sync();
    adjust::slider_label(slider.mode(), slider.get_value(), text, int(sizeof text));
    writer->write_at(area.x, area.y, text);
}

Adjust_Preview_Item::Adjust_Preview_Item(const Tile& source, Adjust_Slider_Item& slider)
    : Dialog_Item(no_id, no_id), source(source), slider(slider),
      preview(std::make_unique<Tile>(source.width(), source.height())) {
    area.width = box;
    area.height = box;
}

// The preview is worked out again only when the mode or amount changed.
void Adjust_Preview_Item::draw() {
    slider.sync();
    if (slider.mode() != made_mode || slider.amount() != made_amount) {
        made_mode = slider.mode();
        made_amount = slider.amount();
        std::copy(source.pixels(), source.pixels() + source.pixel_count(), preview->pixels());
        adjust::apply_to_tile(*preview, made_mode, made_amount);
        preview->update_texture();
    }
    const int longest = std::max(source.width(), source.height());
    const int scale = longest > 0 ? std::max(1, box / longest) : 1;
    const int w = source.width() * scale;
    const int h = source.height() * scale;
    g_main_window->fill_rect(area, ui_colors[ui_grey_169]);
    if (Tile_Texture* t = preview->texture()) t->draw_scaled(area.x + (box - w) / 2, area.y + (box - h) / 2, w, h);
}
