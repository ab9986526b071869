#include "model/tileset/tool_pages.h"

#include "model/core/commands.h"

namespace tool_pages {

const Page pages[page_count] = {
    {"Pen", true, true, false, -1, {row_right_button_mode}, 1, false},
    {"Lightness pen", false, true, false, -1, {row_button_order, row_lightness_mode, row_speed, row_size_compensation}, 4, true},
    {"Colorize pen", true, true, false, -1, {row_right_button_mode, row_colorize_type}, 2, true},
    {"Smudge brush", false, true, false, -1, {}, 0, false},
    {"Dropper", false, false, true, -1, {row_color_readout, row_previous_tool}, 2, true},
    {"Flood fill", true, false, false, -1, {}, 0, false},
    {"Line", true, false, true, -1, {row_length}, 1, false},
    {"Rectangle", true, false, true, row_rectangle_type, {row_size}, 1, true},
    {"Ellipse", true, false, true, row_ellipse_type, {row_radius}, 1, true},
    {"Rectangle selector", false, false, true, -1, {row_size}, 1, false},
    {"Circle selector", false, false, true, -1, {row_radius}, 1, false},
    {"Brush selector", false, true, false, -1, {}, 0, false},
    {"Wand selector", false, false, false, -1, {}, 0, false},
    {"Stamp brush", false, false, false, -1, {row_stamp_mode}, 1, true},
    {"Scroll", false, false, true, -1, {row_offset}, 1, false},
    {"Rotate", false, false, false, -1, {row_degrees}, 1, false},
    {"Selection", false, false, false, -1, {row_selection_mode}, 1, true},
};

int brush_slot(int tool) {
    switch (tool) {
        case command_pen: return 0;
        case command_lightness_pen: return 1;
        case command_colorize_pen: return 3;
        case command_smudge_brush: return 4;
        default: return -1;
    }
}

}  // namespace tool_pages
