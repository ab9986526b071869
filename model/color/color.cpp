#include "model/color/color.h"

#include <cmath>

namespace {
double linearise(uint8_t byte) {
    const double c = byte / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}
}  // namespace

double luminance(const Color& c) {
    return 0.2126 * linearise(c.red) + 0.7152 * linearise(c.green) + 0.0722 * linearise(c.blue);
}

void add_to_channel(uint8_t& channel, double amount) {
    Bounded_Value v(channel);
    v += amount;
    channel = v.to_byte();
}

int add_saturating(uint8_t& channel, int amount) {
    const int sum = channel + amount;
    if (sum < 0) {
        channel = 0;
        return -1;
    }
    if (sum > 255) {
        channel = 255;
        return -1;
    }
    channel = static_cast<uint8_t>(sum);
    return 0;
}

void lighten(Color& c, double amount) {
    add_to_channel(c.red, amount);
    add_to_channel(c.green, amount);
    add_to_channel(c.blue, amount);
}

void darken(Color& c, double amount) { lighten(c, -amount); }

// The blue weight 0.144 (not the usual 0.114) is deliberate.
void compensated_lighten(Color& c, double amount) {
    add_to_channel(c.red, 0.299 * amount);
    add_to_channel(c.green, 0.587 * amount);
    add_to_channel(c.blue, 0.144 * amount);
}

void compensated_darken(Color& c, double amount) { compensated_lighten(c, -amount); }

void make_transparent(Color& c) { c = Color(0, 0, 0, 0); }

bool compare_by_luminance(const Color& a, const Color& b) { return luminance(a) > luminance(b); }
