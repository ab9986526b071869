#include "model/map/seam_check.h"

#include <algorithm>
#include <cstdlib>

#include "model/tile/tile_store.h"
#include "model/map/tile_map.h"

bool Seam_Check::differ(Color a, Color b) const {
    if (a.alpha == 0 && b.alpha == 0) return false;
    const int most = std::max({std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue),
                               std::abs(a.alpha - b.alpha)});
    return most > limit;
}

const std::vector<Seam>& Seam_Check::run(const Tile_Map& map, const Tile_Store& store) {
    found.clear();
    pairs.assign(2 * 65536, 0);
    const int count = std::min(store.tile_count(), 256);
    const Tile* tiles[256] = {};
    {
        int i = 0;
        for (const auto& tile : store.all()) {
            if (i >= count) break;
            tiles[i++] = tile.get();
        }
    }
    const int w = int(store.tile_width());
    const int h = int(store.tile_height());
    auto placed = [&](int t) { return t >= 0 && t < count; };
    // The right column of a against the left column of b, or the bottom row of a against the top row of b.
    auto meets = [&](bool vertical, int a, int b) {
        uint8_t& known = memo(vertical, a, b);
        if (known == 0) {
            const Color* pa = tiles[a]->pixels();
            const Color* pb = tiles[b]->pixels();
            bool seam = false;
            if (vertical) {
                for (int y = 0; y < h && !seam; ++y) seam = differ(pa[y * w + w - 1], pb[y * w]);
            } else {
                for (int x = 0; x < w && !seam; ++x) seam = differ(pa[(h - 1) * w + x], pb[x]);
            }
            known = seam ? 2 : 1;
        }
        return known == 1;
    };
    for (int y = 0; y < map.rows(); ++y)
        for (int x = 0; x < map.columns(); ++x) {
            const int here = map.at(x, y);
            if (!placed(here)) continue;
            const int right = map.at(x + 1, y);
            if (placed(right) && !meets(true, here, right)) found.push_back(Seam{x, y, true});
            const int below = map.at(x, y + 1);
            if (placed(below) && !meets(false, here, below)) found.push_back(Seam{x, y, false});
        }
    return found;
}
