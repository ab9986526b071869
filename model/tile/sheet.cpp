#include "model/tile/sheet.h"

#include <algorithm>
#include <cstring>

namespace sheet {

namespace {
void copy_tile(const Tile& tile, Picture& into, int ox, int oy) {
    for (int y = 0; y < tile.height(); ++y)
        std::memcpy(&into.at(ox, oy + y), tile.pixels() + size_t(y) * size_t(tile.width()),
                    size_t(tile.width()) * sizeof(Color));
}

bool is_empty_slot(const Picture& p, int ox, int oy, int w, int h) {
    const Color first = p.at(ox, oy);
    if (!(first == Color(0, 0, 0, 255)) && first.alpha != 0) return false;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const Color c = p.at(ox + x, oy + y);
            if (first.alpha == 0 ? c.alpha != 0 : !(c == first)) return false;
        }
    return true;
}
}  // namespace

Picture compose(const Tile_Store& store, const Tile* current) {
    const int tw = int(store.tile_width());
    const int th = int(store.tile_height());
    Picture p(columns * tw, rows * th, Color(0, 0, 0, 255));
    const int count = std::min(store.tile_count(), columns * rows);
    for (int i = 0; i < count; ++i) {
        const Tile* tile = current && i == store.current_index() ? current : store.tile_at(i);
        copy_tile(*tile, p, (i % columns) * tw, (i / columns) * th);
    }
    return p;
}

Cut cut(const Picture& picture, int tile_width, int tile_height) {
    Cut result;
    if (tile_width < smallest_tile || tile_width > largest_tile || tile_height < smallest_tile ||
        tile_height > largest_tile) {
        result.refusal = "Tiles are 6 to 64 pixels a side, not " + std::to_string(tile_width) + " x " +
                         std::to_string(tile_height) + ".";
        return result;
    }
    if (picture.width < tile_width || picture.height < tile_height || picture.width % tile_width != 0 ||
        picture.height % tile_height != 0) {
        result.refusal = "The sheet is " + std::to_string(picture.width) + " x " + std::to_string(picture.height) +
                         " pixels, not a whole number of " + std::to_string(tile_width) + " x " +
                         std::to_string(tile_height) + " tiles.";
        return result;
    }
    const int across = picture.width / tile_width;
    const int slots = across * (picture.height / tile_height);
    int count = std::min(slots, most_tiles);
    for (int i = count; i < slots; ++i)
        if (!is_empty_slot(picture, (i % across) * tile_width, (i / across) * tile_height, tile_width, tile_height))
            ++result.left_out;
    while (count > 1 && is_empty_slot(picture, ((count - 1) % across) * tile_width,
                                      ((count - 1) / across) * tile_height, tile_width, tile_height))
        --count;
    result.tiles = std::make_unique<Tile_Store>(uint32_t(tile_width), uint32_t(tile_height), most_tiles);
    for (int i = 0; i < count; ++i) {
        const int ox = (i % across) * tile_width;
        const int oy = (i / across) * tile_height;
        result.tiles->append(std::make_unique<Tile>(tile_width, tile_height, [&](Color* pixels) {
            for (int y = 0; y < tile_height; ++y)
                std::memcpy(pixels + size_t(y) * size_t(tile_width), &picture.at(ox, oy + y),
                            size_t(tile_width) * sizeof(Color));
        }));
    }
    return result;
}

}  // namespace sheet
