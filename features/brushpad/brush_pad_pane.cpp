#include "features/brushpad/brush_pad_pane.h"

#include <algorithm>
#include <string>
#include <vector>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/texture.h"
#include "model/brushpad/brush_pad_file.h"
#include "ui/pane.h"
#include "platform/text_writer.h"
#include "ui/ui_style.h"

namespace {
constexpr Color checker_light(204, 204, 204);
constexpr Color checker_dark(153, 153, 153);
constexpr Color cell_color(176, 176, 176);
constexpr Color highlight = ui_colors[ui_blue];
constexpr int checker_square = 8;

int middle(int n) { return (n - 1) / 2; }
}  // namespace

Brush_Pad_Pane::Brush_Pad_Pane(int x, int y) {
    selected = std::make_unique<Pane>(Rectangle{x, y, width, selected_body}, "Selected");
    const int grid_top = y + selected_body + Pane::header_height + gap;
    grid = std::make_unique<Pane>(Rectangle{x, grid_top, width, height - selected_body - Pane::header_height - gap},
                                  "Brush pad");
    std::vector<Color> squares(size_t(cell * cell));
    for (int py = 0; py < cell; ++py)
        for (int px = 0; px < cell; ++px)
            squares[size_t(py * cell + px)] =
                ((px / checker_square + py / checker_square) % 2) ? checker_dark : checker_light;
    checker.reset(Texture::from_pixels(g_main_window->renderer(), squares.data(), cell, cell));
}

Brush_Pad_Pane::~Brush_Pad_Pane() = default;

Brush_Pad_Pane::Stamp Brush_Pad_Pane::current() const {
    if (temporary) return Stamp{temporary.get(), temporary_hot_x, temporary_hot_y};
    if (const Pad_Brush* b = pad.selected_brush()) return Stamp{b->image.get(), b->hot_x, b->hot_y};
    return {};
}

bool Brush_Pad_Pane::take_temporary(const Tile& image, int hot_x, int hot_y) {
    if (image.width() < 1 || image.height() < 1) return false;
    const Color* source = image.pixels();
    temporary = std::make_unique<Tile>(image.width(), image.height(), [&](Color* pixels) {
        std::copy(source, source + image.pixel_count(), pixels);
    });
    temporary_hot_x = hot_x >= 0 && hot_x < image.width() ? hot_x : middle(image.width());
    temporary_hot_y = hot_y >= 0 && hot_y < image.height() ? hot_y : middle(image.height());
    pad.select(-1);
    return true;
}

Brush_Pad::Add_Result Brush_Pad_Pane::move_to_pad(const Tile* fallback) {
    Stamp s = current();
    if (!s.image && fallback) s = Stamp{fallback, middle(fallback->width()), middle(fallback->height())};
    // No brush at all is one of the cases the "Failed to add" message names.
    if (!s.image) return Brush_Pad::Add_Result::full;
    const Brush_Pad::Add_Result result = pad.add(*s.image, s.hot_x, s.hot_y);
    if (result == Brush_Pad::Add_Result::added) {
        temporary.reset();
        show_selected_page();
    }
    return result;
}

bool Brush_Pad_Pane::delete_selected() {
    // A temporary brush is not on the pad: there is nothing to delete.
    if (temporary || !pad.remove_selected()) return false;
    first = std::min(first, (page_count() - 1) * per_page);
    show_selected_page();
    return true;
}

std::string Brush_Pad_Pane::load(const std::string& path) {
    const Brush_Pad_File::Load_Result result = Brush_Pad_File::load(pad, path);
    refused = !result.damage.empty();
    first = 0;
    show_selected_page();
    return result.damage;
}

bool Brush_Pad_Pane::save_if_changed(const std::string& path) {
    if (refused || !pad.is_changed()) return false;
    return Brush_Pad_File::save(pad, path);
}

int Brush_Pad_Pane::page_count() const { return std::max(1, (pad.count() + per_page - 1) / per_page); }

void Brush_Pad_Pane::show_selected_page() {
    if (pad.selected() >= 0) first = pad.selected() / per_page * per_page;
}

Rectangle Brush_Pad_Pane::cell_rect(int slot) const {
    const Rectangle& c = grid->client_area();
    return Rectangle{c.x + (slot % columns) * cell, c.y + (slot / columns) * cell, cell, cell};
}

// Small brushes are magnified up to four times, so that a few pixels of
// pixel art can be told apart; large ones keep their real size.
Rectangle Brush_Pad_Pane::thumbnail(int slot) const {
    const Rectangle r = cell_rect(slot);
    const Tile& image = *pad.brush(first + slot).image;
    const int room = cell - 4;
    const int scale = std::max(1, std::min({room / image.width(), room / image.height(), 4}));
    const int w = image.width() * scale;
    const int h = image.height() * scale;
    return Rectangle{r.x + (cell - w) / 2, r.y + (cell - h) / 2, w, h};
}

Rectangle Brush_Pad_Pane::previous_button() const {
    const Rectangle& c = grid->client_area();
    return Rectangle{c.x, c.y + c.height - page_button_height, page_button_width, page_button_height};
}

