#include "model/selection/free_rotation.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "model/tile/tile.h"
#include "model/selection/mask_ops.h"

void rotate_nearest(const Tile& source, Tile& destination, double degrees, const Tile* mask) {
    const int w = source.width();
    const int h = source.height();
    if (!destination.same_size(source) || w <= 0 || h <= 0) return;
    const bool selective = mask && mask->same_size(source) && mask_ops::any_selected(*mask);
    const Rectangle box = selective ? mask_ops::bounds(*mask) : Rectangle{0, 0, w, h};
    const double cx = box.x + (box.width - 1) / 2.0;
    const double cy = box.y + (box.height - 1) / 2.0;
    const double radians = degrees * std::numbers::pi / 180.0;
    // Each destination pixel looks back along the opposite turn.
    const double c = std::cos(radians);
    const double s = std::sin(radians);
    const Color none(0, 0, 0, 0);
    std::copy(source.pixels(), source.pixels() + source.pixel_count(), destination.pixels());
    if (selective)
        for (int y = box.y; y < box.y + box.height; ++y)
            for (int x = box.x; x < box.x + box.width; ++x)
                if (mask_ops::is_selected(*mask, x, y)) destination.set_pixel(x, y, none);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const double dx = x - cx;
            const double dy = y - cy;
            const int sx = int(std::lround(cx + dx * c + dy * s));
            const int sy = int(std::lround(cy - dx * s + dy * c));
            if (selective) {
                if (mask_ops::is_selected(*mask, sx, sy)) destination.set_pixel(x, y, source.get_pixel(sx, sy));
            } else {
                destination.set_pixel(x, y, source.is_outside(sx, sy) ? none : source.get_pixel(sx, sy));
            }
        }
}
