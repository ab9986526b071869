#pragma once

#include <memory>
#include <string>

#include "model/tile/picture.h"
#include "model/tile/tile_store.h"

// A tileset laid out as one picture and a picture cut back into tiles.
namespace sheet {

// The exported sheet: 16 x 16 tile slots whatever the number of tiles, tile i
// at column i mod 16 and row i / 16; empty slots opaque black, tiles past the
// 256th left out. A current tile given stands in for the store's current one.
constexpr int columns = 16;
constexpr int rows = 16;
Picture compose(const Tile_Store& store, const Tile* current = nullptr);

// Tile sizes a sheet may be cut into, as for a new tileset.
constexpr int smallest_tile = 6;
constexpr int largest_tile = 64;
constexpr int most_tiles = 256;

struct Cut {
    std::unique_ptr<Tile_Store> tiles;  // none when refused
    std::string refusal;                // why, in a sentence for the user
    int left_out = 0;                   // tiles past the 256th
};
// The picture cut row by row into tiles of the size. Refused when the size is
// outside 6..64 or the picture is not a whole number of tiles in each
// direction. Slots at the end that hold one flat colour which is opaque
// black (an exported sheet's empty slot) or fully transparent are empty
// slots, not tiles; at least one tile is kept.
Cut cut(const Picture& picture, int tile_width, int tile_height);

}  // namespace sheet
