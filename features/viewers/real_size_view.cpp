#include "features/viewers/real_size_view.h"

#include <algorithm>
#include <vector>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/texture.h"
#include "model/tile/tile_store.h"
#include "ui/backdrop.h"
#include "ui/modal_loop.h"
#include "ui/checkerboard.h"
#include "platform/text_writer.h"
#include "ui/ui_style.h"
#include "platform/wait_for_key.h"

namespace {
constexpr SDL_Keycode key_return = 13;
constexpr SDL_Keycode key_escape = 27;
constexpr SDL_Keycode key_yes = 121;
constexpr int checker_cell = 8;
constexpr int button_width = 60;
constexpr int button_height = 27;
constexpr int button_gap = 8;
// The part of the picture no tile covers, darker than the checkerboard.
constexpr Color empty_color = ui_colors[ui_dark_grey];
constexpr Color current_frame_color = ui_colors[ui_cyan];
constexpr Color hover_frame_color = ui_colors[ui_white];

void paint_view(void* view) { static_cast<Real_Size_View*>(view)->draw(); }
Backdrop::Area view_area(const void* view) { return static_cast<const Real_Size_View*>(view)->modal_area(); }

Rectangle centred_frame() {
    const int x = (int(g_main_window->width()) - Real_Size_View::frame_width) / 2;
    const int y = (int(g_main_window->height()) - Real_Size_View::frame_height) / 2;
    return Rectangle{x, y, Real_Size_View::frame_width, Real_Size_View::frame_height - Pane::header_height};
}
}  // namespace

Real_Size_View::Real_Size_View(const Tile_Store& store)
    : store(store),
      pane(centred_frame(), "Tiles in real size"),
      across(std::max(1, picture_size / std::max(int(store.tile_width()), 1))),
      down(std::max(1, picture_size / std::max(int(store.tile_height()), 1))),
      chosen(store.current_index()) {
    compose();
}

Real_Size_View::~Real_Size_View() = default;

int Real_Size_View::shown_count() const { return std::min(store.tile_count(), across * down); }

Rectangle Real_Size_View::picture() const {
    const Rectangle client = pane.client_area();
    return Rectangle{client.x, client.y, picture_size, picture_size};
}

Rectangle Real_Size_View::ok_button() const {
    const Rectangle client = pane.client_area();
    return Rectangle{client.x + (client.width - button_width) / 2, client.y + picture_size + button_gap,
                     button_width, button_height};
}

Rectangle Real_Size_View::tile_area(int index) const {
    if (index < 0 || index >= shown_count()) return Rectangle{};
    const Rectangle p = picture();
    const int tw = int(store.tile_width());
    const int th = int(store.tile_height());
    return Rectangle{p.x + (index % across) * tw, p.y + (index / across) * th, tw, th};
}

int Real_Size_View::hit(float x, float y) const {
    const Rectangle p = picture();
    if (!p.contains(x, y)) return -1;
    const int column = (int(x) - p.x) / std::max(int(store.tile_width()), 1);
    const int row = (int(y) - p.y) / std::max(int(store.tile_height()), 1);
    if (column >= across || row >= down) return -1;
    const int index = row * across + column;
    return index < shown_count() ? index : -1;
}

// The tiles over an 8-pixel checkerboard, composed once into one texture.
void Real_Size_View::compose() {
    std::vector<Color> pixels(size_t(picture_size) * picture_size, empty_color);
    const int tw = int(store.tile_width());
    const int th = int(store.tile_height());
    int index = 0;
    for (const auto& tile : store.all()) {
        if (index >= shown_count()) break;
        const int left = (index % across) * tw;
        const int top = (index / across) * th;
        for (int y = 0; y < th; ++y)
            for (int x = 0; x < tw; ++x) {
                const int px = left + x;
                const int py = top + y;
                const bool light = ((px / checker_cell) + (py / checker_cell)) % 2 == 0;
                pixels[size_t(py) * picture_size + size_t(px)] = on_checkerboard(tile->get_pixel(x, y), light);
            }
        ++index;
    }
    image.reset(Texture::from_pixels(g_main_window->renderer(), pixels.data(), picture_size, picture_size));
    image->set_opaque(true);
}

void Real_Size_View::draw() {
    Main_Window& w = *g_main_window;
    pane.draw();
    const Rectangle p = picture();
    image->draw_at(p.x, p.y);
    // A pixel of margin, so a frame on the first row or column keeps its outer edge.
    w.clip(Rectangle{p.x - 1, p.y - 1, p.width + 2, p.height + 2});
    auto outline = [&w](const Rectangle& r, Color c) {
        if (r.empty()) return;
        const int left = r.x - 1;
        const int top = r.y - 1;
        const int right = r.x + r.width;
        const int bottom = r.y + r.height;
        w.line(left, top, right, top, c);
        w.line(left, bottom, right, bottom, c);
        w.line(left, top, left, bottom, c);
        w.line(right, top, right, bottom, c);
    };
    if (hovered != chosen) outline(tile_area(hovered), hover_frame_color);
    outline(tile_area(chosen), current_frame_color);
    w.end_clip();
    const Rectangle ok = ok_button();
    Text_Writer& t = w.writer(font_regular);
    w.bevel_fill(ok, button_face_color);
    t.write_at(ok.x + (ok.width - t.measure("Ok")) / 2, ok.y + (ok.height - t.line_height()) / 2, "Ok");
}

int Real_Size_View::run() {
    run_modal_layer(paint_view, this, view_area, [this](SDL_Event& event) { return handle(event); });
    flush_events();
    return chosen;
}

bool Real_Size_View::handle(const SDL_Event& event) {
    switch (event.type) {
        case SDL_EVENT_QUIT:
        case SDL_EVENT_WINDOW_CLOSE_REQUESTED:
            return false;
        case SDL_EVENT_KEY_DOWN:
            return event.key.key != key_escape && event.key.key != key_return && event.key.key != key_yes;
        case SDL_EVENT_MOUSE_MOTION:
            hovered = hit(event.motion.x, event.motion.y);
            return true;
        case SDL_EVENT_MOUSE_BUTTON_DOWN: {
            if (event.button.button != SDL_BUTTON_LEFT) return true;
            if (ok_button().contains(event.button.x, event.button.y)) return false;
            const int index = hit(event.button.x, event.button.y);
            if (index >= 0) chosen = index;
            return true;
        }
        default:
            return true;
    }
}

int show_real_size(const Tile_Store& store) {
    Real_Size_View view(store);
    return view.run();
}
