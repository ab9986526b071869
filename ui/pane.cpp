#include "ui/pane.h"

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/image_pool.h"
#include "platform/text_writer.h"
#include "ui/ui_style.h"

Pane::Pane(const Rectangle& area, const char* title) : Element(area) {
    set_size(area.width, area.height + header_height);
    set_title(title);
}

void Pane::update_layout() {
    client = area;
    client.x += inset_left;
    client.y += inset_top;
    client.width -= inset_left + inset_right;
    client.height -= inset_top + inset_bottom;
}

void Pane::set_title(const char* title) {
    header.reset();
    Main_Window& w = *g_main_window;
    const int width = w.writer(font_pane_header).measure(title);
    header.reset(w.pool().make_pane_header(w.renderer(), width, title));
}

void Pane::draw() {
    Main_Window& w = *g_main_window;
    if (header) header->draw_at(area.x, area.y);
    w.fill_rect(Rectangle{area.x, area.y + header_height, area.width, area.height - header_height},
                pane_body_color);
}

void Pane::draw_frame() const {
    const Rectangle r = get_area();
    Main_Window& w = *g_main_window;
    const int right = r.x + r.width - 1;
    const int bottom = r.y + r.height - 1;
    w.line(r.x, r.y, right, r.y, pane_frame_color);
    w.line(r.x, bottom, right, bottom, pane_frame_color);
    w.line(r.x, r.y, r.x, bottom, pane_frame_color);
    w.line(right, r.y, right, bottom, pane_frame_color);
}

void Pane::draw_frame_filled(Color c) const {
    const Rectangle r = get_area();
    Main_Window& w = *g_main_window;
    w.fill_rect(r, c);
    const int right = r.x + r.width - 1;
    const int bottom = r.y + r.height - 1;
    w.line(r.x, r.y, right, r.y, c);
    w.line(r.x, bottom, right, bottom, c);
    w.line(r.x, r.y, r.x, bottom, c);
    w.line(right, r.y, right, bottom, c);
}
