#pragma once

#include <SDL3/SDL.h>

#include <cstdint>

#include "model/color/color.h"
#include "model/core/rectangle.h"

// A GPU image with a stored source and destination rectangle, so that drawing
// it allocates nothing.
class Texture {
public:
    // Fatal when SDL cannot make the texture. The surface stays the caller's.
    static Texture* from_surface(SDL_Renderer* renderer, SDL_Surface* surface);
    // A streaming RGBA8888 texture filled from tightly packed colours.
    static Texture* from_pixels(SDL_Renderer* renderer, const Color* pixels, int width, int height);
    ~Texture();
    Texture(const Texture&) = delete;
    Texture& operator=(const Texture&) = delete;

    // Copies the colours into a streaming texture: each pixel's bytes go to
    // the RGBA8888 layout as alpha, blue, green, red.
    void update(const Color* pixels);
    // The same for count rows from first only (the whole picture given).
    void update_rows(const Color* pixels, int first, int count);
    void draw();
    // Part of the texture to a window rectangle, through the window's drawing path.
    void copy(const SDL_FRect& from, const SDL_FRect& to) const;
    void draw_at(int x, int y);
    void draw_in(const Rectangle& rect);
    // Copies without blending: far faster on the software renderer, for
    // textures whose every pixel is opaque.
    void set_opaque(bool opaque);

    // The texture's own size; the stored rectangles may show only part of it.
    int width() const { return texture_width; }
    int height() const { return texture_height; }
    SDL_Texture* sdl() const { return texture; }
    // Changes whenever the pixels do, so a kept frame knows to draw it again.
    uint64_t generation() const { return pixels_generation; }
    SDL_FRect source{};
    SDL_FRect destination{};

private:
    Texture(SDL_Texture* texture, int width, int height);

    SDL_Texture* texture;
    int texture_width;
    int texture_height;
    uint64_t pixels_generation;
    bool blending;
};
