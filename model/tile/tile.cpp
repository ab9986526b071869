#include "model/tile/tile.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <new>

Tile::Tile(int width, int height) : Tile(width, height, Storage_Only{}) {
    std::uninitialized_fill_n(pixel_data.get(), count, Color());
    make_texture();
}

Tile::Tile(int width, int height, Storage_Only)
    : tile_width(std::max(width, 0)),
      tile_height(std::max(height, 0)),
      count(tile_width * tile_height),
      pixel_data(static_cast<Color*>(::operator new[](sizeof(Color) * static_cast<size_t>(count)))) {}

void Tile::make_texture() {
    texture_object = make_tile_texture(tile_width, tile_height, pixel_data.get());
}

Tile::~Tile() = default;

bool Tile::is_white(int x, int y) const {
    const Color c = get_pixel(x, y);
    return c.blue > 254 && c.green > 254 && c.red > 254;
}

bool Tile::is_empty(int x, int y) const {
    const Color c = get_pixel(x, y);
    return c.blue == 0 && c.green == 0 && c.red == 0 && c.alpha == 0;
}

void Tile::fill(Color c) { std::fill_n(pixel_data.get(), count, c); }

void Tile::copy_into(Tile& destination) const {
    if (&destination == this) return;
    if (same_size(destination)) {
        std::copy_n(pixel_data.get(), count, destination.pixel_data.get());
        destination.update_texture();
    } else {
        resample_into(destination);
    }
}

void Tile::update_texture() {
    if (texture_object) texture_object->update(pixel_data.get());
}

void Tile::draw(int x, int y) {
    if (texture_object) texture_object->draw(x, y);
}

// Bilinear resampling in single-precision floats. The 1.01 in the effective
// source extent is part of how tiles have always been scaled and is kept.
// Alpha is not interpolated: every resampled pixel is opaque.
void Tile::resample_into(Tile& destination) const {
    const int sw = tile_width, sh = tile_height;
    const int dw = destination.tile_width, dh = destination.tile_height;
    if (count == 0 || destination.count == 0) return;
    const float ex = sw - (1.01f - float(sw) / float(dw));
    const float ey = sh - (1.01f - float(sh) / float(dh));
    const float kx = dw / ex;
    const float ky = dh / ey;
    const Color* src = pixel_data.get();
    Color* out = destination.pixel_data.get();
    for (int y = 0; y < dh; ++y) {
        float fy = y / ky;
        if (fy >= sh) fy = float(sh - 1);
        const float ay = fy - std::floor(fy);
        const int y0 = std::clamp(int(std::floor(fy)), 0, sh - 1);
        const int y1 = std::clamp(int(std::ceil(fy)), 0, sh - 1);
        for (int x = 0; x < dw; ++x) {
            float fx = x / kx;
            if (fx >= sw) fx = float(sw - 1);
            const float ax = fx - std::floor(fx);
            const int x0 = std::clamp(int(std::floor(fx)), 0, sw - 1);
            const int x1 = std::clamp(int(std::ceil(fx)), 0, sw - 1);
            const float w11 = ax * ay;
            const float w10 = (1 - ay) * ax;
            const float w01 = (1 - ax) * ay;
            const float w00 = (1 - ay) * (1 - ax);
            const Color c11 = src[y1 * sw + x1], c10 = src[y0 * sw + x1];
            const Color c01 = src[y1 * sw + x0], c00 = src[y0 * sw + x0];
            auto mix = [&](uint8_t Color::*channel) {
                const float sum = w11 * (c11.*channel) + w10 * (c10.*channel) +
                                  w01 * (c01.*channel) + w00 * (c00.*channel);
                return static_cast<uint8_t>(static_cast<int>(sum));
            };
            out[y * dw + x] = Color(mix(&Color::red), mix(&Color::green), mix(&Color::blue), 255);
        }
    }
}
