#include "model/map/map_image.h"

#include "model/map/layer_stack.h"
#include "model/map/map_editor.h"

Picture map_image(const Map_Editor& map, const Tile_Store& tiles) {
    const Layer_Stack layers(map, tiles);
    const int tw = int(tiles.tile_width());
    const int th = int(tiles.tile_height());
    Picture p(layers.columns() * tw, layers.rows() * th, Color(0, 0, 0, 0));
    Layer_Stack::Cell cell;
    for (int cy = 0; cy < layers.rows(); ++cy)
        for (int cx = 0; cx < layers.columns(); ++cx) {
            layers.at(cx, cy, cell);
            if (cell.count == 0) continue;
            for (int y = 0; y < th; ++y)
                for (int x = 0; x < tw; ++x) p.at(cx * tw + x, cy * th + y) = Layer_Stack::pixel(cell, x, y);
        }
    return p;
}
