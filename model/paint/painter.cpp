#include "model/paint/painter.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "model/paint/distance_grid.h"
#include "model/core/line_walk.h"
#include "model/tile/tile.h"

namespace {
// The error-term walk over one quadrant of an ellipse with half axes a and b;
// step(x, y) sees x run from -a up to 0 while y runs from 0 up.
template <typename Step>
int64_t walk_quadrant(int64_t a, int64_t b, Step&& step) {
    int64_t x = -a;
    int64_t y = 0;
    int64_t dx = (1 - 2 * a) * b * b;
    int64_t dy = a * a;
    int64_t err = dx + dy;
    do {
        step(int(x), int(y));
        const int64_t e2 = 2 * err;
        if (e2 >= dx) {
            dx += 2 * b * b;
            x += 1;
            err += dx;
        }
        if (e2 <= dy) {
            dy += 2 * a * a;
            y += 1;
            err += dy;
        }
    } while (x < 1);
    return y;
}
}  // namespace

bool Painter::allows(int x, int y) const {
    if (!clip || !mask) return true;
    const Color m = mask->get_pixel(x, y);
    return m.blue == 255 && m.green == 255 && m.red == 255;
}

void Painter::plot(int x, int y, Color c) {
    if (target && allows(x, y)) target->set_pixel(x, y, c);
}

void Painter::line(int x1, int y1, int x2, int y2, Color c) {
    for_each_line_point(x1, y1, x2, y2, [&](int x, int y) { plot(x, y, c); });
}

void Painter::rectangle_outline(int x1, int y1, int x2, int y2, Color c) {
    if (x1 == x2 && y1 == y2) {
        plot(x1, y1, c);
        return;
    }
    line(x1, y1, x2, y1, c);
    line(x1, y1, x1, y2, c);
    line(x1, y2, x2, y2, c);
    line(x2, y1, x2, y2, c);
}

void Painter::rectangle_filled(int x1, int y1, int x2, int y2, Color border, Color inside) {
    if (x1 == x2 && y1 == y2) {
        plot(x1, y1, border);
        return;
    }
    const int left = std::min(x1, x2);
    const int top = std::min(y1, y2);
    const int right = left + std::abs(x2 - x1);
    const int bottom = top + std::abs(y2 - y1);
    for (int y = top; y <= bottom; ++y)
        for (int x = left; x <= right; ++x) {
            const bool edge = x == left || x == right || y == top || y == bottom;
            plot(x, y, edge ? border : inside);
        }
}

void Painter::ellipse_outline(int cx, int cy, int rx, int ry, Color c) {
    const int b = std::abs(ry);
    int y = int(walk_quadrant(std::abs(rx), b, [&](int x, int y) {
        plot(cx + x, cy + y, c);
        plot(cx - x, cy + y, c);
        plot(cx - x, cy - y, c);
        plot(cx + x, cy - y, c);
    }));
    // Flat ellipses end before reaching their top and bottom: the tail.
    while (y < b) {
        ++y;
        plot(cx, cy + y, c);
        plot(cx, cy - y, c);
    }
}

void Painter::ellipse_filled(int cx, int cy, int rx, int ry, Color border, Color inside) {
    walk_quadrant(std::abs(rx), std::abs(ry), [&](int x, int y) {
        for (int r = cy - y; r <= cy + y - 1; ++r) {
            plot(cx + x, r, inside);
            plot(cx - x, r, inside);
        }
    });
    ellipse_outline(cx, cy, rx, ry, border);
}

void Painter::shape(int kind, int ax, int ay, int cx, int cy, Color primary, Color secondary) {
    switch (kind) {
        case shape_line: line(ax, ay, cx, cy, primary); break;
        case shape_rectangle: rectangle_outline(ax, ay, cx, cy, primary); break;
        case shape_rectangle_filled: rectangle_filled(ax, ay, cx, cy, primary, primary); break;
        case shape_rectangle_both: rectangle_filled(ax, ay, cx, cy, primary, secondary); break;
        case shape_ellipse: ellipse_outline(ax, ay, cx - ax, cy - ay, primary); break;
        case shape_ellipse_filled: ellipse_filled(ax, ay, cx - ax, cy - ay, primary, primary); break;
        case shape_ellipse_both: ellipse_filled(ax, ay, cx - ax, cy - ay, primary, secondary); break;
        default: break;
    }
}

void Painter::fill(Distance_Grid& grid, int x, int y, Color c, Tile& source, Tile& destination,
                   bool ignore_selection, bool compare_alpha) {
    const Color seed = source.get_pixel(x, y);
    const int w = source.width();
    const int h = source.height();
    grid.resize(w, h);
    const Color* pixels = source.pixels();
    for (int row = 0; row < h; ++row)
        for (int column = 0; column < w; ++column) {
            const Color p = pixels[row * w + column];
            const bool same = p.blue == seed.blue && p.green == seed.green && p.red == seed.red &&
                              (!compare_alpha || p.alpha == seed.alpha);
            const bool inside = ignore_selection || allows(column, row);
            grid.set(column, row, same && inside ? Distance_Grid::open : Distance_Grid::wall);
        }
    grid.set(x, y, 1);
    grid.expand();

    Tile* const saved_target = target;
    const bool saved_clip = clip;
    target = ignore_selection ? &destination : &source;
    clip = false;
    for (int row = 0; row < h; ++row)
        for (int column = 0; column < w; ++column) {
            const int32_t level = grid.get(column, row);
            if (level >= 1 && level < Distance_Grid::wall) plot(column, row, c);
        }
    target = saved_target;
    clip = saved_clip;
}
