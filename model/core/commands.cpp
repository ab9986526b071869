#include "model/core/commands.h"

#include <cstdio>

const Command_Record command_table[command_count] = {
    {"Pen", 1, -1, 0, 112, "p", 1, 0, 1,
     "Select pen size and shape from brush icons or size by pressing 1-6\rfrom keyboard. Left button draws with the first tool color. What the right button\rdoes is chosen in the tool options: it draws with the second tool color, paints\rback the tile as it was saved with Save undo buffer (history mode), or picks a\rcolor from the canvas. Hold the button down and drag to draw free-hand lines in\rany direction you like."},
    {"Dropper", 0, -1, 0, 100, "d", 0, 0, 0,
     "Select color from the canvas. Left button picks the first tool color and right\rbutton the second. The picked color is shown in the tool color panes and can be\redited further in the color editor at any time."},
    {"Lightness pen", 1, -1, 0, 108, "l", 1, 0, 1,
     "Darken or lighten pixels.\rLeft button lightens and right button darkens the pixels under the brush (the\rbutton order in the tool options swaps them). In linear mode every channel\rchanges by the same fixed step; in perception mode green changes most and blue\rleast, so the brightness changes evenly to the eyes. The pen steps once at the\rpress and again while the pointer moves, as often as the speed chosen in the\rtool options allows it."},
    {"Colorize pen", 1, -1, 0, 0, " ", 1, 0, 1,
     "Works as pen tool, but changes the current color's hue to selected color."},
    {"Flood fill", 1, -1, 0, 102, "f", 0, 0, 1,
     "Fills a color area with selected color."},
    {"Line", 1, -1, 0, 0, " ", 0, 0, 1,
     "Draws a line. Left/right button is using either tool color."},
    {"Rectangle", 1, -1, 0, 0, " ", 0, 0, 1,
     "Draws a rectangle. The three types are outline, filled and both together.\rUse left/right mouse button to switch the colors."},
    {"Circle", 1, -1, 0, 0, " ", 0, 0, 1,
     "Draws an ellipse or circle. Drag from its center outwards to set its width\rand height. Left/right button is using either tool color."},
    {"Stamp brush", 1, -1, 0, 98, "b", 1, 0, 1,
     "Draw with brush from brush pad. Select a brush from the pad in the tool options, or\rmake one from a selection with the command Use as brush. Left button stamps the\rbrush in its own colors, right button in the second tool color. Move to pad\rkeeps the current brush safe for all of your later sessions."},
    {"Smudge brush", 1, -1, 0, 0, " ", 1, 0, 1,
     "Drag and smudge pixels with this tool."},
    {"Save undo buffer", 0, -1, 0, 0, " ", 0, 0, 0,
     "Save current tile to undo buffer for the history brush mode in pen tool."},
    {"Swap tool colors", 0, -1, 0, 120, "x", 0, 0, 0,
     "dsc"},
    {"Select brush size 1", 1, -1, 0, 49, "1", 0, 0, 0,
     "dsc"},
    {"Select brush size 2", 1, -1, 0, 50, "2", 0, 0, 0,
     "dsc"},
    {"Select brush size 3", 1, -1, 0, 51, "3", 0, 0, 0,
     "dsc"},
    {"Select brush size 4", 1, -1, 0, 52, "4", 0, 0, 0,
     "dsc"},
    {"Select brush size 5", 1, -1, 0, 53, "5", 0, 0, 0,
     "dsc"},
    {"Select brush size 6", 1, -1, 0, 54, "6", 0, 0, 0,
     "dsc"},
    {"Rectangle selector", 1, -1, 0, 0, " ", 0, 0, 2,
     "Select a rectangular area. Drag from one corner to the other. A plain drag\rreplaces the selection, Shift and drag adds to it and the right button removes\rfrom it. A single click deselects all. Drawing tools work only inside the\rselection. Press Space to deselect everything at once."},
    {"Circle selector", 1, -1, 0, 0, " ", 0, 0, 2,
     "Select a circular area. Drag from its center outwards to set the radii. A\rplain drag replaces the selection, Shift and drag adds to it and the right\rbutton removes from it. A plain click deselects. Drawing tools work only\rinside the selection. Press Space to deselect everything."},
    {"Brush selector", 1, -1, 0, 0, " ", 1, 0, 2,
     "Use brush to add or remove areas from a selection."},
    {"Wand selector", 1, -1, 0, 0, " ", 0, 0, 2,
     "This tool flood fills color areas selected or deselected."},
    {"Deselect", 1, -1, 0, 32, "Space", 0, 0, 1,
     "dsc"},
    {"Invert selection", 1, -1, 0, 0, " ", 0, 0, 2,
     "dsc"},
    {"Fill", 1, -1, 0, 0, " ", 0, 0, 2,
     "dsc"},
    {"Clear", 1, -1, 0, 0, " ", 0, 0, 2,
     "dsc"},
    {"Work selection", 1, -1, 0, 0, " ", 0, 0, 2,
     "Move the selection. Click outside the selection to clone it."},
    {"Scroll left", 1, 28, 0, 0x40000050, "Left", 0, 0, 1,
     "dsc"},
    {"Scroll right", 1, 27, 0, 0x4000004f, "Right", 0, 0, 1,
     "dsc"},
    {"Scroll up", 1, 30, 0, 0x40000052, "Up", 0, 0, 1,
     "dsc"},
    {"Scroll down", 1, 29, 0, 0x40000051, "Down", 0, 0, 1,
     "dsc"},
    {"Rotate", 1, 32, 0, 114, "r", 0, 0, 1,
     "Rotate the tile 90 degrees clockwise direction. Works only with tiles that have\requal width and height."},
    {"Rotate back", 1, 31, 1, 114, "R", 0, 0, 1,
     "Rotate the tile 90 degrees counter-clockwise direction. Works only with tiles that have\requal width and height."},
    {"Mirror", 1, 33, 0, 0, " ", 0, 0, 1,
     "Flip the tile in horizontal direction."},
    {"Flip", 1, 34, 0, 0, " ", 0, 0, 1,
     "Flip the tile in vertical direction."},
    {"Horizontal seam tool", 1, -1, 0, 0, " ", 0, 0, 0,
     "Offset the tile by half of its size to edit the edge of the tile. Yellow edge markers\rshow where the seam is."},
    {"Vertical seam tool", 1, -1, 0, 0, " ", 0, 0, 0,
     "Offset the tile by half of its size to edit the edge of the tile. Yellow edge markers\rshow where the seam is."},
    {"Scroll", 1, -1, 0, 0, " ", 0, 0, 1,
     "Scroll the canvas. Pixels that go over the edge appear at the other side."},
    {"Freehand rotate", 1, -1, 0, 0, " ", 0, 0, 1,
     "Rotate tile or selection."},
    {"Next tile", 1, 43, 0, 0, " ", 0, 1, 4,
     "Select next tile in the tileset."},
    {"Previous tile", 1, 43, 0, 0, " ", 0, 1, 4,
     "Select previous tile in the tileset."},
    {"Next tile strip", 0, -1, 1, 92, ">", 0, 0, 0,
     "Scroll to next column of tiles in the tile strip if there are more tiles than those\rvisible in the tile strip."},
    {"Previous tile strip", 0, -1, 0, 92, "<", 0, 0, 0,
     "Scroll back in the tile strip."},
    {"Change tile", 1, -1, 0, 0, " ", 0, 1, 4,
     "Change tile."},
    {"Select tile", 1, 43, 0, 0, " ", 0, 1, 4,
     "Select tile."},
    {"Rewind strip", 1, 43, 0, 0, " ", 0, 1, 0,
     "Rewind strip."},
    {"Forward strip", 1, 43, 0, 0, " ", 0, 1, 0,
     "Forward strip."},
    {"Copy", 0, -1, 3, 99, "^c", 0, 0, 0,
     "Copy selection."},
    {"Use as brush", 0, -1, 0, 0, " ", 0, 0, 0,
     "Use current selection as temporary brush with stamp brush tool."},
    {"Cut", 1, -1, 3, 120, "^x", 0, 0, 1,
     "Cut selection."},
    {"Paste", 1, -1, 3, 118, "^v", 0, 0, 1,
     "dsc"},
    {"Clone", 1, -1, 0, 0, " ", 0, 0, 1,
     "dsc"},
    {"Delete brush", 0, -1, 0, 0, " ", 0, 0, 0,
     "Delete currently selected brush from the brush pad."},
    {"Move to pad", 0, -1, 0, 0, " ", 0, 0, 0,
     "Copies current brush to the brush pad."},
    {"Close", 0, -1, 0, 0, " ", 0, 1, 0,
     "Closes active tileset."},
    {"New", 0, -1, 0, 0, " ", 0, 1, 0,
     "Creates a new tileset."},
    {"Load", 0, -1, 0, 0, " ", 0, 1, 0,
     "dsc"},
    {"Import from BMP", 0, -1, 0, 0, " ", 0, 1, 0,
     "dsc"},
    {"Export", 0, -1, 0, 0, " ", 0, 1, 0,
     "dsc"},
    {"Save as...", 0, -1, 0, 0, " ", 0, 0, 0,
     "dsc"},
    {"Save", 0, -1, 3, 115, "^s", 0, 0, 0,
     "dsc"},
    {"Quit", 0, -1, 0, 27, "Esc", 0, 0, 0,
     "dsc"},
    {"View in real size", 0, -1, 0, 0, " ", 0, 1, 0,
     "dsc"},
    {"Arrange/Select", 0, -1, 0, 0, " ", 0, 1, 3,
     "dsc"},
    {"Add new tile", 1, 67, 0, 0, " ", 0, 1, 3,
     "dsc"},
    {"Insert new tile", 1, 67, 0, 0, " ", 0, 1, 3,
     "dsc"},
    {"Append tile", 1, 85, 0, 0, " ", 0, 1, 3,
     "dsc"},
    {"Delete tile", 1, 84, 0, 0, " ", 0, 1, 3,
     "dsc"},
    {"Statistics", 0, -1, 0, 0, " ", 0, 0, 0,
     "dsc"},
    {"View tile array", 0, -1, 0, 9, "Tab", 0, 0, 0,
     "dsc"},
    {"Anti-alias ", 1, -1, 0, 0, " ", 0, 0, 1,
     "dsc"},
    {"Center tile on view", 1, -1, 0, 0x40000055, "*", 0, 0, 0,
     "Centers the pixelated tile view on the middle of the background canvas."},
    {"Adjust HSV", 1, -1, 0, 0, " ", 0, 0, 1,
     "dsc"},
    {"Zoom tile up", 1, -1, 0, 0x40000057, "+", 0, 0, 0,
     "dsc"},
    {"Zoom tile down", 1, -1, 0, 0x40000056, "-", 0, 0, 0,
     "dsc"},
    {"Color editor", 0, -1, 0, 0, " ", 0, 1, 0,
     "dsc"},
    {"Map editor", 0, -1, 0, 0, " ", 0, 1, 0,
     "dsc"},
    {"Options", 0, -1, 0, 0, " ", 0, 0, 0,
     "dsc"},
    {"Context info", 0, -1, 0, 0x4000003a, "F1", 0, 0, 0,
     "dsc"},
    {"About", 0, -1, 0, 0, " ", 0, 0, 0,
     "dsc"},
    {"Keyboard commands", 0, -1, 0, 107, "k", 0, 0, 0,
     "dsc"},
    {"Mouse commands", 0, -1, 0, 0, " ", 0, 0, 0,
     "dsc"},
    {"View undo history", 0, -1, 0, 0, " ", 0, 0, 0,
     "dsc"},
    {"Debug monitor", 0, -1, 0, 109, "m", 0, 0, 0,
     "Display debug messages."},
    {"Undo paste tile", 1, -1, 0, 0, " ", 0, 0, 0,
     "dsc"},
    {"Undo delete tile", 1, -1, 0, 0, " ", 0, 1, 3,
     "dsc"},
    {"Save image to undo", 0, -1, 0, 0, " ", 0, 0, 0,
     "dsc"},
    {"Undo", 1, -1, 3, 122, "^z", 0, 0, 0,
     "dsc"},
    {"Redo", 1, -1, 3, 114, "^r", 0, 0, 0,
     "dsc"},
    {"Filled rectangle", 1, -1, 0, 0, " ", 0, 0, 1,
     "Draws a filled rectangle."},
    {"Filled circle", 1, -1, 0, 0, " ", 0, 0, 1,
     "Draws a filled circle."},
    {"Skip command", 0, -1, 0, 0, " ", 0, 0, 0,
     "Skips command routine with a non-command."},
    {"Test", 0, -1, 2, 116, "~t", 0, 0, 0,
     "debug test"},
};

