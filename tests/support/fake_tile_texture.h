#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include "model/color/color.h"
#include "model/tile/tile.h"
#include "model/tile/tile_texture.h"

// A texture that remembers the pixels it was last given, so that tests can
// tell whether a tile's on-screen image was brought up to date.
class Fake_Tile_Texture : public Tile_Texture {
public:
    Fake_Tile_Texture(int width, int height, const Color* pixels)
        : shown(pixels, pixels + static_cast<size_t>(width) * static_cast<size_t>(height)) {}
    void update(const Color* pixels) override {
        shown.assign(pixels, pixels + shown.size());
        ++updates;
    }
    void draw(int x, int y) override {
        last_x = x;
        last_y = y;
        ++draws;
    }

    std::vector<Color> shown;
    int updates = 0;
    int draws = 0;
    int last_x = -1;
    int last_y = -1;
};

// Installs the fake maker for the lifetime of the object.
class Fake_Texture_Scope {
public:
    Fake_Texture_Scope() { set_tile_texture_maker(&make); }
    ~Fake_Texture_Scope() { set_tile_texture_maker(nullptr); }
    Fake_Texture_Scope(const Fake_Texture_Scope&) = delete;
    Fake_Texture_Scope& operator=(const Fake_Texture_Scope&) = delete;

    static Fake_Tile_Texture& of(Tile& tile) {
        return *static_cast<Fake_Tile_Texture*>(tile.texture());
    }

private:
    static std::unique_ptr<Tile_Texture> make(int width, int height, const Color* pixels) {
        return std::make_unique<Fake_Tile_Texture>(width, height, pixels);
    }
};

// True when the tile's texture shows exactly the tile's pixels.
inline bool texture_is_current(Tile& tile) {
    const auto& shown = Fake_Texture_Scope::of(tile).shown;
    return shown.size() == static_cast<size_t>(tile.pixel_count()) &&
           std::equal(shown.begin(), shown.end(), tile.pixels());
}
