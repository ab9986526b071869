#pragma once

#include <cstdint>

#include "model/core/token_stream.h"

// A bounded integer that wraps instead of clamping, so stepping past either
// end cycles to the other one.
struct Range {
    int32_t value = 0;
    int32_t min = 0;
    int32_t max = 1;

    Range() = default;
    explicit Range(int32_t v) : value(v) {}
    Range(int32_t v, int32_t lo, int32_t hi) : value(v), min(lo), max(hi) {}

    void set(int32_t v) {
        if (v < min)
            value = max;
        else if (v > max)
            value = min;
        else
            value = v;
    }
    bool inside(int32_t v) const { return min <= v && v <= max; }
    bool operator==(const Range&) const = default;

    void save(Token_Stream& stream) const {
        stream.write_number(value);
        stream.write_number(min);
        stream.write_number(max);
    }
    void load(Token_Stream& stream) {
        value = stream.read_number();
        min = stream.read_number();
        max = stream.read_number();
    }
    // A dialog item's stored value: its bounds are the program's, not the
    // file's, and a damaged value is held inside them, so nothing read from a
    // file can index past a list or reach a setting out of its range.
    void load_value(Token_Stream& stream) {
        const int32_t stored = stream.read_number();
        stream.read_number();
        stream.read_number();
        value = stored < min ? min : stored > max ? max : stored;
    }
};
