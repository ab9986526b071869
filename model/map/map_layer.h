#pragma once

#include <string>
#include <utility>

#include "model/map/tile_map.h"

// One tile layer of a map: its cells, its name and whether it is shown. The
// layers lie bottom first; a cell shows every visible layer's tile there,
// each drawn over the ones below.
struct Map_Layer {
    Map_Layer(std::string layer_name, int columns, int rows, int layer_id)
        : name(std::move(layer_name)), cells(columns, rows), id(layer_id) {}

    std::string name;
    bool visible = true;
    Tile_Map cells;
    // The layer's id in the map file, unique among the map's layers.
    int id = 0;
    // Which tile layer of the map file it was read from or last written to
    // (its id there, or minus its place for a layer the file gave no id); 0
    // for a layer the file does not have yet.
    int file_key = 0;
};
