#include "platform/sdl_tile_texture.h"

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/texture.h"

namespace {
class Sdl_Tile_Texture final : public Tile_Texture {
public:
    Sdl_Tile_Texture(int width, int height, const Color* pixels)
        : texture(Texture::from_pixels(g_main_window->renderer(), pixels, width, height)) {}

    void update(const Color* pixels) override { texture->update(pixels); }
    void draw(int x, int y) override { texture->draw_at(x, y); }
    void draw_scaled(int x, int y, int width, int height) override {
        texture->draw_in(Rectangle{x, y, width, height});
    }

private:
    std::unique_ptr<Texture> texture;
};
}  // namespace

std::unique_ptr<Tile_Texture> make_sdl_tile_texture(int width, int height, const Color* pixels) {
    return std::make_unique<Sdl_Tile_Texture>(width, height, pixels);
}
