#include "app/selection/selection_strokes.h"

#include <SDL3/SDL.h>

#include <cmath>
#include <cstdlib>
#include <numbers>

#include "app/canvas_view.h"
#include "app/editor.h"
#include "app/strokes/drawing_tools.h"
#include "app/selection/selection_tools.h"
#include "model/selection/floating.h"
#include "model/selection/free_rotation.h"
#include "model/selection/mask_ops.h"

namespace {
bool shift_held() { return (SDL_GetModState() & SDL_KMOD_SHIFT) != 0; }

void show(Selection_Tools& tools, Readout kind, int a, int b = 0) {
    tools.owner().drawing().context().readout(kind, a, b);
}

// The view's selection flag follows the mask after every change.
void selection_changed(Canvas_View& view) { view.tile_selection().set_active(mask_ops::any_selected(*view.tile_selection().mask())); }

std::unique_ptr<Tile> pixels_of(const Tile& t) {
    auto c = std::make_unique<Tile>(t.width(), t.height());
    std::copy(t.pixels(), t.pixels() + t.pixel_count(), c->pixels());
    return c;
}
}  // namespace

Select_Op select_op(int button, bool shift) {
    if (button == Editor::button_right) return Select_Op::remove;
    return shift ? Select_Op::add : Select_Op::replace;
}

void Shape_Select_Stroke::begin(Canvas_View& view, Cell& start, int button) {
    (void)start;
    tools.put_down();
    op = select_op(button, shift_held());
    view.tile_selection().drawn_mask()->fill(mask_ops::unselected);
    view.tile_selection().set_drawing(true);
}

void Shape_Select_Stroke::paint(Tile& mask, Cell from, Cell to, bool add) const {
    if (ellipse)
        mask_ops::apply_ellipse(mask, from.x, from.y, to.x - from.x, to.y - from.y, add);
    else
        mask_ops::apply_rectangle(mask, from.x, from.y, to.x, to.y, add);
}

void Shape_Select_Stroke::apply(Canvas_View& view, Cell from, Cell to, int button) {
    (void)button;
    Tile& drawn = *view.tile_selection().drawn_mask();
    drawn.fill(mask_ops::unselected);
    paint(drawn, from, to, true);
    const int dx = std::abs(to.x - from.x);
    const int dy = std::abs(to.y - from.y);
    show(tools, Readout::location, to.x, to.y);
    if (ellipse)
        show(tools, Readout::radius, dx, dy);
    else {
        // What will be selected: a drag that began outside the tile is cut at its edge.
        const Rectangle box = mask_ops::bounds(drawn);
        show(tools, Readout::size, box.width, box.height);
    }
}

void Shape_Select_Stroke::finish(Canvas_View& view, Cell start, Cell end, int button, bool dragged) {
    (void)button;
    view.tile_selection().drawn_mask()->fill(mask_ops::unselected);
    view.tile_selection().set_drawing(false);
    Tile& mask = *view.tile_selection().mask();
    if (op == Select_Op::replace) mask_ops::clear(mask);
    // A plain click only deselects; with Shift or the right button it works on the cell.
    if (dragged || op != Select_Op::replace) paint(mask, start, end, op != Select_Op::remove);
    selection_changed(view);
}

void Brush_Select_Stroke::begin(Canvas_View& view, Cell& start, int button) {
    (void)view;
    (void)start;
    (void)button;
    tools.put_down();
}

void Brush_Select_Stroke::apply(Canvas_View& view, Cell from, Cell to, int button) {
    Tile& mask = *view.tile_selection().mask();
    const Color c = button == Editor::button_right ? mask_ops::unselected : mask_ops::selected;
    Footprint& covered = tools.footprint;
    covered.reset(mask.width(), mask.height());
    covered.stamp_line(tools.owner().drawing().context().settings.brush, from.x, from.y, to.x, to.y);
    covered.for_each([&](int x, int y) { mask.set_pixel(x, y, c); });
    selection_changed(view);
    show(tools, Readout::location, to.x, to.y);
}

void Wand_Stroke::begin(Canvas_View& view, Cell& start, int button) {
    (void)view;
    (void)start;
    (void)button;
    tools.put_down();
    shift = shift_held();
}

void Wand_Stroke::apply(Canvas_View& view, Cell from, Cell to, int button) {
    (void)to;
    const Tile* tile = view.tile();
    Tile& mask = *view.tile_selection().mask();
    const Select_Op op = select_op(button, shift);
    if (op == Select_Op::replace) mask_ops::clear(mask);
    if (tile) mask_ops::apply_wand(mask, *tile, tools.grid, from.x, from.y, op != Select_Op::remove);
    selection_changed(view);
}

