#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "model/map/tile_map.h"

// How a map file names a cell's tile: a global id (the tileset's first id
// plus the tile's index, 0 for an empty cell) with the cell's flips in its
// top bits: across, upside down, diagonal, and a hexagonal turn this editor
// does not show.
namespace gid {
constexpr uint32_t flag_bits = 0xF0000000u;
constexpr uint32_t flip_h_bit = 0x80000000u, flip_v_bit = 0x40000000u, diagonal_bit = 0x20000000u,
                   hexagonal_bit = 0x10000000u;

inline int turn_of(uint32_t value) {
    return (value & flip_h_bit ? turn::flip_h : 0) | (value & flip_v_bit ? turn::flip_v : 0) |
           (value & diagonal_bit ? turn::diagonal : 0);
}
inline uint32_t flags_of(int t) {
    return (t & turn::flip_h ? flip_h_bit : 0) | (t & turn::flip_v ? flip_v_bit : 0) |
           (t & turn::diagonal ? diagonal_bit : 0);
}

// What tells the map file's tile layers apart, from their "id" attributes
// in the file's order: the id where it is a number above 0 that no other
// layer has, else minus the layer's place (counted from 1).
inline std::vector<int> layer_keys(const std::vector<std::string>& ids) {
    std::vector<int> keys;
    for (size_t i = 0; i < ids.size(); ++i) {
        char* end = nullptr;
        const long id = std::strtol(ids[i].c_str(), &end, 10);
        int same = 0;
        for (const std::string& other : ids) same += other == ids[i];
        const bool usable = !ids[i].empty() && *end == '\0' && id > 0 && id < (1L << 30) && same == 1;
        keys.push_back(usable ? int(id) : -int(i + 1));
    }
    return keys;
}
}  // namespace gid
