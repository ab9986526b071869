#include "model/map/layer_stack.h"

#include <algorithm>
#include <utility>

#include "model/map/map_editor.h"
#include "model/map/tile_map.h"
#include "model/tile/tile_store.h"

Layer_Stack::Layer_Stack(std::vector<const Tile_Map*> layers, const Tile_Store& store, const Tile* live,
                         int live_index)
    : maps(std::move(layers)) {
    if (maps.size() > size_t(most)) maps.resize(size_t(most));
    width = height = 0;
    for (const Tile_Map* m : maps) {
        width = std::max(width, m->columns());
        height = std::max(height, m->rows());
    }
    take_tiles(store, live, live_index);
}

Layer_Stack::Layer_Stack(const Map_Editor& editor, const Tile_Store& store, const Tile* live, int live_index) {
    show(editor, store, live, live_index);
}

void Layer_Stack::show(const Map_Editor& editor, const Tile_Store& store, const Tile* live, int live_index) {
    maps.clear();
    for (int i = 0; i < editor.layer_count() && int(maps.size()) < most; ++i)
        if (editor.layer(i).visible) maps.push_back(&editor.layer(i).cells);
    width = editor.map().columns();
    height = editor.map().rows();
    take_tiles(store, live, live_index);
}

// The vectors are refilled, not made anew: a view shows the stack again at
// every change of the map.
void Layer_Stack::take_tiles(const Tile_Store& store, const Tile* live, int live_index) {
    live_tile = live;
    live_at = live ? live_index : -2;
    live_opaque = -1;
    tile_list.clear();
    for (const auto& tile : store.all()) tile_list.push_back(tile.get());
    opaque.assign(tile_list.size(), int8_t(-1));
}

bool Layer_Stack::is_opaque(int index, const Tile* tile) const {
    int8_t& known = tile == live_tile ? live_opaque : opaque[size_t(index)];
    if (known < 0) {
        const Color* p = tile->pixels();
        known = int8_t(std::all_of(p, p + tile->pixel_count(), [](Color c) { return c.alpha == 255; }));
    }
    return known == 1;
}

void Layer_Stack::at(int x, int y, Cell& out) const {
    out.count = 0;
    for (const Tile_Map* m : maps) {
        const int index = m->at(x, y);
        const Tile* tile = index == live_at                           ? live_tile
                           : index >= 0 && index < int(tile_list.size()) ? tile_list[size_t(index)]
                                                                         : nullptr;
        if (!tile) continue;
        if (is_opaque(index, tile)) out.count = 0;
        out.tiles[out.count] = tile;
        out.indices[out.count] = index;
        out.turns[out.count] = uint8_t(m->turn_at(x, y));
        ++out.count;
    }
}

bool Layer_Stack::holds(int cell, int tile) const {
    return std::any_of(maps.begin(), maps.end(), [&](const Tile_Map* m) { return m->at(cell % width, cell / width) == tile; });
}

uint64_t Layer_Stack::key(int cell) const {
    const int x = cell % width, y = cell / width;
    uint64_t k = 0;
    for (const Tile_Map* m : maps) {
        const int index = m->at(x, y);
        if (index < 0 || index >= int(tile_list.size())) continue;
        // Mixed in layer by layer, so the order counts.
        k = (k ^ uint64_t(index * 8 + m->turn_at(x, y) + 1)) * 0x100000001b3ull;
        k ^= k >> 29;
    }
    return k;
}

Color Layer_Stack::pixel(const Cell& cell, int x, int y) {
    if (cell.count == 0) return Color(0, 0, 0, 0);
    Color c = turn::pixel(*cell.tiles[0], cell.turns[0], x, y);
    for (int i = 1; i < cell.count; ++i) c = composited(c, turn::pixel(*cell.tiles[i], cell.turns[i], x, y));
    return c;
}

Color composited(Color below, Color above) {
    const int a = above.alpha;
    if (a == 255 || below.alpha == 0) return above;
    if (a == 0) return below;
    // Straight alpha: the colours weighed by how much of each is seen.
    const int seen_below = below.alpha * (255 - a) / 255;
    const int out = a + seen_below;
    auto mix = [&](int d, int s) { return uint8_t((s * a + d * seen_below) / out); };
    return Color(mix(below.red, above.red), mix(below.green, above.green), mix(below.blue, above.blue), uint8_t(out));
}
