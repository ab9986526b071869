#pragma once

#include <SDL3/SDL.h>

#include <cstdint>
#include <string>

#include "model/core/rectangle.h"
#include "model/tile/picture.h"

// A raster image in memory on an ARGB8888 surface. Loaded images are either
// fully transparent (where the colour key matched) or fully opaque.
class Image {
public:
    struct Rgba {
        uint8_t r, g, b, a;
        bool operator==(const Rgba&) const = default;
    };

    // A file claiming more pixels than this on a side is refused like an
    // unreadable one: the sheet is 512 x 512 and nothing reads beyond it.
    static constexpr long long max_side = 4096;

    // With a file name: load the BMP (fatal when it cannot be read or is too
    // large) and take its size; without: a blank image of the given size.
    Image(const char* file_name, uint32_t width, uint32_t height, bool key_on = false,
          uint8_t key_r = 0, uint8_t key_g = 0, uint8_t key_b = 0);
    Image(uint32_t width, uint32_t height) : Image(nullptr, width, height) {}
    ~Image();
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

    // Outside the image: opaque magenta, the same colour as the sheet's key.
    Rgba get_pixel(int x, int y) const;
    // Outside the image: ignored.
    void set_pixel(int x, int y, Rgba c);
    void set_colour_key(uint8_t r, uint8_t g, uint8_t b);
    void fill(const Rectangle& rect, Rgba c);
    void blit(const Rectangle& source, Image& target, int x, int y) const;

    // The picture's pixels from the top left corner, as far as both reach.
    void put(const Picture& picture);

    // Writes the image as a BMP file through the safe writer; false when
    // anything failed (the previous file, if any, stays as it was).
    bool save_bmp(const std::string& path, bool user_chose_path) const;

    uint32_t width() const { return w; }
    uint32_t height() const { return h; }
    SDL_Surface* surface() const { return pixels; }

private:
    uint32_t w;
    uint32_t h;
    SDL_Surface* pixels = nullptr;
    const SDL_PixelFormatDetails* format = nullptr;
    int bytes_per_pixel = 4;
    bool key_on;
    uint8_t key[3];
};
