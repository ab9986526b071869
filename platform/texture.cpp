#include "platform/texture.h"

#include <algorithm>

#include "platform/draw_sink.h"
#include "model/core/fatal.h"
#include "platform/globals.h"
#include "platform/main_window.h"

Texture::Texture(SDL_Texture* texture, int width, int height)
    : source{0, 0, float(width), float(height)},
      destination{0, 0, float(width), float(height)},
      texture(texture),
      texture_width(width),
      texture_height(height),
      pixels_generation(Draw_Sink::fresh_generation()) {
    SDL_BlendMode mode = SDL_BLENDMODE_BLEND;
    SDL_GetTextureBlendMode(texture, &mode);
    blending = mode != SDL_BLENDMODE_NONE;
}

Texture::~Texture() { SDL_DestroyTexture(texture); }

Texture* Texture::from_surface(SDL_Renderer* renderer, SDL_Surface* surface) {
    SDL_Texture* t = SDL_CreateTextureFromSurface(renderer, surface);
    if (!t) fatal_error("Could not set SDL texture from surface.");
    SDL_SetTextureScaleMode(t, SDL_SCALEMODE_NEAREST);
    return new Texture(t, surface->w, surface->h);
}

Texture* Texture::from_pixels(SDL_Renderer* renderer, const Color* pixels, int width, int height) {
    SDL_Texture* t = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_RGBA8888,
                                       SDL_TEXTUREACCESS_STREAMING, width, height);
    if (!t) fatal_error("Could not set SDL texture from pixel data.");
    SDL_SetTextureBlendMode(t, SDL_BLENDMODE_BLEND);
    SDL_SetTextureScaleMode(t, SDL_SCALEMODE_NEAREST);
    Texture* result = new Texture(t, width, height);
    result->update(pixels);
    return result;
}

void Texture::update(const Color* pixels) { update_rows(pixels, 0, height()); }

void Texture::update_rows(const Color* pixels, int first, int count) {
    const int w = width();
    first = std::clamp(first, 0, height());
    count = std::clamp(count, 0, height() - first);
    if (count == 0) return;
    const SDL_Rect rows{0, first, w, count};
    void* locked = nullptr;
    int pitch = 0;
    if (!SDL_LockTexture(texture, &rows, &locked, &pitch)) return;
    // Rows are written at the texture's own pitch; the source is tightly packed.
    for (int y = 0; y < count; ++y) {
        Uint8* out = static_cast<Uint8*>(locked) + y * pitch;
        const Color* in = pixels + size_t(first + y) * size_t(w);
        for (int x = 0; x < w; ++x) {
            out[0] = in[x].alpha;
            out[1] = in[x].blue;
            out[2] = in[x].green;
            out[3] = in[x].red;
            out += 4;
        }
    }
    SDL_UnlockTexture(texture);
    pixels_generation = Draw_Sink::fresh_generation();
}

void Texture::set_opaque(bool opaque) {
    SDL_SetTextureBlendMode(texture, opaque ? SDL_BLENDMODE_NONE : SDL_BLENDMODE_BLEND);
    blending = !opaque;
}

void Texture::draw() { copy(source, destination); }

void Texture::copy(const SDL_FRect& from, const SDL_FRect& to) const {
    g_main_window->sink().copy(texture, pixels_generation, blending, from, to);
}

void Texture::draw_at(int x, int y) {
    source = {0, 0, float(texture->w), float(texture->h)};
    destination = {float(x), float(y), float(texture->w), float(texture->h)};
    draw();
}

void Texture::draw_in(const Rectangle& rect) {
    destination = {float(rect.x), float(rect.y), float(rect.width), float(rect.height)};
    draw();
}
