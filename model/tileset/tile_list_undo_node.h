#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "model/tileset/undo_node.h"

class Tile_Uses;
class Tile_Selection;

// A change of the tileset's list of tiles: a tile put in, a tile taken out
// (with what named it, such as the map's cells) or the tiles put in another
// order. Undo takes the change back and redo makes it again from what the
// record holds, so both give back exactly the tiles before and after, in
// order; no command runs for it. The tile copy of the base record is the
// current tile after the change, as for every record.
class TileListUndoNode : public ImageUndoNode {
public:
    enum class Kind { inserted, removed, cleared, reordered };

    // Each is made right after the change, from the store and the document's
    // selection and floating image (none without one).
    // A tile put in at the place: the record's current tile is that tile.
    static std::unique_ptr<TileListUndoNode> inserted(int32_t command, int place, const Tile_Store& store,
                                                      const Tile_Selection* selection);
    // The tile taken out of the place, and what named it.
    static std::unique_ptr<TileListUndoNode> removed(int32_t command, int place, std::unique_ptr<Tile> tile,
                                                     std::unique_ptr<Tile_Uses> uses, const Tile_Store& store,
                                                     const Tile_Selection* selection);
    // The only tile was cleared instead of removed: the pixels are the whole change.
    static std::unique_ptr<TileListUndoNode> cleared(int32_t command, const Tile_Store& store,
                                                     const Tile_Selection* selection);
    // order[i] is the place the tile now at i stood before.
    static std::unique_ptr<TileListUndoNode> reordered(int32_t command, std::vector<int> order,
                                                       const Tile_Store& store, const Tile_Selection* selection);
    ~TileListUndoNode() override;

    Kind kind() const { return change; }
    bool holds_change() const override { return true; }
    // Before the record before this one is applied.
    void revert(Tile_Store& store) const override;
    // Before this record is applied again.
    void reapply(Tile_Store& store) const override;

private:
    TileListUndoNode(int32_t command, Kind kind, int place, const Tile_Store& store, const Tile_Selection* selection);

    Kind change;
    int place;
    std::unique_ptr<Tile> taken;
    // Changes hands each time the tile leaves and comes back.
    mutable std::unique_ptr<Tile_Uses> uses;
    std::vector<int> order;
};
