#include "features/color/color_handles.h"

#include <algorithm>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "ui/drag_loop.h"
#include "platform/wait_for_key.h"

namespace {
constexpr int small_kinds[3] = {button_less, button_middle, button_more};
constexpr int gradient_width = 128;
}  // namespace

Color_Handles::Color_Handles(int x, int y) : Pane(Rectangle{x, y, 202, body_height}, "Handles") {
    for (int r = 0; r < Channel_Handles::row_count; ++r)
        handle_buttons[r] = std::make_unique<Button_Dialog_Item>(Dialog_Item::no_id, Dialog_Item::no_id, button_red + r);
    for (int i = 0; i < 3; ++i)
        small_buttons[i] = std::make_unique<Button_Dialog_Item>(Dialog_Item::no_id, Dialog_Item::no_id, small_kinds[i]);
    gradients.reset(Texture::from_pixels(g_main_window->renderer(), gradient_pixels, gradient_width,
                                         Channel_Handles::row_count * band));
    set_color(Color());
}

Color_Handles::~Color_Handles() = default;

void Color_Handles::set_color(Color c) {
    model.set(c);
    refresh_gradients();
}

// What each track would give along its length, the other channels kept.
void Color_Handles::refresh_gradients() {
    const Color c = model.color();
    for (int i = 0; i < gradient_width; ++i) {
        const uint8_t v = uint8_t(i * 255 / (gradient_width - 1));
        const double f = i / double(gradient_width - 1);
        Color* row = gradient_pixels + i;
        row[0 * gradient_width] = Color(v, c.green, c.blue);
        row[1 * gradient_width] = Color(c.red, v, c.blue);
        row[2 * gradient_width] = Color(c.red, c.green, v);
        row[3 * gradient_width] = Color(c.red, c.green, c.blue, v);
        HSL_Color h = model.hsl();
        h.saturation = f;
        row[4 * gradient_width] = from_hsl(h);
        h = model.hsl();
        h.lightness = f;
        row[5 * gradient_width] = from_hsl(h);
    }
    // Spread the six rows out into their bands, last first so nothing is overwritten early.
    for (int r = Channel_Handles::row_count - 1; r >= 0; --r)
        for (int k = band - 1; k >= 0; --k)
            std::copy_n(gradient_pixels + r * gradient_width, gradient_width,
                        gradient_pixels + (r * band + k) * gradient_width);
    gradients->update(gradient_pixels);
}

Rectangle Color_Handles::track_area(int row) const {
    return Rectangle{client.x, client.y + row * row_spacing, track_width, row_spacing};
}

Rectangle Color_Handles::handle_area(int row) const {
    const Rectangle& b = handle_buttons[row]->area;
    return Rectangle{client.x + 1 + model.handle_offset(row), client.y + row * row_spacing + 1, b.width, b.height};
}

Rectangle Color_Handles::button_area(int row, int which) const {
    const Rectangle& b = small_buttons[which]->area;
    return Rectangle{client.x + buttons_left + which * button_spacing, client.y + row * row_spacing + 1, b.width,
                     b.height};
}

void Color_Handles::draw() {
    Pane::draw();
    Main_Window& w = *g_main_window;
    const Color track_grey(128, 128, 128);
    for (int r = 0; r < Channel_Handles::row_count; ++r) {
        const Rectangle t = track_area(r);
        gradients->source = SDL_FRect{0, float(r * band), float(gradient_width), float(band)};
        gradients->destination = SDL_FRect{float(t.x + 1), float(t.y + 1), float(gradient_width), float(band)};
        // Only the alpha track's gradient is translucent.
        gradients->set_opaque(r != Channel_Handles::alpha);
        gradients->draw();
        w.frame(t, track_grey);
        Button_Dialog_Item& h = *handle_buttons[r];
        h.area = handle_area(r);
        h.draw();
        for (int i = 0; i < 3; ++i) {
            small_buttons[i]->area = button_area(r, i);
            small_buttons[i]->draw();
        }
    }
}

int Color_Handles::handle_at(int x, int y) const {
    for (int r = 0; r < Channel_Handles::row_count; ++r)
        if (handle_area(r).contains(x, y)) return r;
    return -1;
}

// The small buttons work on the left button's colour, whichever button was
// pressed and whichever colour the handles show.
bool Color_Handles::click_button(int x, int y) {
    for (int r = 0; r < Channel_Handles::row_count; ++r) {
        for (int i = 0; i < 3; ++i) {
            if (!button_area(r, i).contains(x, y)) continue;
            const Color c = i == 1 ? model.middle(r) : model.step(r, i == 0 ? -1 : 1);
            refresh_gradients();
            if (changed) changed(0, c);
            return true;
        }
    }
    return false;
}

void Color_Handles::drag(int row, int b) {
    Main_Window& w = *g_main_window;
    w.relative_mouse(true);
    run_drag([&](const SDL_MouseMotionEvent& motion) {
        const int d = int(motion.xrel);
        if (d == 0) return;
        const Color c = model.step(row, d);
        refresh_gradients();
        if (changed) changed(b, c);
    });
    w.relative_mouse(false);
    const Rectangle h = handle_area(row);
    w.warp(h.x + h.width / 2, h.y + h.height / 2);
    flush_events();
}
