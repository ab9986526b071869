#pragma once

#include <cstdint>

// A screen region in window pixels. Containment is half-open, and float points
// are truncated before the test, as the pointer arrives in floats.
struct Rectangle {
    int32_t x = 0;
    int32_t y = 0;
    int32_t width = 0;
    int32_t height = 0;

    constexpr bool contains(int32_t px, int32_t py) const {
        return x <= px && px < x + width && y <= py && py < y + height;
    }
    constexpr bool contains(float px, float py) const {
        return contains(static_cast<int32_t>(px), static_cast<int32_t>(py));
    }
    constexpr bool operator==(const Rectangle&) const = default;

    constexpr bool empty() const { return width <= 0 || height <= 0; }
    constexpr bool overlaps(const Rectangle& o) const {
        return !empty() && !o.empty() && x < o.x + o.width && o.x < x + width && y < o.y + o.height &&
               o.y < y + height;
    }
    // The common part; empty (all zero) when there is none.
    constexpr Rectangle intersection(const Rectangle& o) const {
        const int32_t l = x > o.x ? x : o.x;
        const int32_t t = y > o.y ? y : o.y;
        const int32_t r = x + width < o.x + o.width ? x + width : o.x + o.width;
        const int32_t b = y + height < o.y + o.height ? y + height : o.y + o.height;
        if (r <= l || b <= t) return Rectangle{};
        return Rectangle{l, t, r - l, b - t};
    }
    // The smallest rectangle holding both; an empty one adds nothing.
    constexpr Rectangle united(const Rectangle& o) const {
        if (o.empty()) return *this;
        if (empty()) return o;
        const int32_t l = x < o.x ? x : o.x;
        const int32_t t = y < o.y ? y : o.y;
        const int32_t r = x + width > o.x + o.width ? x + width : o.x + o.width;
        const int32_t b = y + height > o.y + o.height ? y + height : o.y + o.height;
        return Rectangle{l, t, r - l, b - t};
    }
};
