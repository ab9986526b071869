#include "app/canvas_view.h"

#include <algorithm>

#include "model/selection/floating.h"
#include "model/selection/tile_selection.h"
#include "model/tile/transforms.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/ui_colors.h"
#include "platform/wait_for_key.h"

namespace {
// Floor division, so cells left of or above the tile get negative numbers.
int floor_div(int a, int b) { return a >= 0 ? a / b : -((-a + b - 1) / b); }

bool is_selected(const Tile& m, int x, int y) {
    if (m.is_outside(x, y)) return false;
    const Color c = m.get_pixel(x, y);
    return c.blue == 255 && c.green == 255 && c.red == 255;
}
}  // namespace

Canvas_View::Canvas_View(const Rectangle& view, Color background, Tile_Selection& selection)
    : view(view), background(background), marks(selection) {}

Canvas_View::~Canvas_View() = default;

Canvas_Picture::Frame Canvas_View::frame() const {
    return Canvas_Picture::Frame{shown, &marks, view, origin_x, origin_y, cell_size, extent_w, extent_h,
                                 checker_w, checker_h, grid_contrast};
}

bool Canvas_View::set_pixel_size(int s) {
    if (s < min_pixel_size || s > max_pixel_size) return false;
    cell_size = s;
    update_extent();
    return true;
}

void Canvas_View::update_extent() {
    extent_w = shown ? shown->width() * cell_size : 0;
    extent_h = shown ? shown->height() * cell_size : 0;
}

bool Canvas_View::zoom(int direction) {
    const int old_w = extent_w;
    const int old_h = extent_h;
    if (!set_pixel_size(cell_size + direction)) return false;
    pan((old_w - extent_w) / 2, (old_h - extent_h) / 2);
    return true;
}

void Canvas_View::pan(int dx, int dy) {
    origin_x += dx;
    origin_y += dy;
}

void Canvas_View::centre() {
    origin_x = view.x + (view.width > extent_w ? (view.width - extent_w) / 2 : 0);
    origin_y = view.y + (view.height > extent_h ? (view.height - extent_h) / 2 : 0);
}

void Canvas_View::set_checker_size(int width, int height) {
    checker_w = width > 0 ? width : 1;
    checker_h = height > 0 ? height : 1;
}

// The tile shown before may already be gone (a closed tileset, a deleted
// tile): it is touched only while a seam offset is on, and every command that
// removes tiles ends the offsets first.
void Canvas_View::set_tile(Tile* tile) {
    if (shown) end_seams();
    const bool new_size = !tile || tile->width() != shown_w || tile->height() != shown_h;
    shown = tile;
    shown_w = tile ? tile->width() : 0;
    shown_h = tile ? tile->height() : 0;
    update_extent();
    marks.follow_tile(tile);
    if (!new_size) return;
    if (tile) {
        history = std::make_unique<Tile>(shown_w, shown_h);
        tile->copy_into(*history);
    }
    centre();
}

void Canvas_View::save_copy() {
    if (shown && history) shown->copy_into(*history);
}

void Canvas_View::set_seam_offsets(int horizontal, int vertical) {
    seam_h = horizontal;
    seam_v = vertical;
}

void Canvas_View::end_seams() {
    if (!shown || (seam_h < 0 && seam_v < 0)) return;
    if (seam_h >= 0) {
        for (int i = 0; i < seam_h; ++i) offset_copy(*shown, 1, 0);
        seam_h = -1;
        if (seam_released) seam_released(true);
    }
    if (seam_v >= 0) {
        for (int i = 0; i < seam_v; ++i) offset_copy(*shown, 0, 1);
        seam_v = -1;
        if (seam_released) seam_released(false);
    }
    shown->update_texture();
}

