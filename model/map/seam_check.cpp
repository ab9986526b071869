#include "model/map/seam_check.h"

#include <algorithm>
#include <cstdlib>

#include "model/tile/tile_store.h"
#include "model/map/layer_stack.h"
#include "model/map/tile_map.h"

bool Seam_Check::differ(Color a, Color b) const {
    if (a.alpha == 0 && b.alpha == 0) return false;
    const int most = std::max({std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue),
                               std::abs(a.alpha - b.alpha)});
    return most > limit;
}

const std::vector<Seam>& Seam_Check::run(const Tile_Map& map, const Tile_Store& store) {
    return run(Layer_Stack({&map}, store), store);
}

const std::vector<Seam>& Seam_Check::run(const Layer_Stack& layers, const Tile_Store& store) {
    found.clear();
    pairs.assign(2 * 65536, 0);
    const int w = int(store.tile_width());
    const int h = int(store.tile_height());
    // The right column of a against the left column of b, or the bottom row
    // of a against the top row of b, remembered by the tiles' indices.
    auto meets = [&](bool vertical, const Tile* a, int ia, const Tile* b, int ib) {
        uint8_t& known = memo(vertical, ia & 255, ib & 255);
        if (known == 0) {
            const Color* pa = a->pixels();
            const Color* pb = b->pixels();
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
    // Turned or stacked cells are compared pixel by pixel as they show;
    // single unturned tiles through the table.
    auto seen_meet = [&](bool vertical, const Layer_Stack::Cell& a, const Layer_Stack::Cell& b) {
        const int n = vertical ? h : w;
        for (int i = 0; i < n; ++i) {
            const Color pa = vertical ? Layer_Stack::pixel(a, w - 1, i) : Layer_Stack::pixel(a, i, h - 1);
            const Color pb = vertical ? Layer_Stack::pixel(b, 0, i) : Layer_Stack::pixel(b, i, 0);
            if (differ(pa, pb)) return false;
        }
        return true;
    };
    auto joins = [&](bool vertical, const Layer_Stack::Cell& a, const Layer_Stack::Cell& b) {
        const bool plain = a.count == 1 && b.count == 1 && a.turns[0] == turn::none && b.turns[0] == turn::none;
        return plain ? meets(vertical, a.tiles[0], a.indices[0], b.tiles[0], b.indices[0]) : seen_meet(vertical, a, b);
    };
    // Each cell gathered once: the row and the row below it.
    const int columns = layers.columns();
    rows[0].resize(size_t(columns) + 1);
    rows[1].resize(size_t(columns) + 1);
    for (int x = 0; x <= columns; ++x) layers.at(x, 0, rows[0][size_t(x)]);
    for (int y = 0; y < layers.rows(); ++y) {
        std::vector<Layer_Stack::Cell>& row = rows[size_t(y % 2)];
        std::vector<Layer_Stack::Cell>& next = rows[size_t((y + 1) % 2)];
        for (int x = 0; x <= columns; ++x) layers.at(x, y + 1, next[size_t(x)]);
        for (int x = 0; x < columns; ++x) {
            const Layer_Stack::Cell& here = row[size_t(x)];
            if (here.count == 0) continue;
            if (row[size_t(x) + 1].count > 0 && !joins(true, here, row[size_t(x) + 1])) found.push_back(Seam{x, y, true});
            if (next[size_t(x)].count > 0 && !joins(false, here, next[size_t(x)])) found.push_back(Seam{x, y, false});
        }
    }
    return found;
}
