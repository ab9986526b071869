#include "model/map/tile_map.h"

#include <algorithm>

Tile_Map::Tile_Map(int columns, int rows)
    : width(std::max(columns, 0)),
      height(std::max(rows, 0)),
      cells(size_t(width) * size_t(height), empty),
      turns(size_t(width) * size_t(height), uint8_t(turn::none)) {}

void Tile_Map::set(int x, int y, int tile, int turn) {
    if (is_outside(x, y)) return;
    put(y * width + x, tile, turn);
}

bool Tile_Map::is_blank() const {
    return std::all_of(cells.begin(), cells.end(), [](int c) { return c == empty; });
}

int Tile_Map::highest_tile() const {
    int highest = empty;
    for (int c : cells) highest = std::max(highest, c);
    return highest;
}
