#include "model/selection/anti_alias.h"

#include <unordered_map>
#include <vector>

#include "model/tile/tile.h"
#include "model/selection/mask_ops.h"

namespace {
Color half_way(Color a, Color b) {
    auto mid = [](int p, int q) { return uint8_t((p + q + 1) / 2); };
    return Color(mid(a.red, b.red), mid(a.green, b.green), mid(a.blue, b.blue), mid(a.alpha, b.alpha));
}
}  // namespace

int anti_alias(Tile& tile, const Tile* mask) {
    const int w = tile.width();
    const int h = tile.height();
    const std::vector<Color> before(tile.pixels(), tile.pixels() + tile.pixel_count());
    const bool selective = mask && mask->same_size(tile) && mask_ops::any_selected(*mask);
    auto at = [&](int x, int y, Color own) {
        return x < 0 || y < 0 || x >= w || y >= h ? own : before[size_t(y * w + x)];
    };
    std::unordered_map<uint32_t, int> frequency;
    for (const Color& c : before) ++frequency[c.word()];
    int changed = 0;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            if (selective && !mask_ops::is_selected(*mask, x, y)) continue;
            const Color own = before[size_t(y * w + x)];
            for (int dy : {-1, 1}) {
                bool done = false;
                for (int dx : {-1, 1}) {
                    const Color side = at(x + dx, y, own);
                    if (side == own || !(at(x, y + dy, own) == side) || !(at(x + dx, y + dy, own) == side)) continue;
                    if (!(at(x - dx, y, own) == own) || !(at(x, y - dy, own) == own)) continue;
                    // The rarer colour is the shape: its steps are softened on the outside.
                    if (frequency[own.word()] < frequency[side.word()]) continue;
                    tile.set_pixel(x, y, half_way(own, side));
                    ++changed;
                    done = true;
                    break;
                }
                if (done) break;
            }
        }
    return changed;
}
