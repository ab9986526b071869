#include "platform/image.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <cstdlib>

#include "model/core/fatal.h"
#include "model/core/safe_file.h"
#include "platform/picture_file.h"

namespace {

// SDL makes the whole surface a BMP header asks for before it reads a pixel, so
// a damaged header can ask for gigabytes: the sides are read here first.
bool claims_too_large(const char* file_name) {
    uint8_t header[26];
    std::FILE* file = std::fopen(file_name, "rb");
    if (!file) return false;
    const size_t read = std::fread(header, 1, sizeof header, file);
    std::fclose(file);
    long long width = 0, height = 0;
    return picture_file::bmp_claimed_size(header, read, width, height) &&
           (width > Image::max_side || height > Image::max_side);
}

}  // namespace

Image::Image(const char* file_name, uint32_t width, uint32_t height, bool key_on, uint8_t key_r,
             uint8_t key_g, uint8_t key_b)
    : w(width), h(height), key_on(key_on), key{key_r, key_g, key_b} {
    format = SDL_GetPixelFormatDetails(SDL_PIXELFORMAT_ARGB8888);
    if (!format) fatal_error("Could not get SDL pixel format details.");
    SDL_Surface* loaded = nullptr;
    if (file_name) {
        if (!claims_too_large(file_name)) loaded = SDL_LoadBMP(file_name);
        if (!loaded) fatal_error("Could not load SDL surface from %s.", file_name);
        w = static_cast<uint32_t>(loaded->w);
        h = static_cast<uint32_t>(loaded->h);
    }
    pixels = SDL_CreateSurface(int(w), int(h), SDL_PIXELFORMAT_ARGB8888);
    if (!pixels) fatal_error("Could not set SDL surface.");
    if (!loaded) return;

    SDL_SetSurfaceBlendMode(loaded, SDL_BLENDMODE_NONE);
    SDL_BlitSurface(loaded, nullptr, pixels, nullptr);
    SDL_DestroySurface(loaded);
    // Any alpha in the file is discarded: the key alone decides transparency.
    for (uint32_t y = 0; y < h; ++y) {
        Uint32* row = reinterpret_cast<Uint32*>(static_cast<Uint8*>(pixels->pixels) + y * pixels->pitch);
        for (uint32_t x = 0; x < w; ++x) {
            const Uint32 p = row[x] & 0x00FFFFFFu;
            const bool keyed = key_on && (p >> 16 & 0xFF) == key[0] && (p >> 8 & 0xFF) == key[1] &&
                               (p & 0xFF) == key[2];
            row[x] = keyed ? p : (p | 0xFF000000u);
        }
    }
}

Image::~Image() { SDL_DestroySurface(pixels); }

Image::Rgba Image::get_pixel(int x, int y) const {
    if (x < 0 || y < 0 || x >= int(w) || y >= int(h)) return {255, 0, 255, 255};
    Rgba c{};
    SDL_ReadSurfacePixel(pixels, x, y, &c.r, &c.g, &c.b, &c.a);
    return c;
}

void Image::set_pixel(int x, int y, Rgba c) {
    if (x < 0 || y < 0 || x >= int(w) || y >= int(h)) return;
    const Uint32 value = SDL_MapSurfaceRGBA(pixels, c.r, c.g, c.b, c.a);
    Uint8* row = static_cast<Uint8*>(pixels->pixels) + y * pixels->pitch;
    reinterpret_cast<Uint32*>(row)[x] = value;
}

void Image::set_colour_key(uint8_t r, uint8_t g, uint8_t b) {
    key_on = true;
    key[0] = r;
    key[1] = g;
    key[2] = b;
    SDL_SetSurfaceColorKey(pixels, true, SDL_MapSurfaceRGB(pixels, r, g, b));
}

void Image::fill(const Rectangle& rect, Rgba c) {
    const SDL_Rect r{rect.x, rect.y, rect.width, rect.height};
    SDL_FillSurfaceRect(pixels, &r, SDL_MapSurfaceRGBA(pixels, c.r, c.g, c.b, c.a));
}

void Image::blit(const Rectangle& source, Image& target, int x, int y) const {
    const SDL_Rect from{source.x, source.y, source.width, source.height};
    SDL_Rect to{x, y, source.width, source.height};
    SDL_BlitSurface(pixels, &from, target.pixels, &to);
}

bool Image::save_bmp(const std::string& path, bool user_chose_path) const {
    return picture_file::write_bmp(pixels, path, user_chose_path ? safe_file::Links::follow : safe_file::Links::refuse);
}

void Image::put(const Picture& picture) {
    const int width = std::min(int(w), picture.width);
    for (int y = 0; y < int(h) && y < picture.height; ++y)
        std::memcpy(static_cast<uint8_t*>(pixels->pixels) + size_t(y) * size_t(pixels->pitch), &picture.at(0, y),
                    size_t(width) * sizeof(Color));
}
