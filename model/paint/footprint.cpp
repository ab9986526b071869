#include "model/paint/footprint.h"

#include <algorithm>

#include "model/core/line_walk.h"
#include "model/tile/tile.h"

void Footprint::reset(int width, int height) {
    width = std::max(width, 0);
    height = std::max(height, 0);
    if (width == mark_width && height == mark_height) {
        // Only the box of the last step holds marks.
        for (int y = top; y <= bottom; ++y)
            std::fill_n(marks.begin() + y * mark_width + left, right - left + 1, uint8_t(0));
    } else {
        mark_width = width;
        mark_height = height;
        marks.assign(size_t(mark_width) * size_t(mark_height), 0);
    }
    left = mark_width;
    top = mark_height;
    right = -1;
    bottom = -1;
}

void Footprint::mark(int x, int y) {
    if (x < 0 || y < 0 || x >= mark_width || y >= mark_height) return;
    marks[size_t(y) * size_t(mark_width) + size_t(x)] = 1;
    left = std::min(left, x);
    top = std::min(top, y);
    right = std::max(right, x);
    bottom = std::max(bottom, y);
}

bool Footprint::marked(int x, int y) const {
    if (x < 0 || y < 0 || x >= mark_width || y >= mark_height) return false;
    return marks[size_t(y) * size_t(mark_width) + size_t(x)] != 0;
}

void Footprint::stamp(const Tile* brush, int x, int y) {
    if (!brush || brush->pixel_count() <= 1) {
        mark(x, y);
        return;
    }
    const int ox = x - (brush->width() - 1) / 2;
    const int oy = y - (brush->height() - 1) / 2;
    for (int by = 0; by < brush->height(); ++by)
        for (int bx = 0; bx < brush->width(); ++bx)
            if (brush->is_white(bx, by)) mark(ox + bx, oy + by);
}

void Footprint::stamp_line(const Tile* brush, int x1, int y1, int x2, int y2) {
    for_each_line_point(x1, y1, x2, y2, [&](int x, int y) { stamp(brush, x, y); });
}
