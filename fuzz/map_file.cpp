// The map file read beside a loaded tileset, fed through a file as loading does.
#include <cstdlib>
#include <string>

#include "fuzz/support.h"
#include "model/map/map_editor.h"
#include "model/map/map_file.h"

namespace {
constexpr int tile_count = 10;
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::string path = (fuzz::private_dir() / "input.tmx").string();
    fuzz::write_file(path, data, size);
    Map_Editor map(24, 24);
    const Map_File::Reading r = Map_File::read(path, map, 24, 24, tile_count);
    if (!r.found) std::abort();
    // Whatever the file says, only tiles the tileset has land in the map, one
    // placed cell for each the reading counted.
    int placed = 0;
    for (int l = 0; l < map.layer_count(); ++l)
        for (int c = 0; c < map.layer(l).cells.cell_count(); ++c) {
            const int tile = map.layer(l).cells.at(c);
            if (tile >= tile_count || tile < Tile_Map::empty) std::abort();
            placed += tile != Tile_Map::empty;
        }
    if (placed != r.cells) std::abort();
    if (r.whole != r.problems.empty()) std::abort();
    // The terrain set names only tiles the tileset has, and its own terrains.
    const Terrain_Set& terrain = map.terrain();
    if (terrain.terrain_count() > Terrain_Set::most_terrains) std::abort();
    for (const auto& [tile, corners] : terrain.tiles()) {
        if (tile < 0 || tile >= tile_count) std::abort();
        for (uint8_t c : corners)
            if (c > terrain.terrain_count()) std::abort();
    }
    // Written back into the same text (only the tile layers are replaced),
    // the map reads back layer for layer, cell for cell.
    static const std::string out = (fuzz::private_dir() / "output.tmx").string();
    const std::string source(reinterpret_cast<const char*>(data), size);
    if (!Map_File::write(map, 24, 24, out, source)) std::abort();
    Map_Editor back(24, 24);
    const Map_File::Reading again = Map_File::read(out, back, 24, 24, tile_count);
    // Every layer comes back under its id (a layer the map could not read
    // stays in the file and may read once the map has a size of its own).
    for (int l = 0; l < map.layer_count(); ++l) {
        int found = -1;
        for (int k = 0; k < back.layer_count(); ++k)
            if (back.layer(k).id == map.layer(l).id) found = k;
        if (found < 0) std::abort();
        const Tile_Map& a = map.layer(l).cells;
        const Tile_Map& b = back.layer(found).cells;
        if (back.layer(found).name != map.layer(l).name || back.layer(found).visible != map.layer(l).visible)
            std::abort();
        for (int c = 0; c < a.cell_count(); ++c)
            if (b.at(c) != a.at(c) || b.turn_at(c) != a.turn_at(c)) std::abort();
    }
    if (!again.found) std::abort();
    return 0;
}