Rectangle Brush_Pad_Pane::next_button() const {
    const Rectangle& c = grid->client_area();
    return Rectangle{c.x + c.width - page_button_width, c.y + c.height - page_button_height, page_button_width,
                     page_button_height};
}

// The largest whole magnification, up to 8, that fits above the caption line.
Rectangle Brush_Pad_Pane::view_for(const Tile& image) const {
    const Rectangle& c = selected->client_area();
    const int caption = g_main_window->writer(font_pane).line_height() + 2;
    const int w = image.width();
    const int h = image.height();
    const int scale = std::max(1, std::min({c.width / w, (c.height - caption) / h, 8}));
    return Rectangle{c.x + (c.width - w * scale) / 2, c.y + (c.height - caption - h * scale) / 2, w * scale,
                     h * scale};
}

void Brush_Pad_Pane::draw_checker(const Rectangle& r) {
    for (int y = r.y; y < r.y + r.height; y += cell)
        for (int x = r.x; x < r.x + r.width; x += cell) {
            const float w = float(std::min(cell, r.x + r.width - x));
            const float h = float(std::min(cell, r.y + r.height - y));
            checker->copy(SDL_FRect{0, 0, w, h}, SDL_FRect{float(x), float(y), w, h});
        }
}

void Brush_Pad_Pane::draw(const Tile* fallback) {
    Main_Window& w = *g_main_window;
    Text_Writer& writer = w.writer(font_pane);
    selected->draw();
    const Rectangle& sc = selected->client_area();
    const Stamp s = current();
    const Tile* shown = s.image ? s.image : fallback;
    std::string caption;
    if (shown) {
        const Rectangle view = view_for(*shown);
        draw_checker(view);
        // Drawing leaves the pixels alone; only the texture is non-const.
        if (Tile_Texture* t = const_cast<Tile*>(shown)->texture())
            t->draw_scaled(view.x, view.y, view.width, view.height);
        const std::string size = std::to_string(shown->width()) + " x " + std::to_string(shown->height());
        if (temporary)
            caption = "Temporary brush, " + size;
        else if (s.image)
            caption = "Pad brush " + std::to_string(pad.selected() + 1) + " of " + std::to_string(pad.count()) +
                      ", " + size;
        else
            caption = "Built-in brush, " + size;
    }
    if (!caption.empty())
        writer.write_at(sc.x + (sc.width - writer.measure(caption.c_str())) / 2,
                        sc.y + sc.height - writer.line_height(),
                        caption.c_str());

    grid->draw();
    const Rectangle& gc = grid->client_area();
    if (pad.empty()) {
        writer.write_at(gc.x + 2, gc.y, "The pad is empty.");
        return;
    }
    for (int slot = 0; slot < per_page && first + slot < pad.count(); ++slot) {
        const Pad_Brush& b = pad.brush(first + slot);
        const Rectangle r = cell_rect(slot);
        w.fill_rect(r, cell_color);
        const Rectangle image = thumbnail(slot);
        draw_checker(image);
        if (Tile_Texture* t = b.image->texture()) t->draw_scaled(image.x, image.y, image.width, image.height);
        if (first + slot == pad.selected() && !temporary) {
            w.frame(r, highlight);
            w.frame(Rectangle{r.x + 1, r.y + 1, r.width - 2, r.height - 2}, highlight);
        }
    }
    // Paging: the buttons and where the page stands.
    const Rectangle previous = previous_button();
    const Rectangle next = next_button();
    w.bevel_fill(previous, button_face_color);
    w.bevel_fill(next, button_face_color);
    Text_Writer& label = w.writer(font_regular);
    label.write_at(previous.x + (previous.width - label.measure("<")) / 2,
                   previous.y + (previous.height - label.line_height()) / 2, "<");
    label.write_at(next.x + (next.width - label.measure(">")) / 2, next.y + (next.height - label.line_height()) / 2,
                   ">");
    const std::string where = "Page " + std::to_string(page() + 1) + " of " + std::to_string(page_count());
    writer.write_at(gc.x + (gc.width - writer.measure(where.c_str())) / 2,
                    previous.y + (previous.height - writer.line_height()) / 2, where.c_str());
}

bool Brush_Pad_Pane::click(int x, int y) {
    if (!selected->outer_area().contains(x, y) && !grid->outer_area().contains(x, y)) return false;
    if (previous_button().contains(x, y)) {
        if (page() > 0) first -= per_page;
        return true;
    }
    if (next_button().contains(x, y)) {
        if (page() + 1 < page_count()) first += per_page;
        return true;
    }
    for (int slot = 0; slot < per_page && first + slot < pad.count(); ++slot)
        if (cell_rect(slot).contains(x, y)) {
            temporary.reset();
            pad.select(first + slot);
            picked = true;
            return true;
        }
    return true;
}

bool Brush_Pad_Pane::take_picked() {
    const bool was = picked;
    picked = false;
    return was;
}
