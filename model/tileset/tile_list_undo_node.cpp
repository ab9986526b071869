#include "model/tileset/tile_list_undo_node.h"

#include <utility>

#include "model/tile/tile.h"
#include "model/tile/tile_store.h"
#include "model/selection/tile_selection.h"

namespace {
// Puts the tiles back into the order they had before a reordering (back),
// or into the reordered one again, by swaps the store reports to its watcher.
void arrange(Tile_Store& store, const std::vector<int>& order, bool back) {
    const int n = int(order.size());
    if (n != store.tile_count()) return;
    // target[k]: where the tile now at k must go.
    std::vector<int> target(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i) {
        if (back)
            target[size_t(i)] = order[size_t(i)];
        else
            target[size_t(order[size_t(i)])] = i;
    }
    for (int p = 0; p < n; ++p)
        while (target[size_t(p)] != p) {
            const int q = target[size_t(p)];
            store.swap_tiles(p, q);
            std::swap(target[size_t(p)], target[size_t(q)]);
        }
}
}  // namespace

TileListUndoNode::TileListUndoNode(int32_t command, Kind kind, int place, const Tile_Store& store,
                                   const Tile_Selection* selection)
    : ImageUndoNode(command, store.current_index(), *store.tile_at(store.current_index()),
                    selection && selection->active() ? selection->mask() : nullptr,
                    selection ? selection->floating_image() : nullptr, selection ? selection->float_x() : 0,
                    selection ? selection->float_y() : 0),
      change(kind),
      place(place) {
    // A tile-list record runs no command on undo or redo: it holds the change.
    undo = command;
    redo = -1;
}

TileListUndoNode::~TileListUndoNode() = default;

std::unique_ptr<TileListUndoNode> TileListUndoNode::inserted(int32_t command, int place, const Tile_Store& store,
                                                             const Tile_Selection* selection) {
    return std::unique_ptr<TileListUndoNode>(new TileListUndoNode(command, Kind::inserted, place, store, selection));
}

std::unique_ptr<TileListUndoNode> TileListUndoNode::removed(int32_t command, int place, std::unique_ptr<Tile> tile,
                                                            std::unique_ptr<Tile_Uses> tile_uses,
                                                            const Tile_Store& store, const Tile_Selection* selection) {
    auto node =
        std::unique_ptr<TileListUndoNode>(new TileListUndoNode(command, Kind::removed, place, store, selection));
    node->taken = std::move(tile);
    node->uses = std::move(tile_uses);
    return node;
}

std::unique_ptr<TileListUndoNode> TileListUndoNode::cleared(int32_t command, const Tile_Store& store,
                                                            const Tile_Selection* selection) {
    return std::unique_ptr<TileListUndoNode>(new TileListUndoNode(command, Kind::cleared, 0, store, selection));
}

std::unique_ptr<TileListUndoNode> TileListUndoNode::reordered(int32_t command, std::vector<int> order,
                                                              const Tile_Store& store,
                                                              const Tile_Selection* selection) {
    auto node = std::unique_ptr<TileListUndoNode>(
        new TileListUndoNode(command, Kind::reordered, store.current_index(), store, selection));
    node->order = std::move(order);
    return node;
}

void TileListUndoNode::revert(Tile_Store& store) const {
    switch (change) {
        case Kind::inserted:
            store.remove_at(place, &uses);
            break;
        case Kind::removed:
            store.insert_at(place, copy_of(*taken), uses.get());
            uses.reset();
            break;
        case Kind::cleared:
            break;
        case Kind::reordered:
            arrange(store, order, true);
            break;
    }
}

void TileListUndoNode::reapply(Tile_Store& store) const {
    switch (change) {
        case Kind::inserted:
            // The tile as it stood after the change; the record's apply sets it again.
            store.insert_at(place, copy_of(tile()), uses.get());
            uses.reset();
            break;
        case Kind::removed:
            store.remove_at(place, &uses);
            break;
        case Kind::cleared:
            break;
        case Kind::reordered:
            arrange(store, order, false);
            break;
    }
}
