#include "model/paint/adjust.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "model/color/color_forms.h"
#include "model/tile/tile.h"

namespace adjust {

const Mode_Record modes[mode_count] = {
    {"Darken", 0, 255, 255, 1.0},
    {"Lighten", 0, 255, 255, 1.0},
    {"Compensated darken", 0, 255, 255, 1.0},
    {"Compensated lighten", 0, 255, 255, 1.0},
    {"Invert", 0, 255, 255, 1.0},
    {"Hue", -180, 180, 256, 360.0},
    {"Saturation", -100, 100, 256, 1.0},
    {"Value", -100, 100, 256, 255.0},
};

const char* const mode_list =
    "Darken,Lighten,Compensated darken,Compensated lighten,Invert,Hue,Saturation,Value$";

namespace {
uint8_t mix_inverted(uint8_t original, double t) {
    const double inverted = 255 - original;
    return uint8_t(int(inverted * (1 - t) + original * t));
}

Color through_hsv(int mode, Color c, int amount) {
    HSV_Color h = to_hsv(c, c);
    if (mode == hue) {
        h.hue = std::fmod(h.hue + amount, 360.0);
        if (h.hue < 0) h.hue += 360.0;
    } else if (mode == saturation) {
        // Saturation amounts are percent of the full range.
        h.saturation += amount / 100.0;
    } else {
        h.value += amount;
    }
    Color out = from_hsv(h);
    out.alpha = c.alpha;
    return out;
}
}  // namespace

Color operation(int mode, Color c, int amount) {
    switch (mode) {
        case darken: ::darken(c, amount); return c;
        case lighten: ::lighten(c, amount); return c;
        case compensated_darken: ::compensated_darken(c, amount); return c;
        case compensated_lighten: ::compensated_lighten(c, amount); return c;
        case invert: {
            const double t = amount / 255.0;
            c.red = mix_inverted(c.red, t);
            c.green = mix_inverted(c.green, t);
            c.blue = mix_inverted(c.blue, t);
            return c;
        }
        case hue:
        case saturation:
        case value:
            return through_hsv(mode, c, amount);
        default:
            return c;
    }
}

void apply_to_tile(Tile& tile, int mode, int amount) {
    Color* p = tile.pixels();
    for (int i = 0; i < tile.pixel_count(); ++i) p[i] = operation(mode, p[i], amount);
}

int clamp_position(int mode, int position) {
    if (position < 0) return 0;
    return position > modes[mode].scale ? modes[mode].scale : position;
}

int amount_of(int mode, int position) {
    const Mode_Record& m = modes[mode];
    const int low = std::abs(m.minimum);
    return int(position * (double(m.maximum + low) / m.scale)) - low;
}

int position_of(int mode, int amount) {
    const Mode_Record& m = modes[mode];
    const int low = std::abs(m.minimum);
    return int((low + amount) * (double(m.scale) / (m.maximum + low)));
}

void slider_label(int mode, int position, char* out, int size) {
    const Mode_Record& m = modes[mode];
    std::snprintf(out, size_t(size), "%s (%d/%.3f)  ", m.name, amount_of(mode, position),
                  position * (m.display_factor / m.scale));
}

int neutral_amount(int mode) { return mode == invert ? 255 : 0; }

int Lightness_Pacer::interval(int speed, bool size_compensation, int brush_width) {
    static constexpr int table[7] = {14, 12, 10, 8, 6, 4, 2};
    const int base = table[speed < 0 ? 0 : (speed > 6 ? 6 : speed)];
    return size_compensation ? base + 2 * brush_width : base;
}

bool Lightness_Pacer::due(uint64_t now_ms, int interval_ms) {
    if (now_ms - last <= uint64_t(interval_ms)) return false;
    last = now_ms;
    return true;
}

bool Lightness_Pacer::lightens(int button, int button_order) {
    const bool left = button == 1;
    return button_order == 0 ? left : !left;
}

void Lightness_Pacer::step(Color& c, bool lighten, int lightness_mode) {
    if (lightness_mode == 0) {
        if (lighten)
            ::lighten(c, step_amount);
        else
            ::darken(c, step_amount);
    } else if (lighten) {
        ::compensated_lighten(c, step_amount);
    } else {
        ::compensated_darken(c, step_amount);
    }
}

}  // namespace adjust
