#pragma once

#include <cstdint>

#include "model/color/color.h"

class Tile;

// The whole-tile colour adjustments of "Adjust HSV", their amount slider and
// the pacing of the lightness pen.
namespace adjust {

enum Mode : int {
    darken = 0,
    lighten,
    compensated_darken,
    compensated_lighten,
    invert,
    hue,
    saturation,
    value,
    mode_count,
};

struct Mode_Record {
    const char* name;
    int32_t minimum;
    int32_t maximum;
    int32_t scale;
    double display_factor;
};

extern const Mode_Record modes[mode_count];
// The modes' names as one choice list, for the dialog.
extern const char* const mode_list;

// One pixel changed by a mode and amount; alpha is never changed.
Color operation(int mode, Color c, int amount);
// Every pixel, row by row; the selection is not consulted. The caller updates
// the texture.
void apply_to_tile(Tile& tile, int mode, int amount);

// The amount slider: a position 0..scale mapped onto the mode's range.
int clamp_position(int mode, int position);
int amount_of(int mode, int position);
int position_of(int mode, int amount);
// The mode's name and " (%d/%.3f)  " with the amount and the scaled position.
void slider_label(int mode, int position, char* out, int size);
// The amount that leaves a tile unchanged (full for "Invert", 0 otherwise).
int neutral_amount(int mode);

// How often the lightness pen steps while it is held, and which way.
class Lightness_Pacer {
public:
    // Interval in milliseconds for a "Speed" choice 0..6, plus twice the
    // brush width with "Size compensation".
    static int interval(int speed, bool size_compensation, int brush_width);
    // True (and the step time taken) when strictly more than the interval
    // has passed since the last step.
    bool due(uint64_t now_ms, int interval_ms);
    void reset(uint64_t now_ms) { last = now_ms; }
    // "Button order" 0 lightens with the left button, 1 with the right; any
    // button other than the left (1) counts as the right.
    static bool lightens(int button, int button_order);
    // One step of the pen on a pixel; "Mode" 0 is linear, 1 perception.
    static void step(Color& c, bool lighten, int lightness_mode);
    static constexpr double step_amount = 8.0;

private:
    uint64_t last = 0;
};

}  // namespace adjust
