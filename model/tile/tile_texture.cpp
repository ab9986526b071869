#include "model/tile/tile_texture.h"

namespace {
Tile_Texture_Maker installed_maker = nullptr;
}  // namespace

void set_tile_texture_maker(Tile_Texture_Maker maker) { installed_maker = maker; }

std::unique_ptr<Tile_Texture> make_tile_texture(int width, int height, const Color* pixels) {
    if (!installed_maker) return nullptr;
    return installed_maker(width, height, pixels);
}
