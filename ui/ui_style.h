#pragma once

#include "platform/ui_colors.h"

// The interface colours the panes and dialog items draw with. The regular
// and pane fonts are dark, so bodies and buttons are light greys.
inline constexpr Color pane_body_color = ui_colors[ui_light_grey];
inline constexpr Color pane_frame_color = ui_colors[ui_dark_grey];
inline constexpr Color button_face_color = ui_colors[ui_grey_169];
inline constexpr Color prompt_refused_color = ui_colors[ui_orange];
