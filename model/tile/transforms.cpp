#include "model/tile/transforms.h"

#include <vector>

#include "model/tile/tile.h"

namespace {
template <class Source>
void rewrite(Tile& tile, Source source) {
    const std::vector<Color> copy(tile.pixels(), tile.pixels() + tile.pixel_count());
    const int w = tile.width();
    Color* out = tile.pixels();
    for (int y = 0; y < tile.height(); ++y)
        for (int x = 0; x < w; ++x) {
            const auto [sx, sy] = source(x, y);
            out[y * w + x] = copy[size_t(sy * w + sx)];
        }
}

struct Point {
    int x, y;
};
}  // namespace

bool rotate(Tile& tile) {
    if (tile.width() != tile.height()) return false;
    const int h = tile.height();
    rewrite(tile, [h](int x, int y) { return Point{y, h - 1 - x}; });
    return true;
}

bool rotate_back(Tile& tile) {
    if (tile.width() != tile.height()) return false;
    const int w = tile.width();
    rewrite(tile, [w](int x, int y) { return Point{w - 1 - y, x}; });
    return true;
}

void mirror(Tile& tile) {
    const int w = tile.width();
    rewrite(tile, [w](int x, int y) { return Point{w - 1 - x, y}; });
}

void flip(Tile& tile) {
    const int h = tile.height();
    rewrite(tile, [h](int x, int y) { return Point{x, h - 1 - y}; });
}

void offset_copy(Tile& tile, int ox, int oy) {
    const int w = tile.width();
    const int h = tile.height();
    // Offsets below -size would read outside the copy: they take column 0 too.
    auto wrap = [](int s, int size) { return s < 0 ? (s + size < 0 ? 0 : s + size) : (s >= size ? 0 : s); };
    rewrite(tile, [=](int x, int y) { return Point{wrap(x + ox, w), wrap(y + oy, h)}; });
}
