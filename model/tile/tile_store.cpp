#include "model/tile/tile_store.h"

#include <iterator>
#include <utility>

Tile_Store::Tile_Store(uint32_t w, uint32_t h, int32_t max)
    : width(w), height(h), maximum(max) {
    current = tiles.end();
}

std::unique_ptr<Tile> Tile_Store::blank_tile() const {
    return std::make_unique<Tile>(static_cast<int>(width), static_cast<int>(height));
}

bool Tile_Store::add_tile() {
    if (is_full()) return false;
    tiles.push_back(blank_tile());
    current = std::prev(tiles.end());
    index = tile_count() - 1;
    if (list_watcher) list_watcher->tile_inserted(index);
    return true;
}

bool Tile_Store::insert_tile() {
    if (is_full()) return false;
    current = tiles.insert(current, blank_tile());
    if (list_watcher) list_watcher->tile_inserted(index);
    return true;
}

bool Tile_Store::insert_copy(const Tile& source) {
    if (is_full()) return false;
    if (is_last() || current == tiles.end()) {
        add_tile();
    } else {
        current = tiles.insert(std::next(current), blank_tile());
        ++index;
        if (list_watcher) list_watcher->tile_inserted(index);
    }
    Tile& copy = **current;
    source.copy_into(copy);
    copy.update_texture();
    return true;
}

bool Tile_Store::next() {
    if (current == tiles.end() || std::next(current) == tiles.end()) return false;
    ++current;
    ++index;
    return true;
}

bool Tile_Store::previous() {
    if (current == tiles.begin() || current == tiles.end()) return false;
    --current;
    --index;
    return true;
}

void Tile_Store::go_to(int target) {
    current = tiles.begin();
    index = 0;
    while (index < target && next()) {
    }
}

bool Tile_Store::delete_tile() {
    if (tiles.size() < 2) {
        // The cleared tile's texture is left as it was; callers refresh it.
        if (!tiles.empty()) tiles.front()->fill(Color(0, 0, 0, 0));
        return false;
    }
    remove_at(index);
    return true;
}

bool Tile_Store::insert_at(int target, std::unique_ptr<Tile> tile, const Tile_Uses* uses) {
    if (!tile || target < 0 || target > tile_count() || tile->width() != int(width) || tile->height() != int(height))
        return false;
    current = tiles.insert(std::next(tiles.begin(), target), std::move(tile));
    index = target;
    if (list_watcher) {
        list_watcher->tile_inserted(index);
        if (uses) list_watcher->tile_returned(index, *uses);
    }
    return true;
}

std::unique_ptr<Tile> Tile_Store::remove_at(int target, std::unique_ptr<Tile_Uses>* uses) {
    if (target < 0 || target >= tile_count()) return nullptr;
    auto place = std::next(tiles.begin(), target);
    std::unique_ptr<Tile_Uses> left = list_watcher ? list_watcher->tile_leaving(target) : nullptr;
    if (uses) *uses = std::move(left);
    std::unique_ptr<Tile> removed = std::move(*place);
    const bool was_current = place == current;
    auto after = tiles.erase(place);
    if (list_watcher) list_watcher->tile_removed(target);
    if (was_current) {
        current = after;
        if (current == tiles.end() && !tiles.empty()) {
            --current;
            --index;
        }
    } else if (target < index) {
        --index;
    }
    if (tiles.empty()) {
        current = tiles.end();
        index = 0;
    }
    return removed;
}

bool Tile_Store::swap_tiles(int a, int b) {
    if (a == b || a < 0 || b < 0 || a >= tile_count() || b >= tile_count()) return false;
    std::swap(*std::next(tiles.begin(), a), *std::next(tiles.begin(), b));
    if (list_watcher) list_watcher->tiles_swapped(a, b);
    return true;
}

void Tile_Store::append(std::unique_ptr<Tile> tile) {
    const bool was_empty = tiles.empty();
    tiles.push_back(std::move(tile));
    if (was_empty) current = tiles.begin();
    if (list_watcher) list_watcher->tile_inserted(tile_count() - 1);
}

Tile* Tile_Store::tile_at(int target) { return std::next(tiles.begin(), target)->get(); }

const Tile* Tile_Store::tile_at(int target) const {
    return std::next(tiles.begin(), target)->get();
}

Color Tile_Store::pixel_of_current(int x, int y) const {
    if (current == tiles.end()) return Color(0, 0, 0, 0);
    return (*current)->get_pixel(x, y);
}

void Tile_Store::resize(uint32_t new_width, uint32_t new_height) {
    for (auto& tile : tiles) {
        auto resized = std::make_unique<Tile>(static_cast<int>(new_width), static_cast<int>(new_height));
        tile->copy_into(*resized);
        resized->update_texture();
        tile = std::move(resized);
    }
    width = new_width;
    height = new_height;
    go_to(0);
}

void Tile_Store::clear() {
    if (list_watcher)
        for (int i = tile_count() - 1; i >= 0; --i) list_watcher->tile_removed(i);
    tiles.clear();
    current = tiles.end();
    index = 0;
}
