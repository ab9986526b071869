#pragma once

#include "ui/ui_style.h"

// The map window's colours, shared by its drawing and its list of layers.
namespace map_view_style {
// An empty cell, darker than the checkerboard a transparent tile shows.
inline constexpr Color empty_color = ui_colors[ui_dark_grey];
inline constexpr Color grid_color = ui_colors[ui_grey_128];
inline constexpr Color seam_color = ui_colors[ui_red];
inline constexpr Color missing_color = ui_colors[ui_magenta];
// What is chosen (a tile, a terrain, the current layer, a selected name).
inline constexpr Color chosen_color = ui_colors[ui_cyan];
// The cell under the pointer, and the name being typed.
inline constexpr Color hover_color = ui_colors[ui_white];
// A button pressed down, and the current layer's row.
inline constexpr Color pressed_face = ui_colors[ui_background];
// The dark edge of small marks and boxes.
inline constexpr Color mark_frame = ui_colors[ui_black];
inline constexpr Color box_face = ui_colors[ui_white];
}  // namespace map_view_style
