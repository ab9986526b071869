#include "model/color/channel_handles.h"

#include <algorithm>

void Channel_Handles::set(Color c) {
    current = c;
    form = to_hsl(c, c);
}

uint8_t& Channel_Handles::channel(int row) {
    switch (row) {
        case red: return current.red;
        case green: return current.green;
        case blue: return current.blue;
        default: return current.alpha;
    }
}

double Channel_Handles::fraction(int row) const {
    switch (row) {
        case red: return current.red / 255.0;
        case green: return current.green / 255.0;
        case blue: return current.blue / 255.0;
        case alpha: return current.alpha / 255.0;
        case saturation: return form.saturation.value;
        default: return form.lightness.value;
    }
}

Color Channel_Handles::step(int row, int d) {
    if (row < saturation) return apply(row, add_saturating(channel(row), d) != 0);
    Bounded_Value& f = row == saturation ? form.saturation : form.lightness;
    f = std::clamp(f.value + double(d) / track_length, 0.0, 1.0);
    return apply(row, false);
}

Color Channel_Handles::middle(int row) {
    if (row < saturation) {
        channel(row) = 128;
    } else {
        (row == saturation ? form.saturation : form.lightness) = 0.5;
    }
    return apply(row, false);
}

Color Channel_Handles::apply(int row, bool clamped) {
    if (row >= saturation) {
        if (!clamped) {
            // The HSL form carries no alpha: the colour keeps its own.
            const uint8_t a = current.alpha;
            current = from_hsl(form);
            current.alpha = a;
        }
        return current;
    }
    form = to_hsl(current, current);
    return current;
}
