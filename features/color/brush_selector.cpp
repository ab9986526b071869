#include "features/color/brush_selector.h"

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/ui_colors.h"

namespace {
constexpr Color light_grey(200, 200, 200);
constexpr Color white(255, 255, 255);

// The brushes are white and light grey, so the buttons have dark faces to
// show them on the light pane bodies; the current one is darker and sunken.
void draw_bevel(const Rectangle& r, bool on) { g_main_window->bevel(r, light_grey, on); }
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

void Brush_Selector::build_faces() {
    constexpr int count = Built_In_Brushes::shape_count + Built_In_Brushes::size_count;
    constexpr int width = count * button_size;
    face_pixels.assign(size_t(width * button_size), Color());
    // One face, filled like a button, with the brush at (left, top) in 2 x 2 pixels.
    auto face = [&](int index, bool on, const Brush& b, int left, int top) {
        const Color face_color = on ? ui_colors[ui_dark_grey] : ui_colors[ui_grey_112];
        const Color brush_color = on ? white : light_grey;
        for (int y = 0; y < button_size; ++y)
            for (int x = 0; x < button_size; ++x) {
                const int bx = (x - left) / 2;
                const int by = (y - top) / 2;
                const bool set = x >= left && y >= top && bx < b.size() && by < b.size() && b.is_set(bx, by);
                face_pixels[size_t(y * width + index * button_size + x)] = set ? brush_color : face_color;
            }
    };
    for (int s = 0; s < Built_In_Brushes::shape_count; ++s) face(s, s == current_shape, brushes.get(s, 6), 3, 3);
    for (int k = 1; k <= Built_In_Brushes::size_count; ++k)
        face(Built_In_Brushes::shape_count + k - 1, k == size(), brushes.get(current_shape, k), 9 - k, 9 - k);
    if (!faces) {
        faces.reset(Texture::from_pixels(g_main_window->renderer(), face_pixels.data(), width, button_size));
        faces->set_opaque(true);
    } else {
        faces->update(face_pixels.data());
    }
    faces_shape = current_shape;
    faces_size = size_index;
}

// The faces are copied a row at a time rather than filled pixel by pixel:
// the same picture at a fraction of the draw calls.
void Brush_Selector::draw() {
    if (faces_shape != current_shape || faces_size != size_index) build_faces();
    constexpr int shape_width = Built_In_Brushes::shape_count * button_size;
    constexpr int size_width = Built_In_Brushes::size_count * button_size;
    shapes->draw();
    const Rectangle first_shape = shape_button(0);
    faces->source = SDL_FRect{0, 0, float(shape_width), float(button_size)};
    faces->destination = SDL_FRect{float(first_shape.x), float(first_shape.y), float(shape_width), float(button_size)};
    faces->draw();
    for (int s = 0; s < Built_In_Brushes::shape_count; ++s) draw_bevel(shape_button(s), s == current_shape);
    sizes->draw();
    const Rectangle first_size = size_button(1);
    faces->source = SDL_FRect{float(shape_width), 0, float(size_width), float(button_size)};
    faces->destination = SDL_FRect{float(first_size.x), float(first_size.y), float(size_width), float(button_size)};
    faces->draw();
    for (int k = 1; k <= Built_In_Brushes::size_count; ++k) draw_bevel(size_button(k), k == size());
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
