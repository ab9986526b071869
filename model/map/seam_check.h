#pragma once

#include <cstdint>
#include <vector>

#include "model/color/color.h"
#include "model/map/layer_stack.h"

class Tile_Map;
class Tile_Store;

// Where two neighbouring placed tiles do not meet: an edge of the map's grid.
struct Seam {
    int x;  // the cell left of or above the edge
    int y;
    bool vertical;  // between (x, y) and (x + 1, y); otherwise (x, y) and (x, y + 1)
    bool operator==(const Seam&) const = default;
};

// Finds the seams of a map. Across each edge between two placed tiles the
// pixel pairs that touch are compared: a pair differs when any channel, alpha
// included, differs by more than the threshold; two fully transparent pixels
// never differ, whatever colour they hide. One differing pair makes the edge
// a seam. Tile pairs are compared once per check, however often they meet.
class Seam_Check {
public:
    static constexpr int default_threshold = 48;

    explicit Seam_Check(int threshold = default_threshold) : limit(threshold) {}

    // The seams, left to right and top to bottom, each cell's vertical edge
    // before its horizontal one. Indices past the store's tiles count as empty.
    const std::vector<Seam>& run(const Tile_Map& map, const Tile_Store& store);
    // The same for layers drawn together: where a cell shows more than one
    // tile, the pixels compared are the ones seen.
    const std::vector<Seam>& run(const Layer_Stack& layers, const Tile_Store& store);
    const std::vector<Seam>& seams() const { return found; }
    int threshold() const { return limit; }

    // Whether the two pixels differ beyond the threshold.
    bool differ(Color a, Color b) const;

private:
    // 0 not yet compared, 1 meets, 2 a seam; one table for each direction.
    uint8_t& memo(bool vertical, int a, int b) { return pairs[(vertical ? 0 : 1) * 65536 + a * 256 + b]; }

    int limit;
    std::vector<Seam> found;
    // What two rows of cells show, kept between checks.
    std::vector<Layer_Stack::Cell> rows[2];
    std::vector<uint8_t> pairs;
};
