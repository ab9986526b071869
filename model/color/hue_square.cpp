#include "model/color/hue_square.h"

#include <cstdint>

namespace hue_square {

void gradient(Color a, Color b, Color* out, int n) {
    // Each weight from its own index rather than by repeated subtraction, so
    // that the last entry is exactly b: the square's corner is the hue itself.
    for (int i = 0; i < n; ++i) {
        const float w = n > 1 ? float(n - 1 - i) / float(n - 1) : 1.0f;
        auto mix = [w](uint8_t from, uint8_t to) { return uint8_t(int(float(to) * (1.0f - w) + float(from) * w)); };
        out[i] = Color(mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue), 255);
    }
}

void build_strip(Color* pixels) {
    struct Band {
        Color start;
        int step_r, step_g, step_b;
    };
    // Red to magenta, to blue, to cyan, to green, to yellow and back to red.
    static constexpr Band table[bands] = {
        {Color(255, 0, 0), 0, 0, 2},  {Color(255, 0, 255), -2, 0, 0}, {Color(0, 0, 255), 0, 2, 0},
        {Color(0, 255, 255), 0, 0, -2}, {Color(0, 255, 0), 2, 0, 0},  {Color(255, 255, 0), 0, -2, 0},
    };
    for (int b = 0; b < bands; ++b) {
        Color c = table[b].start;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < band_width; ++x) pixels[y * strip_width + b * band_width + x] = c;
            c.red = uint8_t(c.red + table[b].step_r);
            c.green = uint8_t(c.green + table[b].step_g);
            c.blue = uint8_t(c.blue + table[b].step_b);
        }
    }
}

void build_square(Color hue, Color* left_edge, Color* right_edge, Color* square) {
    gradient(Color(255, 255, 255), Color(0, 0, 0), left_edge, side);
    gradient(hue, Color(0, 0, 0), right_edge, side);
    for (int r = 0; r < side; ++r) gradient(left_edge[r], right_edge[r], square + r * side, side);
}

}  // namespace hue_square