std::unique_ptr<Tile> Canvas_View::tile_as_shown() const {
    const bool offset = seam_h >= 0 || seam_v >= 0;
    if (!shown || (!marks.float_pending() && !offset)) return nullptr;
    std::unique_ptr<Tile> copy = marks.put_down_copy(*shown);
    if (!copy) {
        copy = std::make_unique<Tile>(shown->width(), shown->height());
        shown->copy_into(*copy);
    }
    for (int i = 0; i < seam_h; ++i) offset_copy(*copy, 1, 0);
    for (int i = 0; i < seam_v; ++i) offset_copy(*copy, 0, 1);
    return copy;
}

Cell Canvas_View::cell_at(float x, float y) const {
    return Cell{floor_div(int(x) - origin_x, cell_size), floor_div(int(y) - origin_y, cell_size)};
}

void Canvas_View::draw(Main_Window& window) {
    const int s = cell_size;
    const int left = shown ? std::max(view.x, origin_x) : 0;
    const int top = shown ? std::max(view.y, origin_y) : 0;
    const int right = shown ? std::min(view.x + view.width, origin_x + extent_w) : 0;
    const int bottom = shown ? std::min(view.y + view.height, origin_y + extent_h) : 0;
    if (left >= right || top >= bottom) {
        window.fill_rect(view, background);
        return;
    }
    // The background shows only around the tile: the tile's own picture is opaque.
    const int view_right = view.x + view.width;
    const int view_bottom = view.y + view.height;
    window.fill_rect(Rectangle{view.x, view.y, view.width, top - view.y}, background);
    window.fill_rect(Rectangle{view.x, bottom, view.width, view_bottom - bottom}, background);
    window.fill_rect(Rectangle{view.x, top, left - view.x, bottom - top}, background);
    window.fill_rect(Rectangle{right, top, view_right - right, bottom - top}, background);

    const Canvas_Picture::Frame shown_frame = frame();
    picture.draw_cells(window, shown_frame, left, top, right, bottom);
    if (marks.floating_image() && !marks.active()) picture.draw_float(window, shown_frame);
    if (marks.floating_image()) frame_float(window);
    // Edge pieces only where a selection or a seam needs them.
    if (!marks.active() && !marks.drawing() && seam_h < 0 && seam_v < 0) return;
    window.clip(view);
    const int first_x = std::max(0, floor_div(view.x - origin_x, s));
    const int first_y = std::max(0, floor_div(view.y - origin_y, s));
    const int last_x = std::min(shown->width() - 1, floor_div(view.x + view.width - 1 - origin_x, s));
    const int last_y = std::min(shown->height() - 1, floor_div(view.y + view.height - 1 - origin_y, s));
    for (int ty = first_y; ty <= last_y; ++ty)
        for (int tx = first_x; tx <= last_x; ++tx) draw_cell_marks(window, tx, ty, origin_x + tx * s, origin_y + ty * s);
    window.end_clip();
}

// The floating image's box is framed in cyan, in up to four pieces where it
// wraps, so the user sees what will move: a handful of rectangles, which a
// drag redraws at every move, where a per-pixel outline would cost hundreds.
void Canvas_View::frame_float(Main_Window& window) {
    const Tile& image = *marks.floating_image();
    const int w = shown->width();
    const int h = shown->height();
    const int s = cell_size;
    const int fw = std::min(image.width(), w);
    const int fh = std::min(image.height(), h);
    const int fx = marks.float_x();
    const int fy = marks.float_y();
    const int xs[2][2] = {{fx, std::min(fx + fw, w)}, {0, fx + fw - w}};
    const int ys[2][2] = {{fy, std::min(fy + fh, h)}, {0, fy + fh - h}};
    window.clip(view);
    for (const auto& xr : xs)
        for (const auto& yr : ys)
            if (xr[1] > xr[0] && yr[1] > yr[0])
                window.frame(Rectangle{origin_x + xr[0] * s, origin_y + yr[0] * s, (xr[1] - xr[0]) * s,
                                       (yr[1] - yr[0]) * s},
                             ui_colors[ui_cyan]);
    window.end_clip();
}

