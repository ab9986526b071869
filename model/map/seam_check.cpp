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
    // Turned cells are compared pixel by pixel as they show; unturned pairs
    // through the table.
    auto turned_meet = [&](bool vertical, int a, int ta, int b, int tb) {
        const int n = vertical ? h : w;
        for (int i = 0; i < n; ++i) {
            const Color pa = vertical ? turn::pixel(*tiles[a], ta, w - 1, i) : turn::pixel(*tiles[a], ta, i, h - 1);
            const Color pb = vertical ? turn::pixel(*tiles[b], tb, 0, i) : turn::pixel(*tiles[b], tb, i, 0);
            if (differ(pa, pb)) return false;
        }
        return true;
    };
    auto joins = [&](bool vertical, int x, int y, int nx, int ny) {
        const int a = map.at(x, y), b = map.at(nx, ny);
        const int ta = map.turn_at(x, y), tb = map.turn_at(nx, ny);
        return ta == turn::none && tb == turn::none ? meets(vertical, a, b) : turned_meet(vertical, a, ta, b, tb);
    };
    for (int y = 0; y < map.rows(); ++y)
        for (int x = 0; x < map.columns(); ++x) {
            const int here = map.at(x, y);
            if (!placed(here)) continue;
            if (placed(map.at(x + 1, y)) && !joins(true, x, y, x + 1, y)) found.push_back(Seam{x, y, true});
            if (placed(map.at(x, y + 1)) && !joins(false, x, y, x, y + 1)) found.push_back(Seam{x, y, false});
        }
    return found;
}
