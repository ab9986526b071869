#pragma once

#include "model/tile/picture.h"
#include "model/tile/tile_store.h"

class Map_Editor;

// The map as the game would show it: its visible layers drawn together, every
// cell's tiles at their place, empty cells (and cells naming a tile the store
// lacks) fully transparent.
Picture map_image(const Map_Editor& map, const Tile_Store& tiles);
