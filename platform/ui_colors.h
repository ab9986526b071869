#pragma once

#include "model/color/color.h"

// The colours by name, as indices into the table.
enum Ui_Color : int {
    ui_white = 0,
    ui_white_veil = 1,
    ui_black = 2,
    ui_transparent = 3,
    ui_dark_grey = 4,
    ui_background = 5,
    ui_grey_100 = 6,
    ui_grey_128 = 7,
    ui_light_grey = 8,
    ui_grey_112 = 9,
    ui_cyan = 10,
    ui_blue = 11,
    ui_dark_moss = 12,
    ui_moss = 13,
    ui_magenta = 14,
    ui_clear_magenta = 15,
    ui_orange = 16,
    ui_red = 17,
    ui_grey_101 = 18,
    ui_grey_169 = 19,
};

// The interface colours every module draws with, indexed as the program's
// panes, dialogs and menus refer to them.
inline constexpr Color ui_colors[20] = {
    Color(255, 255, 255, 255), Color(255, 255, 255, 80), Color(0, 0, 0, 255),
    Color(0, 0, 0, 0),         Color(64, 64, 64, 255),   Color(137, 137, 137, 255),
    Color(100, 100, 100, 255), Color(128, 128, 128, 255), Color(200, 200, 200, 255),
    Color(112, 112, 112, 255), Color(0, 222, 255, 255),  Color(0, 60, 230, 255),
    Color(70, 96, 86, 255),    Color(70, 130, 75, 255),  Color(250, 50, 250, 255),
    Color(255, 0, 255, 0),     Color(200, 100, 50, 255), Color(255, 0, 0, 255),
    Color(101, 101, 101, 255), Color(169, 169, 169, 255),
};

inline constexpr int background_color_index = ui_background;
// The body of every pane header: the moss green of the interface.
inline constexpr Color header_color = ui_colors[ui_moss];
inline constexpr Color header_top_line = Color(183, 183, 183, 255);
