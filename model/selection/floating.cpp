#include "model/selection/floating.h"

#include <vector>

#include "model/tile/tile.h"
#include "model/selection/mask_ops.h"

namespace floating {

int wrap(int position, int size) {
    if (size <= 0) return 0;
    const int r = position % size;
    return r < 0 ? r + size : r;
}

void stamp_wrapped(Tile& tile, const Tile& image, int x, int y) {
    const int w = tile.width();
    const int h = tile.height();
    if (w <= 0 || h <= 0) return;
    // An image larger than the tile would wrap onto itself: its later rows and
    // columns win, as they would if it were stamped piece by piece.
    for (int iy = 0; iy < image.height(); ++iy)
        for (int ix = 0; ix < image.width(); ++ix) {
            const Color c = image.get_pixel(ix, iy);
            if (c.alpha != 0) tile.set_pixel(wrap(x + ix, w), wrap(y + iy, h), c);
        }
}

void scroll_wrapped(Tile& tile, int dx, int dy) {
    const int w = tile.width();
    const int h = tile.height();
    if (w <= 0 || h <= 0 || (wrap(dx, w) == 0 && wrap(dy, h) == 0)) return;
    const std::vector<Color> before(tile.pixels(), tile.pixels() + tile.pixel_count());
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            tile.pixels()[wrap(y + dy, h) * w + wrap(x + dx, w)] = before[size_t(y * w + x)];
}

std::unique_ptr<Tile> lift(Tile& tile, const Tile& mask, int& x_out, int& y_out) {
    const Rectangle box = mask_ops::bounds(mask);
    if (box.empty() || !tile.same_size(mask)) return nullptr;
    auto image = std::make_unique<Tile>(box.width, box.height);
    Tile& image_out = *image;
    for (int y = 0; y < box.height; ++y)
        for (int x = 0; x < box.width; ++x) {
            const int tx = box.x + x;
            const int ty = box.y + y;
            if (mask_ops::is_selected(mask, tx, ty)) {
                image_out.set_pixel(x, y, tile.get_pixel(tx, ty));
                tile.set_pixel(tx, ty, Color(0, 0, 0, 0));
            } else {
                image_out.set_pixel(x, y, Color(0, 0, 0, 0));
            }
        }
    x_out = box.x;
    y_out = box.y;
    image->update_texture();
    return image;
}

}  // namespace floating
