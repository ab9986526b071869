#include "model/paint/brush_stamp.h"

#include "model/core/line_walk.h"
#include "model/paint/painter.h"
#include "model/tile/tile.h"

namespace {
// The remainder in 0 .. n - 1, also for negative cells left or above the tile.
int wrap(int v, int n) {
    const int r = v % n;
    return r < 0 ? r + n : r;
}
}  // namespace

int Brush_Stamp::hot_x() const { return hot.x >= 0 && hot.x < image.width() ? hot.x : (image.width() - 1) / 2; }

int Brush_Stamp::hot_y() const { return hot.y >= 0 && hot.y < image.height() ? hot.y : (image.height() - 1) / 2; }

void Brush_Stamp::stamp(Painter& painter, int left, int top) const {
    const int w = image.width();
    const int h = image.height();
    if (w <= 0 || h <= 0) return;
    for (int by = 0; by < h; ++by)
        for (int bx = 0; bx < w; ++bx) {
            const int x = left + bx;
            const int y = top + by;
            const Color c = mode == mode_pattern ? image.get_pixel(wrap(x, w), wrap(y, h)) : image.get_pixel(bx, by);
            if (c.alpha == 0) continue;
            painter.plot(x, y, use_flat ? flat : c);
        }
}

void Brush_Stamp::stamp_line(Painter& painter, int x1, int y1, int x2, int y2) const {
    for_each_line_point(x1, y1, x2, y2, [&](int x, int y) { stamp(painter, x, y); });
}
