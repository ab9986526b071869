#include "color/brush_selector.h"

#include "app/globals.h"
#include "app/main_window.h"
#include "app/ui_colors.h"

namespace {
constexpr Color light_grey(200, 200, 200);
constexpr Color white(255, 255, 255);

// The brushes are white and light grey, so the buttons have dark faces to
// show them on the light pane bodies; the current one is darker and sunken.
void draw_button(const Rectangle& r, bool on) {
    Main_Window& w = *g_main_window;
    w.fill_rect(r, on ? ui_colors[4] : ui_colors[9]);
    w.bevel(r, light_grey, on);
}
}  // namespace

Brush_Selector::Brush_Selector()
    : shapes(std::make_unique<Pane>(Rectangle{0, 0, 202, 26}, "Shape")),
      sizes(std::make_unique<Pane>(Rectangle{0, 0, 202, 26}, "Size")) {
    recolor();
}

Brush_Selector::~Brush_Selector() = default;

void Brush_Selector::set_brush(int shape, int size) {
    if (shape < 0 || shape >= Built_In_Brushes::shape_count || size < 1 || size > Built_In_Brushes::size_count)
        return;
    current_shape = shape;
    size_index = size - 1;
    recolor();
}

void Brush_Selector::set_color(Color c, int brush_mode) {
    tint = c;
    tint_mode = brush_mode;
    recolor();
}

void Brush_Selector::recolor() {
    const Brush& b = current();
    tinted = std::make_unique<Tile>(b.size(), b.size());
    for (int y = 0; y < b.size(); ++y)
        for (int x = 0; x < b.size(); ++x)
            tinted->set_pixel(x, y, b.is_set(x, y) && tint_mode != 6 ? tint : b.get_pixel(x, y));
    tinted->update_texture();
}

int Brush_Selector::place(int x, int y) {
    shapes->set_position(x, y);
    const Rectangle s = shapes->outer_area();
    sizes->set_position(x, s.y + s.height + pane_gap);
    const Rectangle z = sizes->outer_area();
    return z.y + z.height + pane_gap;
}

Rectangle Brush_Selector::shape_button(int shape) const {
    const Rectangle c = shapes->client_area();
    return Rectangle{c.x - 1 + shape * button_size, c.y - 1, button_size, button_size};
}

Rectangle Brush_Selector::size_button(int size) const {
    const Rectangle c = sizes->client_area();
    return Rectangle{c.x - 1 + (size - 1) * button_size, c.y - 1, button_size, button_size};
}

void Brush_Selector::draw_brush(const Brush& b, int left, int top, Color c) {
    Main_Window& w = *g_main_window;
    for (int y = 0; y < b.size(); ++y)
        for (int x = 0; x < b.size(); ++x)
            if (b.is_set(x, y)) w.fill_rect(Rectangle{left + 2 * x, top + 2 * y, 2, 2}, c);
}

void Brush_Selector::draw() {
    shapes->draw();
    for (int s = 0; s < Built_In_Brushes::shape_count; ++s) {
        const Rectangle r = shape_button(s);
        const bool on = s == current_shape;
        draw_button(r, on);
        draw_brush(brushes.get(s, 6), r.x + 3, r.y + 3, on ? white : light_grey);
    }
    sizes->draw();
    for (int k = 1; k <= Built_In_Brushes::size_count; ++k) {
        const Rectangle r = size_button(k);
        const bool on = k == size();
        const int o = 7 - k;
        draw_button(r, on);
        draw_brush(brushes.get(current_shape, k), r.x + o + 2, r.y + o + 2, on ? white : light_grey);
    }
}

bool Brush_Selector::click_shape(int x, int y) {
    for (int s = 0; s < Built_In_Brushes::shape_count; ++s) {
        if (!shape_button(s).contains(x, y)) continue;
        set_brush(s, size());
        return true;
    }
    return false;
}

bool Brush_Selector::click_size(int x, int y) {
    for (int k = 1; k <= Built_In_Brushes::size_count; ++k) {
        if (!size_button(k).contains(x, y)) continue;
        set_brush(current_shape, k);
        return true;
    }
    return false;
}
