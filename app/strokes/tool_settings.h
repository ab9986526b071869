#pragma once

#include "model/color/color.h"
#include "model/paint/smudge.h"

class Tile;

// "Right button mode" of the pen and the colorize pen.
enum Right_Button_Mode : int { right_button_color = 0, right_button_history = 1, right_button_dropper = 2 };

// What a stroke shows in the tool options pane while it runs.
enum class Readout { length, size, radius, location, color, degrees, offset };

// Everything a stroke needs from the colour panes, the brush selector and the
// tool options pane, gathered as plain values when the button goes down, so
// that the strokes never reach into those panes.
struct Tool_Settings {
    Color left_color{0, 0, 0};
    Color right_color{255, 255, 255};
    // The pen's brush; none is a single pixel.
    const Tile* brush = nullptr;
    int brush_width = 1;
    // The stamp brush's image in its own colours (transparent pixels are left
    // out); none stamps one pixel.
    const Tile* stamp = nullptr;
    // The stamp's pixel that lies under the pointer; -1 is the image's middle.
    int stamp_hot_x = -1;
    int stamp_hot_y = -1;
    int stamp_mode = 0;      // "Brush,Pattern$"
    // Out of 256: how much of the carried colour each smudge step keeps.
    int smudge_strength = Smudge::default_strength;
    int rectangle_type = 0;  // "Outline,Filled,Filled & Outline$"
    int ellipse_type = 0;
    int right_button_mode = right_button_color;
    int colorize_type = 0;   // "Linear,Luma$"
    int lightness_mode = 0;  // "Linear (washed),Perception (warm)$"
    int button_order = 0;    // "L:Lighten - R:Darken,L:Darken - R:Lighten$"
    int speed = 3;           // "Extremely slow" .. "Extremely fast"
    bool size_compensation = false;
    bool select_previous_tool = false;
};
