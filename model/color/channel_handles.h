#pragma once

#include "model/color/color_forms.h"

// The six channel rows of the handles pane and how a step moves them: red,
// green, blue and alpha by whole channel units; saturation and lightness as
// fractions of the 113-pixel track.
class Channel_Handles {
public:
    enum Row { red = 0, green, blue, alpha, saturation, lightness, row_count };
    static constexpr int track_length = 113;

    // Takes a colour and its HSL form (the colour itself as fallback).
    void set(Color c);
    Color color() const { return current; }
    const HSL_Color& hsl() const { return form; }

    // 0..1 along the track.
    double fraction(int row) const;
    // The handle's offset from the track's left end: fraction x 113, truncated.
    int handle_offset(int row) const { return int(fraction(row) * track_length); }

    // Steps a row by d and returns the new colour (see apply).
    Color step(int row, int d);
    // "Middle": 128 for the channel rows, one half for the fractions.
    Color middle(int row);

private:
    // The new colour after a change of a row: from the HSL form when a
    // saturation or lightness step did not clamp, else the changed colour.
    Color apply(int row, bool clamped);
    uint8_t& channel(int row);

    Color current;
    HSL_Color form;
};
