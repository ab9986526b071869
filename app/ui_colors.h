#pragma once

#include "color/color.h"

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

inline constexpr int background_color_index = 5;
// The body of every pane header: the moss green of the interface.
inline constexpr Color header_color = ui_colors[13];
inline constexpr Color header_top_line = Color(183, 183, 183, 255);
