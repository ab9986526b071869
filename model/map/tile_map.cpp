#include "model/map/tile_map.h"

#include <algorithm>

Tile_Map::Tile_Map(int columns, int rows)
    : width(std::max(columns, 0)), height(std::max(rows, 0)), cells(size_t(width) * size_t(height), empty) {}

void Tile_Map::set(int x, int y, int tile) {
    if (is_outside(x, y)) return;
    cells[size_t(y * width + x)] = tile < 0 ? empty : tile;
}

bool Tile_Map::is_blank() const {
    return std::all_of(cells.begin(), cells.end(), [](int c) { return c == empty; });
}

int Tile_Map::highest_tile() const {
    int highest = empty;
    for (int c : cells) highest = std::max(highest, c);
    return highest;
}
