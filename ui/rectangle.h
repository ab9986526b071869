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
};
