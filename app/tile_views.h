#pragma once

#include <vector>

class Tileset;

// The tileset's views that may change which tile is current or where tiles
// stand. Each answers with the command the dispatch goes on with: the one
// to record and to refresh the canvas after, or -1 when nothing changed.

// "View in real size": "Select tile" when another tile was chosen in it.
int view_in_real_size(Tileset& tileset);
// "Arrange/Select": the command itself when tiles were swapped, with order[i]
// the place the tile now at i stood before (for its undo record), "Select
// tile" when only another tile was made current.
int arrange_tiles(Tileset& tileset, std::vector<int>& order);
// "Map editor": "Select tile" when a tile was chosen or picked in it that
// is not the current one; an edited map marks the tileset modified.
int edit_map(Tileset& tileset);
// "View tile array": shows the current tile repeated; changes nothing.
void view_tile_array(Tileset& tileset);
