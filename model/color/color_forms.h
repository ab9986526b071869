#pragma once

#include "model/color/color.h"

// Hue in degrees (kept in 0..360 by the conversions), saturation 0..1 and
// value in channel units 0..255.
struct HSV_Color {
    double hue = 0;
    Bounded_Value saturation{0, 0, 1};
    Bounded_Value value{0, 0, 255};
};

// Hue in degrees; saturation and lightness 0..1.
struct HSL_Color {
    double hue = 0;
    Bounded_Value saturation{0, 0, 1};
    Bounded_Value lightness{0, 0, 1};
};

// A grey colour takes its hue from the fallback, so that a grey keeps the hue
// the user had. A grey fallback leaves the hue not a number; from_hsv ignores
// the hue of a grey.
HSV_Color to_hsv(const Color& color, const Color& fallback);
Color from_hsv(const HSV_Color& hsv);

// Saturation from the mean of the channels; a grey colour takes its hue and
// its lightness from the fallback.
HSL_Color to_hsl(const Color& color, const Color& fallback);
Color from_hsl(const HSL_Color& hsl);

// The pixel keeps its length as an (r, g, b) vector and takes the target's
// direction; a black target gives black. Alpha is kept.
void colorize_keep_magnitude(Color& pixel, const Color& target);
// The pixel takes the target's hue and saturation and keeps its brightness.
// Alpha is kept.
void colorize_keep_value(Color& pixel, const Color& target);
