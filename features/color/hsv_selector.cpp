#include "features/color/hsv_selector.h"

#include <algorithm>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/sprites.h"
#include "ui/backdrop.h"
#include "ui/drag_loop.h"
#include "platform/wait_for_key.h"

using namespace hue_square;

HSV_Selector::HSV_Selector(int x, int y)
    : Pane(Rectangle{x, y, 202, body_height}, "HSV Selector"),
      left_edge(side, Color()),
      right_edge(side, Color()),
      square(size_t(side * side)),
      strip(size_t(strip_width * side)) {
    square_rect = Rectangle{client.x + 1, client.y + 1, side, side};
    strip_rect = Rectangle{square_rect.x + side + 7, square_rect.y, strip_width, side};
    build_strip(strip.data());
    SDL_Renderer* r = g_main_window->renderer();
    strip_texture.reset(Texture::from_pixels(r, strip.data(), strip_width, side));
    square_texture.reset(Texture::from_pixels(r, square.data(), side, side));
    // Both are built fully opaque.
    strip_texture->set_opaque(true);
    square_texture->set_opaque(true);
    set_hue_color(Color());
}

HSV_Selector::~HSV_Selector() = default;

void HSV_Selector::set_hue_color(Color h) {
    build_square(h, left_edge.data(), right_edge.data(), square.data());
    square_texture->update(square.data());
}

void HSV_Selector::draw() {
    Pane::draw();
    Main_Window& w = *g_main_window;
    const Color grey(137, 137, 137);
    w.frame(Rectangle{square_rect.x - 1, square_rect.y - 1, side + 2, side + 2}, grey);
    square_texture->draw_at(square_rect.x, square_rect.y);
    w.frame(Rectangle{strip_rect.x - 1, strip_rect.y - 1, strip_width + 2, side + 2}, grey);
    strip_texture->draw_at(strip_rect.x, strip_rect.y);
}

void HSV_Selector::pick(bool in_strip, int button, int x, int y) {
    if (in_strip) {
        set_hue_color(strip_pixel(x - strip_rect.x, y - strip_rect.y));
    } else if (picked) {
        picked(button, square_pixel(x - square_rect.x, y - square_rect.y));
    }
    cross = SDL_Point{x, y};
}

void HSV_Selector::paint_crosshairs(void* self) {
    const SDL_Point p = static_cast<HSV_Selector*>(self)->cross;
    g_main_window->sprite(sprite_crosshairs, p.x - 5, p.y - 5);
}

bool HSV_Selector::mouse_down(int button, int x, int y) {
    bool in_strip = false;
    if (!square_rect.contains(x, y)) {
        if (!strip_rect.contains(x, y)) return false;
        in_strip = true;
    }
    const Rectangle& limit = in_strip ? strip_rect : square_rect;
    Main_Window& w = *g_main_window;
    w.show_cursor(false);
    pick(in_strip, button, x, y);
    {
        const Backdrop_Layer layer(paint_crosshairs, this);
        run_drag([&](const SDL_MouseMotionEvent& motion) {
            const int mx = int(motion.x);
            const int my = int(motion.y);
            // The pointer is held inside the part the drag began in.
            const int px = std::clamp(mx, limit.x, limit.x + limit.width - 1);
            const int py = std::clamp(my, limit.y, limit.y + limit.height - 1);
            if (px != mx || py != my) w.warp(px, py);
            pick(in_strip, button, px, py);
        });
    }
    flush_events();
    w.show_cursor(true);
    return true;
}