void Canvas_View::draw_cell_marks(Main_Window& window, int tx, int ty, int px, int py) {
    const int s = cell_size;
    if (marks.active() && is_selected(*marks.mask(), tx, ty)) draw_edges(window, *marks.mask(), tx, ty, px, py, false);
    if (marks.drawing() && is_selected(*marks.drawn_mask(), tx, ty)) draw_edges(window, *marks.drawn_mask(), tx, ty, px, py, true);
    if (seam_h >= 0 && tx == shown->width() / 2) window.edge_v(Edge_Kind::seam, px, py, s, ty % 2 == 1);
    if (seam_v >= 0 && ty == shown->height() / 2) window.edge_h(Edge_Kind::seam, px, py, s, tx % 2 == 1);
}

// Dashed edges on the sides whose neighbour is not selected; the phase follows
// the column (row) so neighbouring cells continue the dashes.
void Canvas_View::draw_edges(Main_Window& window, const Tile& m, int tx, int ty, int px, int py, bool active) {
    const int s = cell_size;
    const Edge_Kind kind = active ? Edge_Kind::active_selection : Edge_Kind::selection;
    const int thick = s > 6 ? 2 : 1;
    const bool column_phase = tx % 2 == 1;
    const bool row_phase = ty % 2 == 1;
    if (!is_selected(m, tx, ty - 1)) window.edge_h(kind, px, py, s, column_phase);
    if (!is_selected(m, tx, ty + 1)) window.edge_h(kind, px, py + s - thick, s, column_phase);
    if (!is_selected(m, tx - 1, ty)) window.edge_v(kind, px, py, s, row_phase);
    if (!is_selected(m, tx + 1, ty)) window.edge_v(kind, px + s - thick, py, s, row_phase);
}

void Canvas_View::keep_pointer_on_tile(float x, float y) {
    const int left = std::max(origin_x, view.x);
    const int top = std::max(origin_y, view.y);
    const int right = std::min(origin_x + extent_w, view.x + view.width) - 1;
    const int bottom = std::min(origin_y + extent_h, view.y + view.height) - 1;
    if (right < left || bottom < top) return;
    const int px = std::clamp(int(x), left, right);
    const int py = std::clamp(int(y), top, bottom);
    if (px != int(x) || py != int(y)) g_main_window->warp(px, py);
}

Cell Canvas_View::press(Stroke_Action& action, int button, float x, float y) {
    std::unique_ptr<Tile> backup;
    if (action.works_from_backup() && shown) {
        backup = std::make_unique<Tile>(shown->width(), shown->height());
        shown->copy_into(*backup);
    }
    const bool hidden = action.hides_cursor();
    if (hidden) g_main_window->show_cursor(false);

    auto to_tile = [this](float px, float py) {
        return SDL_FPoint{(px - float(origin_x)) / float(cell_size), (py - float(origin_y)) / float(cell_size)};
    };
    stroke_pointer = to_tile(x, y);
    Cell start = cell_at(x, y);
    action.begin(*this, start, button);
    action.apply(*this, start, start, button);
    Cell current = start;
    bool dragged = false;
    SDL_Event event;
    for (;;) {
        if (repaint) repaint();
        if (!wait_event(event)) break;
        if (event.type == SDL_EVENT_MOUSE_BUTTON_UP) {
            if (pointer_moved) pointer_moved(event.button.x, event.button.y);
            break;
        }
        if (event.type == SDL_EVENT_QUIT) break;
        if (event.type != SDL_EVENT_MOUSE_MOTION) continue;
        current = cell_at(event.motion.x, event.motion.y);
        stroke_pointer = to_tile(event.motion.x, event.motion.y);
        if (pointer_moved) pointer_moved(event.motion.x, event.motion.y);
        if (action.keeps_pointer_on_tile()) keep_pointer_on_tile(event.motion.x, event.motion.y);
        if (!(current == start)) dragged = true;
        if (backup) backup->copy_into(*shown);
        if (action.draws_while_dragging()) action.apply(*this, start, current, button);
        if (action.start_follows_pointer()) start = current;
    }
    flush_events();
    if (hidden) g_main_window->show_cursor(true);
    action.finish(*this, start, current, button, dragged);
    if (shown) shown->update_texture();
    return current;
}
