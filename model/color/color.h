#pragma once

#include <cstdint>
#include <bit>

// One pixel: four bytes in memory blue, green, red, alpha, so that the 32-bit
// little-endian word reads 0xAARRGGBB. Tileset files and textures rely on it.
struct Color {
    uint8_t blue = 0;
    uint8_t green = 0;
    uint8_t red = 0;
    uint8_t alpha = 255;

    constexpr Color() = default;
    constexpr Color(uint8_t r, uint8_t g, uint8_t b, uint8_t a = 255)
        : blue(b), green(g), red(r), alpha(a) {}

    uint32_t word() const { return std::bit_cast<uint32_t>(*this); }
    static Color from_word(uint32_t w) { return std::bit_cast<Color>(w); }
    bool operator==(const Color& other) const { return word() == other.word(); }
};
static_assert(sizeof(Color) == 4, "a colour is exactly four bytes");

// A real number kept inside a closed range; every assignment and addition
// re-clamps, and conversion to an integer truncates toward zero.
struct Bounded_Value {
    double value = 0;
    double min = 0;
    double max = 255;

    constexpr Bounded_Value() = default;
    constexpr Bounded_Value(double v, double lo, double hi) : value(v), min(lo), max(hi) { clamp(); }
    explicit constexpr Bounded_Value(uint8_t channel) : value(channel), min(0), max(255) {}

    constexpr Bounded_Value& operator=(double v) {
        value = v;
        clamp();
        return *this;
    }
    constexpr Bounded_Value& operator+=(double amount) {
        value += amount;
        clamp();
        return *this;
    }
    constexpr int to_int() const { return static_cast<int>(value); }
    constexpr uint8_t to_byte() const { return static_cast<uint8_t>(static_cast<int>(value)); }

private:
    constexpr void clamp() {
        if (min > value)
            value = min;
        else if (value > max)
            value = max;
    }
};

// Relative luminance of sRGB in 0..1; alpha is ignored.
double luminance(const Color& c);

// Adds a real amount to a channel, clamped to 0..255 and truncated.
void add_to_channel(uint8_t& channel, double amount);
// Integer sum clamped to 0..255; -1 when it had to clamp, else 0.
int add_saturating(uint8_t& channel, int amount);

void lighten(Color& c, double amount);
void darken(Color& c, double amount);
void compensated_lighten(Color& c, double amount);
void compensated_darken(Color& c, double amount);
void make_transparent(Color& c);

// True when a is brighter than b: sorts lists of colours brightest first.
bool compare_by_luminance(const Color& a, const Color& b);
