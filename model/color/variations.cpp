#include "model/color/variations.h"

#include <algorithm>

#include "model/color/color_forms.h"

void build_variations(Color c, Color f, Color* cells, int columns, int rows) {
    for (int row = 0; row < rows; ++row) {
        Color* out = cells + row * columns;
        const int kind = std::min(row, 3);
        if (kind < 2) {
            HSV_Color h = to_hsv(c, f);
            for (int i = 0; i < columns; ++i) {
                h.value += kind == 0 ? -20 : -15;
                if (kind == 1) h.saturation += 0.1;
                out[i] = from_hsv(h);
            }
        } else {
            HSL_Color l = to_hsl(c, f);
            // The steps are not clamped here: from_hsl limits them to 1.
            for (int i = 0; i < columns; ++i) {
                l.lightness.value += 0.05;
                if (kind == 3) l.saturation.value += 0.05;
                out[i] = from_hsl(l);
            }
        }
    }
}
