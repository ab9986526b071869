#include "model/paint/smudge.h"

#include <algorithm>

#include "model/core/line_walk.h"
#include "model/paint/painter.h"
#include "model/tile/tile.h"

template <typename Visit>
void Smudge::each_brush_pixel(const Tile* brush, int cx, int cy, Visit&& visit) const {
    if (!brush || brush->pixel_count() <= 1) {
        visit(cx, cy, size_t(0));
        return;
    }
    const int ox = cx - (brush->width() - 1) / 2;
    const int oy = cy - (brush->height() - 1) / 2;
    for (int by = 0; by < brush->height(); ++by)
        for (int bx = 0; bx < brush->width(); ++bx)
            if (brush->is_white(bx, by)) visit(ox + bx, oy + by, size_t(by) * size_t(brush->width()) + size_t(bx));
}

void Smudge::set_strength(int weight) { strength = std::clamp(weight, 0, 256); }

void Smudge::pick_up(const Painter& painter, const Tile* brush, int x, int y) {
    const size_t n = brush && brush->pixel_count() > 1 ? size_t(brush->pixel_count()) : 1;
    carried.assign(n, Color());
    held.assign(n, 0);
    const Tile* tile = painter.target_tile();
    if (!tile) return;
    each_brush_pixel(brush, x, y, [&](int px, int py, size_t i) {
        if (tile->is_outside(px, py)) return;
        carried[i] = tile->get_pixel(px, py);
        held[i] = 1;
    });
}

void Smudge::drag(Painter& painter, const Tile* brush, int x1, int y1, int x2, int y2) {
    bool first = true;
    // The first point is where the brush already is.
    for_each_line_point(x1, y1, x2, y2, [&](int x, int y) {
        if (!first) step(painter, brush, x, y);
        first = false;
    });
}

void Smudge::step(Painter& painter, const Tile* brush, int x, int y) {
    const Tile* tile = painter.target_tile();
    if (!tile) return;
    each_brush_pixel(brush, x, y, [&](int px, int py, size_t i) {
        if (i >= carried.size() || tile->is_outside(px, py)) return;
        const Color beneath = tile->get_pixel(px, py);
        const Color laid = held[i] ? mix(carried[i], beneath, strength) : beneath;
        carried[i] = laid;
        held[i] = 1;
        painter.plot(px, py, laid);
    });
}

Color Smudge::mix(Color carried, Color beneath, int weight) {
    const int64_t wc = weight;
    const int64_t wb = 256 - weight;
    const int64_t ac = int64_t(carried.alpha) * wc;
    const int64_t ab = int64_t(beneath.alpha) * wb;
    const int64_t total = ac + ab;
    auto channel = [&](uint8_t c, uint8_t b) {
        // Both fully transparent: the colours mix plainly.
        if (total == 0) return uint8_t((c * wc + b * wb + 128) / 256);
        return uint8_t((c * ac + b * ab + total / 2) / total);
    };
    Color out;
    out.red = channel(carried.red, beneath.red);
    out.green = channel(carried.green, beneath.green);
    out.blue = channel(carried.blue, beneath.blue);
    out.alpha = uint8_t((total + 128) / 256);
    return out;
}
