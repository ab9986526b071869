#include "model/selection/mask_ops.h"

#include <algorithm>

#include "model/paint/painter.h"
#include "model/tile/tile.h"

namespace mask_ops {

bool is_selected(const Tile& mask, int x, int y) { return !mask.is_outside(x, y) && mask.is_white(x, y); }

bool any_selected(const Tile& mask) {
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x)
            if (mask.is_white(x, y)) return true;
    return false;
}

Rectangle bounds(const Tile& mask) {
    int left = mask.width();
    int top = mask.height();
    int right = -1;
    int bottom = -1;
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x)
            if (mask.is_white(x, y)) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
    if (right < 0) return Rectangle{0, 0, 0, 0};
    return Rectangle{left, top, right - left + 1, bottom - top + 1};
}

namespace {
Painter mask_painter(Tile& mask) {
    Painter p;
    p.set_target(&mask);
    return p;
}
}  // namespace

void apply_rectangle(Tile& mask, int ax, int ay, int bx, int by, bool add) {
    const Color c = add ? selected : unselected;
    mask_painter(mask).rectangle_filled(ax, ay, bx, by, c, c);
}

void apply_ellipse(Tile& mask, int cx, int cy, int rx, int ry, bool add) {
    const Color c = add ? selected : unselected;
    mask_painter(mask).ellipse_filled(cx, cy, rx, ry, c, c);
}

void apply_wand(Tile& mask, const Tile& tile, Distance_Grid& grid, int x, int y, bool add) {
    if (tile.is_outside(x, y) || !tile.same_size(mask)) return;
    // The fill reads its source as a writable tile but writes only the
    // destination here. Unlike the fill, the wand compares alpha too: a
    // cleared background (transparent black) is not the black of an outline.
    Painter p = mask_painter(mask);
    p.fill(grid, x, y, add ? selected : unselected, const_cast<Tile&>(tile), mask, true, true);
}

void invert(Tile& mask) {
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x) mask.set_pixel(x, y, mask.is_white(x, y) ? unselected : selected);
}

void clear(Tile& mask) { mask.fill(unselected); }

void fill_selected(Tile& tile, const Tile& mask, Color c) {
    for (int y = 0; y < tile.height(); ++y)
        for (int x = 0; x < tile.width(); ++x)
            if (is_selected(mask, x, y)) tile.set_pixel(x, y, c);
}

}  // namespace mask_ops
