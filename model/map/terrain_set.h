#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "model/color/color.h"

// A corner-based terrain set, kept in the map file as a corner "wang set" of
// the map's tileset so that other map tools paint with it too. A tile of the
// set has a terrain at each of its four corners; painting terrains on the map
// gives each cell the tile whose corners match the terrains at the cell's
// corners. The set knows which of the corner combinations have no tile yet.
class Terrain_Set {
public:
    // A map file may name up to 254 terrains; the editor draws at most 8.
    static constexpr int most_terrains = 8;
    enum Corner { top_left, top_right, bottom_right, bottom_left };
    // Terrain 1..count at each corner, 0 for none; a tile is in the set when
    // any corner has a terrain.
    using Corners = std::array<uint8_t, 4>;

    struct Terrain {
        std::string name;
        Color color;
    };

    std::string name = "Terrain";
    std::vector<Terrain> terrains;

    bool operator==(const Terrain_Set& other) const;
    bool is_empty() const { return terrains.empty() && members.empty(); }

    int terrain_count() const { return int(terrains.size()); }
    // A new terrain with a name and colour of its own; false when there are
    // most_terrains already.
    bool add_terrain();
    // The terrain's corners become empty; the ones above it move down.
    void remove_terrain(int terrain);

    // All 0 for a tile outside the set.
    Corners corners(int tile) const;
    void set_corners(int tile, const Corners& corners);
    // Every corner names one of the set's terrains.
    bool complete(const Corners& corners) const;
    const std::map<int, Corners>& tiles() const { return members; }

    // The tile for a cell whose corners want these terrains: one of the tiles
    // that match, chosen by the cell's place so that painting again gives the
    // same; -1 when no tile matches.
    int tile_for(const Corners& wanted, int x, int y) const;

    // Combinations of terrains at four corners: count to the fourth power.
    int combination_count() const;
    // Those with a tile, and those without in order (the first corner
    // counting slowest).
    int drawn_count() const;
    std::vector<Corners> missing() const;

    // The set follows the tile list as the map's cells do.
    void tile_inserted(int index);
    // The corners kept under one tile index move to another (the map's
    // history keeps a deleted tile's under a negative mark until it returns).
    void move_tile(int from, int to);
    void tile_removed(int index);
    void tiles_swapped(int a, int b);

private:
    std::map<int, Corners> members;
    // The tiles of each combination, made again after any change of the
    // members: the map window asks for every cell at every change of the map.
    mutable std::map<Corners, std::vector<int>> by_corners;
    mutable bool index_stale = true;
};