void Work_Stroke::begin(Canvas_View& view, Cell& start, int button) {
    (void)button;
    moving = false;
    Tile* tile = view.tile();
    if (!tile) return;
    bool centre_on_pointer = false;
    if (view.tile_selection().float_pending()) {
        if (!view.tile_selection().on_float(start.x, start.y)) {
            // Clone: a copy stays where the image stood.
            const SDL_Point at{view.tile_selection().float_x(), view.tile_selection().float_y()};
            floating::stamp_wrapped(*tile, *view.tile_selection().floating_image(), at.x, at.y);
            tile->update_texture();
            centre_on_pointer = true;
        }
    } else if (view.tile_selection().active()) {
        const bool inside = mask_ops::is_selected(*view.tile_selection().mask(), start.x, start.y);
        tools.float_selection(inside && tools.mode() != Selection_Tools::fixed);
        centre_on_pointer = !inside;
    } else {
        return;
    }
    const Tile& image = *view.tile_selection().floating_image();
    if (centre_on_pointer) view.tile_selection().move_float(start.x - image.width() / 2, start.y - image.height() / 2);
    const SDL_Point at{view.tile_selection().float_x(), view.tile_selection().float_y()};
    grab_x = start.x - at.x;
    grab_y = start.y - at.y;
    moving = true;
}

void Work_Stroke::apply(Canvas_View& view, Cell from, Cell to, int button) {
    (void)from;
    (void)button;
    if (!moving) return;
    view.tile_selection().move_float(to.x - grab_x, to.y - grab_y);
    show(tools, Readout::location, to.x, to.y);
}

void Scroll_Stroke::begin(Canvas_View& view, Cell& start, int button) {
    (void)view;
    (void)button;
    total_x = 0;
    total_y = 0;
    show(tools, Readout::offset, 0, 0);
    show(tools, Readout::location, start.x, start.y);
}

void Scroll_Stroke::apply(Canvas_View& view, Cell from, Cell to, int button) {
    (void)button;
    Tile* tile = view.tile();
    const int dx = to.x - from.x;
    const int dy = to.y - from.y;
    show(tools, Readout::location, to.x, to.y);
    if (!tile || (dx == 0 && dy == 0)) return;
    if (view.tile_selection().float_pending()) {
        const SDL_Point at{view.tile_selection().float_x(), view.tile_selection().float_y()};
        view.tile_selection().move_float(at.x + dx, at.y + dy);
    } else {
        floating::scroll_wrapped(*tile, dx, dy);
        if (view.tile_selection().active()) floating::scroll_wrapped(*view.tile_selection().mask(), dx, dy);
        tile->update_texture();
    }
    total_x += dx;
    total_y += dy;
    show(tools, Readout::offset, total_x, total_y);
}

Rotate_Stroke::Rotate_Stroke(Selection_Tools& tools) : tools(tools) {}
Rotate_Stroke::~Rotate_Stroke() = default;

// Measured from the pointer itself, not its cell: cells would put each end of
// a clean quarter turn a few degrees off, unequally.
double Rotate_Stroke::angle_to(SDL_FPoint p) const { return std::atan2(p.y - centre_y, p.x - centre_x); }

void Rotate_Stroke::begin(Canvas_View& view, Cell& start, int button) {
    (void)button;
    tools.put_down();
    Tile* tile = view.tile();
    if (!tile) return;
    source = pixels_of(*tile);
    source_mask = view.tile_selection().active() ? pixels_of(*view.tile_selection().mask()) : nullptr;
    const Rectangle box = source_mask ? mask_ops::bounds(*source_mask) : Rectangle{0, 0, tile->width(), tile->height()};
    (void)start;
    // The middle of the box in tile pixels (cell corners are whole).
    centre_x = box.x + box.width / 2.0;
    centre_y = box.y + box.height / 2.0;
    start_angle = angle_to(view.stroke_point());
    show(tools, Readout::degrees, 0);
}

void Rotate_Stroke::apply(Canvas_View& view, Cell from, Cell to, int button) {
    (void)from;
    (void)button;
    Tile* tile = view.tile();
    if (!tile || !source) return;
    // Rows grow downward, so a growing angle turns clockwise, as "Rotate" does.
    (void)to;
    double degrees = (angle_to(view.stroke_point()) - start_angle) * 180.0 / std::numbers::pi;
    if (degrees > 180) degrees -= 360;
    if (degrees <= -180) degrees += 360;
    rotate_nearest(*source, *tile, degrees, source_mask.get());
    if (source_mask) rotate_nearest(*source_mask, *view.tile_selection().mask(), degrees, source_mask.get());
    tile->update_texture();
    show(tools, Readout::degrees, int(std::lround(degrees)));
}

void Rotate_Stroke::finish(Canvas_View& view, Cell start, Cell end, int button, bool dragged) {
    (void)start;
    (void)end;
    (void)button;
    (void)dragged;
    if (source_mask) selection_changed(view);
    source.reset();
    source_mask.reset();
}
