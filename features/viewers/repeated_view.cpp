#include "features/viewers/repeated_view.h"

#include <algorithm>
#include <vector>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/texture.h"
#include "model/tile/tile.h"
#include "ui/backdrop.h"
#include "ui/modal_loop.h"
#include "ui/checkerboard.h"
#include "platform/wait_for_key.h"

namespace {
void paint_view(void* view) { static_cast<Repeated_View*>(view)->draw(); }
Backdrop::Area view_area(const void* view) { return static_cast<const Repeated_View*>(view)->modal_area(); }

int widest_picture() {
    return int(g_main_window->width()) - 2 * Repeated_View::window_margin - Pane::inset_left - Pane::inset_right;
}

int tallest_picture() {
    return int(g_main_window->height()) - 2 * Repeated_View::window_margin - Pane::inset_top - Pane::inset_bottom;
}

int fitting(int room, int extent) { return std::max(1, room / std::max(extent, 1)); }

// The frame around a picture of that size, centred in the window.
Rectangle frame_for(int width, int height) {
    const int outer_w = width + Pane::inset_left + Pane::inset_right;
    const int outer_h = height + Pane::inset_top + Pane::inset_bottom;
    return Rectangle{(int(g_main_window->width()) - outer_w) / 2, (int(g_main_window->height()) - outer_h) / 2,
                     outer_w, outer_h - Pane::header_height};
}
}  // namespace

int Repeated_View::zoom_for(int tile_width, int tile_height) {
    const int longer = std::max({tile_width, tile_height, 1});
    return std::max(1, (least_extent + longer - 1) / longer);
}

Repeated_View::Repeated_View(const Tile& tile, int checker_width, int checker_height)
    : factor(zoom_for(tile.width(), tile.height())),
      count_x(fitting(widest_picture(), tile.width() * factor)),
      count_y(fitting(tallest_picture(), tile.height() * factor)),
      pane(frame_for(std::min(count_x * tile.width() * factor, widest_picture()),
                     std::min(count_y * tile.height() * factor, tallest_picture())),
           "Repeated tile view") {
    compose(tile, std::max(checker_width, 1), std::max(checker_height, 1));
}

Repeated_View::~Repeated_View() = default;

Rectangle Repeated_View::picture() const {
    const Rectangle client = pane.client_area();
    return Rectangle{client.x, client.y, client.width, client.height};
}

// The checkerboard runs on across the repeats, as it would under a map.
void Repeated_View::compose(const Tile& tile, int checker_width, int checker_height) {
    const Rectangle p = picture();
    const int tw = std::max(tile.width(), 1);
    const int th = std::max(tile.height(), 1);
    std::vector<Color> pixels(size_t(p.width) * size_t(p.height));
    for (int y = 0; y < p.height; ++y) {
        const int ty = y / factor;
        for (int x = 0; x < p.width; ++x) {
            const int tx = x / factor;
            const bool light = (tx / checker_width + ty / checker_height) % 2 == 0;
            pixels[size_t(y) * size_t(p.width) + size_t(x)] = on_checkerboard(tile.get_pixel(tx % tw, ty % th), light);
        }
    }
    image.reset(Texture::from_pixels(g_main_window->renderer(), pixels.data(), p.width, p.height));
    image->set_opaque(true);
}

void Repeated_View::draw() {
    pane.draw();
    const Rectangle p = picture();
    image->draw_at(p.x, p.y);
}

void Repeated_View::run() {
    // Any key or click closes it, as do a quit and a close request.
    run_modal_layer(paint_view, this, view_area, [](SDL_Event& event) {
        return event.type != SDL_EVENT_QUIT && event.type != SDL_EVENT_WINDOW_CLOSE_REQUESTED &&
               event.type != SDL_EVENT_KEY_DOWN && event.type != SDL_EVENT_MOUSE_BUTTON_DOWN;
    });
    flush_events();
}

void show_repeated_view(const Tile& tile, int checker_width, int checker_height) {
    Repeated_View view(tile, checker_width, checker_height);
    view.run();
}
