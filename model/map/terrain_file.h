#pragma once

#include <string>

#include "model/map/terrain_set.h"

namespace tinyxml2 {
class XMLElement;
}

// The terrain set in the map file: the first wang set of corner type in the
// map's tileset, as the map tools that read the file store terrains.
namespace terrain_file {

// From the tileset element; false when it has no corner wang set. What could
// not be taken (terrains past the eighth, tiles past the tileset's count,
// corners naming no terrain) is left out and said in problems, a line each.
bool read(const tinyxml2::XMLElement* tileset, int tile_count, Terrain_Set& into, std::string& problems);

// The <wangset> element for the set, its children indented one step further.
std::string wangset_text(const Terrain_Set& set, const std::string& indent);

}  // namespace terrain_file
