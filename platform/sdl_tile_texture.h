#pragma once

#include <memory>

#include "model/tile/tile_texture.h"

// A tile's image on the main renderer: a streaming texture updated in place
// and drawn without smoothing, so magnified pixels stay square.
std::unique_ptr<Tile_Texture> make_sdl_tile_texture(int width, int height, const Color* pixels);
