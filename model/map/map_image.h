#pragma once

#include "model/tile/picture.h"
#include "model/tile/tile_store.h"
#include "model/map/tile_map.h"

// The map as the game would show it: every cell's tile at its place, empty
// cells (and cells naming a tile the store lacks) fully transparent.
Picture map_image(const Tile_Map& map, const Tile_Store& tiles);
