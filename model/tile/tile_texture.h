#pragma once

#include <memory>

struct Color;

// A tile's on-screen image. The document model knows it only through this
// interface so that it builds and runs without a display.
class Tile_Texture {
public:
    virtual ~Tile_Texture() = default;
    virtual void update(const Color* pixels) = 0;
    virtual void draw(int x, int y) = 0;
    // The magnified canvas draws the tile stretched over its cells.
    virtual void draw_scaled(int x, int y, int width, int height) {
        (void)width;
        (void)height;
        draw(x, y);
    }
};

using Tile_Texture_Maker = std::unique_ptr<Tile_Texture> (*)(int width, int height,
                                                             const Color* pixels);

// Start-up installs the maker that puts textures on the main renderer; with no
// maker installed tiles simply have no texture.
void set_tile_texture_maker(Tile_Texture_Maker maker);
std::unique_ptr<Tile_Texture> make_tile_texture(int width, int height, const Color* pixels);
