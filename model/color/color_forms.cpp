#include "model/color/color_forms.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Largest channel with ties going to red, then green, then blue.
struct Extremes {
    int maximum;
    int index;
    int minimum;
    int delta;
};

Extremes extremes_of(const Color& c) {
    Extremes e{c.red, 0, 0, 0};
    if (c.green > e.maximum) e = {c.green, 1, 0, 0};
    if (c.blue > e.maximum) e = {c.blue, 2, 0, 0};
    e.minimum = std::min({c.red, c.green, c.blue});
    e.delta = e.maximum - e.minimum;
    return e;
}

uint8_t truncate_to_byte(double v) { return static_cast<uint8_t>(static_cast<int>(v)); }

double hsl_channel(double p, double q, double t) {
    if (t < 0)
        t += 1;
    else if (t > 1)
        t -= 1;
    if (t < 1.0 / 6) return p + (q - p) * 6 * t;
    if (t < 0.5) return q;
    if (t < 2.0 / 3) return p + (q - p) * 6 * (2.0 / 3 - t);
    return p;
}

// Hues far outside 0..360 can push a channel out of 0..1; clamp rather than
// wrap so such a hue cannot produce a wild colour.
uint8_t hsl_byte(double channel) {
    const double rounded = std::round(255 * channel);
    if (!(rounded >= 0)) return 0;
    if (rounded > 255) return 255;
    return static_cast<uint8_t>(rounded);
}

}  // namespace

HSV_Color to_hsv(const Color& color, const Color& fallback) {
    HSV_Color hsv;
    Extremes e = extremes_of(color);
    hsv.value = e.maximum;
    hsv.saturation = e.maximum > 0 ? static_cast<double>(e.delta) / e.maximum : 0.0;
    Color used = color;
    if (hsv.saturation.value <= 0) {
        used = fallback;
        e = extremes_of(fallback);
    }
    if (e.delta == 0) {
        hsv.hue = std::numeric_limits<double>::quiet_NaN();
        return hsv;
    }
    const int r = used.red, g = used.green, b = used.blue;
    double h;
    if (e.index == 0)
        h = static_cast<double>(g - b) / e.delta;
    else if (e.index == 1)
        h = 2 + static_cast<double>(b - r) / e.delta;
    else
        h = 4 + static_cast<double>(r - g) / e.delta;
    h *= 60;
    if (h < 0) h += 360;
    hsv.hue = h;
    return hsv;
}

Color from_hsv(const HSV_Color& hsv) {
    const uint8_t v = hsv.value.to_byte();
    Color result(v, v, v);
    const double s = hsv.saturation.value;
    if (!(s > 0)) return result;
    const double h = hsv.hue / 60;
    // Hues outside 0..420 (and a hue that is not a number) keep the grey.
    if (!(h >= 0 && h < 7)) return result;
    const int i = static_cast<int>(std::floor(h));
    const double f = h - i;
    const double value = hsv.value.value;
    const uint8_t p = truncate_to_byte((1 - s) * value);
    const uint8_t q = truncate_to_byte((1 - s * f) * value);
    const uint8_t t = truncate_to_byte((1 - (1 - f) * s) * value);
    switch (i) {
        case 0:
        case 6: return Color(v, t, p);
        case 1: return Color(q, v, p);
        case 2: return Color(p, v, t);
        case 3: return Color(p, q, v);
        case 4: return Color(t, p, v);
        case 5: return Color(v, p, q);
        default: return result;
    }
}

HSL_Color to_hsl(const Color& color, const Color& fallback) {
    HSL_Color hsl;
    Color used = color;
    uint8_t largest = std::max({used.red, used.green, used.blue});
    uint8_t smallest = std::min({used.red, used.green, used.blue});
    if (largest != smallest) {
        const double mean = (used.red / 255.0 + used.green / 255.0 + used.blue / 255.0) / 3;
        const double spread = largest / 255.0 - smallest / 255.0;
        hsl.saturation = mean <= 0.5 ? spread / (2 * mean) : spread / (2 - 2 * mean);
    } else {
        used = fallback;
        largest = std::max({used.red, used.green, used.blue});
        smallest = std::min({used.red, used.green, used.blue});
        hsl.saturation = 0.0;
    }
    const double r = used.red / 255.0, g = used.green / 255.0, b = used.blue / 255.0;
    const double M = largest / 255.0, m = smallest / 255.0;
    const double k = largest != smallest ? 60 / (M - m) : 0;
    hsl.lightness = (M + m) / 2;
    if (largest == used.red) {
        hsl.hue = 360 + (g - b) * k;
        if (hsl.hue >= 360) hsl.hue -= 360;
    } else if (largest != used.green) {
        hsl.hue = 240 + (r - g) * k;
    } else {
        hsl.hue = 120 + (b - r) * k;
    }
    return hsl;
}

Color from_hsl(const HSL_Color& hsl) {
    const double S = std::min(hsl.saturation.value, 1.0);
    const double L = std::min(hsl.lightness.value, 1.0);
    const double q = L < 0.5 ? (1 + S) * L : L + S - L * S;
    const double p = 2 * L - q;
    const double h = hsl.hue / 360;
    return Color(hsl_byte(hsl_channel(p, q, h + 1.0 / 3)), hsl_byte(hsl_channel(p, q, h)),
                 hsl_byte(hsl_channel(p, q, h - 1.0 / 3)));
}

void colorize_keep_magnitude(Color& pixel, const Color& target) {
    const double n = std::sqrt(double(pixel.red) * pixel.red + double(pixel.green) * pixel.green +
                               double(pixel.blue) * pixel.blue);
    const double norm = std::sqrt(double(target.red) * target.red +
                                  double(target.green) * target.green +
                                  double(target.blue) * target.blue);
    if (norm == 0) {
        pixel.red = pixel.green = pixel.blue = 0;
        return;
    }
    pixel.red = Bounded_Value(target.red / norm * n, 0, 255).to_byte();
    pixel.green = Bounded_Value(target.green / norm * n, 0, 255).to_byte();
    pixel.blue = Bounded_Value(target.blue / norm * n, 0, 255).to_byte();
}

void colorize_keep_value(Color& pixel, const Color& target) {
    const Color opaque(pixel.red, pixel.green, pixel.blue, 255);
    const HSV_Color p = to_hsv(opaque, opaque);
    HSV_Color t = to_hsv(target, target);
    t.value = p.value;
    const Color result = from_hsv(t);
    pixel.red = result.red;
    pixel.green = result.green;
    pixel.blue = result.blue;
}
