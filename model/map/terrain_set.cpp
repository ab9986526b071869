#include "model/map/terrain_set.h"

#include <algorithm>
#include <set>

#include "model/map/tile_map.h"

namespace {
// Distinct colours for the terrains the editor adds, light enough to read
// corner marks over dark tiles and dark enough over light ones.
constexpr Color terrain_colors[Terrain_Set::most_terrains] = {
    Color(70, 170, 60), Color(40, 110, 220), Color(200, 160, 90), Color(220, 60, 60),
    Color(230, 210, 60), Color(150, 80, 200), Color(60, 200, 200), Color(240, 140, 40)};
const char* const terrain_names[Terrain_Set::most_terrains] = {"Grass", "Water", "Sand", "Lava",
                                                                "Field", "Rock", "Ice", "Dirt"};

// A small integer hash: neighbouring cells land far apart.
uint32_t mix(uint32_t h) {
    h ^= h >> 16;
    h *= 0x7feb352dU;
    h ^= h >> 15;
    h *= 0x846ca68bU;
    h ^= h >> 16;
    return h;
}
}  // namespace

bool Terrain_Set::operator==(const Terrain_Set& other) const {
    if (name != other.name || members != other.members || terrains.size() != other.terrains.size()) return false;
    for (size_t i = 0; i < terrains.size(); ++i)
        if (terrains[i].name != other.terrains[i].name || !(terrains[i].color == other.terrains[i].color)) return false;
    return true;
}

bool Terrain_Set::add_terrain() {
    const int n = terrain_count();
    if (n >= most_terrains) return false;
    terrains.push_back(Terrain{terrain_names[n], terrain_colors[n]});
    return true;
}

void Terrain_Set::remove_terrain(int terrain) {
    if (terrain < 1 || terrain > terrain_count()) return;
    index_stale = true;
    terrains.erase(terrains.begin() + (terrain - 1));
    for (auto it = members.begin(); it != members.end();) {
        for (uint8_t& c : it->second) c = c == terrain ? 0 : c > terrain ? uint8_t(c - 1) : c;
        if (it->second == Corners{})
            it = members.erase(it);
        else
            ++it;
    }
}

Terrain_Set::Corners Terrain_Set::corners(int tile) const {
    const auto it = members.find(tile);
    return it == members.end() ? Corners{} : it->second;
}

void Terrain_Set::set_corners(int tile, const Corners& corners) {
    if (tile < 0) return;
    index_stale = true;
    if (corners == Corners{})
        members.erase(tile);
    else
        members[tile] = corners;
}

bool Terrain_Set::complete(const Corners& corners) const {
    return std::all_of(corners.begin(), corners.end(), [&](uint8_t c) { return c >= 1 && c <= terrain_count(); });
}

int Terrain_Set::tile_for(const Corners& wanted, int x, int y) const {
    if (index_stale) {
        by_corners.clear();
        for (const auto& [tile, c] : members) by_corners[c].push_back(tile);
        index_stale = false;
    }
    const auto found = by_corners.find(wanted);
    if (found == by_corners.end()) return -1;
    const std::vector<int>& matching = found->second;
    const uint32_t h = mix(uint32_t(x) * 73856093U ^ mix(uint32_t(y) * 19349663U));
    return matching[h % matching.size()];
}

int Terrain_Set::combination_count() const {
    const int n = terrain_count();
    return n * n * n * n;
}

int Terrain_Set::drawn_count() const {
    std::set<Corners> drawn;
    for (const auto& [tile, c] : members)
        if (complete(c)) drawn.insert(c);
    return int(drawn.size());
}

std::vector<Terrain_Set::Corners> Terrain_Set::missing() const {
    std::set<Corners> drawn;
    for (const auto& [tile, c] : members) drawn.insert(c);
    std::vector<Corners> out;
    const int n = terrain_count();
    for (int i = 0; i < combination_count(); ++i) {
        Corners c{uint8_t(i / (n * n * n) + 1), uint8_t(i / (n * n) % n + 1), uint8_t(i / n % n + 1),
                  uint8_t(i % n + 1)};
        if (!drawn.count(c)) out.push_back(c);
    }
    return out;
}

void Terrain_Set::tile_inserted(int index) {
    index_stale = true;
    std::map<int, Corners> moved;
    for (const auto& [tile, c] : members) moved[Tile_Map::inserted(tile, index)] = c;
    members.swap(moved);
}

void Terrain_Set::move_tile(int from, int to) {
    const auto it = members.find(from);
    if (it == members.end()) return;
    index_stale = true;
    const Corners c = it->second;
    members.erase(it);
    members[to] = c;
}

void Terrain_Set::tile_removed(int index) {
    index_stale = true;
    std::map<int, Corners> moved;
    for (const auto& [tile, c] : members)
        if (const int t = Tile_Map::removed(tile, index); t >= 0) moved[t] = c;
    members.swap(moved);
}

void Terrain_Set::tiles_swapped(int a, int b) {
    index_stale = true;
    std::map<int, Corners> moved;
    for (const auto& [tile, c] : members) moved[Tile_Map::swapped(tile, a, b)] = c;
    members.swap(moved);
}
