#pragma once

// The pages of the tool options pane: which panes each tool's page shows and
// its own option rows, in drawing order.
namespace tool_pages {

enum Row : int {
    row_color_readout = 0,
    row_previous_tool,
    row_colorize_type,
    row_location,
    row_size,
    row_right_button_mode,
    row_radius,
    row_length,
    row_degrees,
    row_offset,
    row_rectangle_type,
    row_ellipse_type,
    row_lightness_mode,
    row_button_order,
    row_speed,
    row_size_compensation,
    row_selection_mode,
    row_stamp_mode,
    row_count,
};

inline constexpr int page_count = 17;
inline constexpr int max_rows = 4;

struct Page {
    const char* name;
    bool tool_colors;
    bool brush;
    bool location;
    // Drawn first (the shape type of pages 7 and 8), or -1.
    int type_row;
    int rows[max_rows];
    int row_count;
    // Whether the page's choice and tick rows take clicks.
    bool clickable;
};

extern const Page pages[page_count];
// The brush slot a brush-painting tool keeps its own brush in, or -1.
int brush_slot(int tool);
inline constexpr int slot_count = 5;

}  // namespace tool_pages
