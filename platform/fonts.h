#pragma once

#include <cstdint>

// The four bitmap fonts painted into "pool.bmp". Each has a first marker line,
// a nominal cell width, a glyph height (its line height) and a number of rows.
enum Font_Id : int {
    font_regular = 0,
    font_pane = 1,
    font_pane_header = 2,
    font_header = 3,
    font_count = 4,
};

// The widest picture of a text that is made: twice the window, far less than
// any renderer refuses. A page name of thousands of characters asked for a
// texture the renderer refused, which is fatal; nothing wider can show anyway.
inline constexpr int max_text_width = 2464;

struct Font_Record {
    const char* name;
    int32_t first_marker_line;
    int32_t cell_width;
    int32_t glyph_height;
    int32_t glyph_rows;
};

inline constexpr Font_Record font_table[font_count] = {
    {"regular font", 310, 16, 23, 3},
    {"pane font", 226, 8, 20, 2},
    {"pane header font", 268, 8, 20, 2},
    {"header font", 382, 16, 23, 3},
};
