#pragma once

#include <cstdint>
#include <list>
#include <memory>

#include "model/tile/tile.h"

// Whatever named one tile elsewhere (the map's cells) when the tile left the
// list: kept by the undo record so that the tile comes back with its uses.
class Tile_Uses {
public:
    virtual ~Tile_Uses() = default;
};

// Told of every change to the order of a store's tiles, so that whatever
// names tiles by their place (the tileset's map) can follow.
class Tile_List_Watcher {
public:
    virtual ~Tile_List_Watcher() = default;
    // A tile now stands at the index; the ones from there on moved one up.
    virtual void tile_inserted(int index) = 0;
    // The tile at the index is gone; the ones after it moved one down.
    virtual void tile_removed(int index) = 0;
    virtual void tiles_swapped(int a, int b) = 0;
    // Just before the tile at the index is removed for good or for an undo:
    // what names it, to be handed back if the tile returns.
    virtual std::unique_ptr<Tile_Uses> tile_leaving(int) { return nullptr; }
    // A tile that left came back at the index (tile_inserted was told first).
    virtual void tile_returned(int, const Tile_Uses&) {}
};

// The ordered tiles of one tileset with a current position. All tiles have the
// store's size. Positions stay valid while other tiles are added or removed.
class Tile_Store {
public:
    Tile_Store(uint32_t width, uint32_t height, int32_t maximum);
    Tile_Store(const Tile_Store&) = delete;
    Tile_Store& operator=(const Tile_Store&) = delete;

    uint32_t tile_width() const { return width; }
    uint32_t tile_height() const { return height; }
    int32_t maximum_count() const { return maximum; }
    int tile_count() const { return static_cast<int>(tiles.size()); }
    int current_index() const { return index; }
    bool is_full() const { return tile_count() >= maximum; }
    bool is_last() const { return index == tile_count() - 1; }

    // The refusing operations return false when the store is full.
    bool add_tile();
    bool insert_tile();
    bool insert_copy(const Tile& source);
    bool next();
    bool previous();
    void go_to(int target);
    // With fewer than two tiles the only tile is cleared instead and the
    // result is false.
    bool delete_tile();

    // A tile of the store's size put at the index (0 to count) and made
    // current; the uses it had when it left come back with it. False when the
    // index is outside or the tile has another size.
    bool insert_at(int target, std::unique_ptr<Tile> tile, const Tile_Uses* uses = nullptr);
    // Takes the tile at the index out of the list; the current place moves as
    // delete_tile moves it. What named the tile is handed to uses when given.
    // None for an index outside the list.
    std::unique_ptr<Tile> remove_at(int target, std::unique_ptr<Tile_Uses>* uses = nullptr);

    // Exchanges the tiles at the two places; the current place stays, so the
    // current tile is whichever now stands there. False, changing nothing, for
    // an index outside the list or a tile swapped with itself.
    bool swap_tiles(int a, int b);

    // Appends a tile of the store's size without the maximum check, as loading
    // a file does; the current position does not move.
    void append(std::unique_ptr<Tile> tile);

    // The index must be valid.
    Tile* tile_at(int target);
    const Tile* tile_at(int target) const;
    // None when the store is empty.
    Tile* current_tile() { return current == tiles.end() ? nullptr : current->get(); }
    Color pixel_of_current(int x, int y) const;

    uint32_t tile_bytes() const { return width * height * 4; }
    uint64_t total_bytes() const { return uint64_t(tiles.size()) * tile_bytes(); }

    // Every tile is resampled to the new size in place; the first becomes current.
    void resize(uint32_t new_width, uint32_t new_height);
    void clear();

    // One watcher at a time; none to stop.
    void watch(Tile_List_Watcher* watcher) { list_watcher = watcher; }

    using Tiles = std::list<std::unique_ptr<Tile>>;
    const Tiles& all() const { return tiles; }

private:
    std::unique_ptr<Tile> blank_tile() const;

    uint32_t width;
    uint32_t height;
    Tiles::iterator current;
    int32_t maximum;
    int32_t index = 0;
    Tiles tiles;
    Tile_List_Watcher* list_watcher = nullptr;
};
