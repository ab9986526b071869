#include "model/map/map_image.h"

#include <cstring>

Picture map_image(const Tile_Map& map, const Tile_Store& tiles) {
    const int tw = int(tiles.tile_width());
    const int th = int(tiles.tile_height());
    Picture p(map.columns() * tw, map.rows() * th, Color(0, 0, 0, 0));
    for (int cy = 0; cy < map.rows(); ++cy)
        for (int cx = 0; cx < map.columns(); ++cx) {
            const int index = map.at(cx, cy);
            if (index < 0 || index >= tiles.tile_count()) continue;
            const Tile& tile = *tiles.tile_at(index);
            const int t = map.turn_at(cx, cy);
            for (int y = 0; y < th; ++y) {
                if (t == turn::none) {
                    std::memcpy(&p.at(cx * tw, cy * th + y), tile.pixels() + size_t(y) * size_t(tw),
                                size_t(tw) * sizeof(Color));
                    continue;
                }
                for (int x = 0; x < tw; ++x) p.at(cx * tw + x, cy * th + y) = turn::pixel(tile, t, x, y);
            }
        }
    return p;
}
