#pragma once

#include <concepts>
#include <cstdint>
#include <memory>

#include "model/color/color.h"
#include "model/tile/tile_texture.h"

// One small raster image, row-major, with its own texture. The texture is
// brought up to date only by update_texture(), so that a batch of pixel
// writes costs one upload.
class Tile {
public:
    // All pixels opaque black; a negative size counts as 0.
    Tile(int width, int height);
    // The pixels are written by write_pixels(Color*) before anything else
    // sees them, and the texture is made from them: loading fills a tile in
    // one pass instead of clearing it first.
    template <typename Writer>
        requires std::invocable<Writer, Color*>
    Tile(int width, int height, Writer&& write_pixels) : Tile(width, height, Storage_Only{}) {
        write_pixels(pixel_data.get());
        make_texture();
    }
    virtual ~Tile();
    Tile(const Tile&) = delete;
    Tile& operator=(const Tile&) = delete;

    int width() const { return tile_width; }
    int height() const { return tile_height; }
    int pixel_count() const { return count; }

    bool is_outside(int x, int y) const {
        return x < 0 || y < 0 || x >= tile_width || y >= tile_height;
    }
    // Outside the tile: transparent black.
    Color get_pixel(int x, int y) const {
        return is_outside(x, y) ? Color(0, 0, 0, 0) : pixel_data[y * tile_width + x];
    }
    // Outside the tile: false and nothing changes.
    bool set_pixel(int x, int y, Color c) {
        if (is_outside(x, y)) return false;
        pixel_data[y * tile_width + x] = c;
        return true;
    }
    bool is_white(int x, int y) const;
    bool is_empty(int x, int y) const;
    uint8_t alpha(int x, int y) const { return get_pixel(x, y).alpha; }
    bool same_size(const Tile& other) const {
        return tile_width == other.tile_width && tile_height == other.tile_height;
    }
    void fill(Color c);

    // Same size: plain copy and the destination's texture is updated.
    // Otherwise the pixels are resampled and the texture is left to the caller.
    void copy_into(Tile& destination) const;
    void update_texture();
    void draw(int x, int y);

    Color* pixels() { return pixel_data.get(); }
    const Color* pixels() const { return pixel_data.get(); }
    Tile_Texture* texture() { return texture_object.get(); }

private:
    struct Storage_Only {};
    Tile(int width, int height, Storage_Only);
    void make_texture();
    void resample_into(Tile& destination) const;

    struct Release_Pixels {
        void operator()(Color* pixels) const { ::operator delete[](pixels); }
    };

    int32_t tile_width;
    int32_t tile_height;
    int32_t count;
    std::unique_ptr<Color[], Release_Pixels> pixel_data;
    std::unique_ptr<Tile_Texture> texture_object;
};