namespace commands {

int find_key(int32_t key, int32_t modifier) {
    if (key == 0) return no_command;
    for (int c = 0; c < command_count; ++c)
        if (matches(c, key, modifier)) return c;
    return no_command;
}

void caption(int c, char* out, int size) {
    const int n = std::snprintf(out, size_t(size), "%s", name(c));
    if (has_key(c) && n < size) std::snprintf(out + n, size_t(size - n), " (%s)", key_label(c));
}

bool is_tool(int c) {
    return (c >= command_pen && c <= command_smudge_brush) ||
           (c >= command_rectangle_selector && c <= command_wand_selector) || c == command_work_selection ||
           c == command_scroll || c == command_freehand_rotate;
}

int tool_options_index(int c) {
    switch (c) {
        case command_pen: return 0;
        case command_lightness_pen: return 1;
        case command_colorize_pen: return 2;
        case command_smudge_brush: return 3;
        case command_dropper: return 4;
        case command_flood_fill: return 5;
        case command_line: return 6;
        case command_rectangle: return 7;
        case command_circle: return 8;
        case command_rectangle_selector: return 9;
        case command_circle_selector: return 10;
        case command_brush_selector: return 11;
        case command_wand_selector: return 12;
        case command_stamp_brush: return 13;
        case command_scroll: return 14;
        case command_freehand_rotate: return 15;
        case command_work_selection: return 16;
        default: return -1;
    }
}

// The gate and the map disagree on purpose: the brush selector passes the
// gate with no mode, and the stamp brush has a mode it never gets.
bool tool_has_brush_mode(int c) {
    return c == command_pen || c == command_lightness_pen || c == command_colorize_pen || c == command_smudge_brush ||
           c == command_brush_selector;
}

int brush_mode(int c) {
    switch (c) {
        case command_pen: return 0;
        case command_lightness_pen: return 1;
        case command_colorize_pen: return 3;
        case command_smudge_brush: return 4;
        case command_stamp_brush: return 6;
        default: return -1;
    }
}

bool scrolls_strip_after(int c) {
    return c == command_next_tile || c == command_previous_tile || c == command_rewind_strip ||
           c == command_forward_strip || c == command_add_new_tile || c == command_delete_tile ||
           c == command_undo_paste_tile;
}

bool resets_selection_after(int c) {
    return c == command_next_tile || c == command_previous_tile || c == command_add_new_tile ||
           c == command_delete_tile;
}

bool saves_copy_after(int c) {
    return c == command_save_undo_buffer || c == command_horizontal_seam_tool || c == command_vertical_seam_tool ||
           c == command_next_tile || c == command_previous_tile || c == command_cut || c == command_add_new_tile ||
           c == command_delete_tile;
}

}  // namespace commands
