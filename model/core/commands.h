#pragma once

#include <cstdint>

// Every user action is a numbered command in one fixed table: tools, edits,
// tile navigation, file operations, dialogs and viewers. Keys, menu entries,
// tool buttons and strip clicks all end in the same dispatcher.
enum Command : int32_t {
    no_command = -1,
    command_pen = 0,
    command_dropper = 1,
    command_lightness_pen = 2,
    command_colorize_pen = 3,
    command_flood_fill = 4,
    command_line = 5,
    command_rectangle = 6,
    command_circle = 7,
    command_stamp_brush = 8,
    command_smudge_brush = 9,
    command_save_undo_buffer = 10,
    command_swap_tool_colors = 11,
    command_select_brush_size_1 = 12,
    command_select_brush_size_2 = 13,
    command_select_brush_size_3 = 14,
    command_select_brush_size_4 = 15,
    command_select_brush_size_5 = 16,
    command_select_brush_size_6 = 17,
    command_rectangle_selector = 18,
    command_circle_selector = 19,
    command_brush_selector = 20,
    command_wand_selector = 21,
    command_deselect = 22,
    command_invert_selection = 23,
    command_fill = 24,
    command_clear = 25,
    command_work_selection = 26,
    command_scroll_left = 27,
    command_scroll_right = 28,
    command_scroll_up = 29,
    command_scroll_down = 30,
    command_rotate = 31,
    command_rotate_back = 32,
    command_mirror = 33,
    command_flip = 34,
    command_horizontal_seam_tool = 35,
    command_vertical_seam_tool = 36,
    command_scroll = 37,
    command_freehand_rotate = 38,
    command_next_tile = 39,
    command_previous_tile = 40,
    command_next_tile_strip = 41,
    command_previous_tile_strip = 42,
    command_change_tile = 43,
    command_select_tile = 44,
    command_rewind_strip = 45,
    command_forward_strip = 46,
    command_copy = 47,
    command_use_as_brush = 48,
    command_cut = 49,
    command_paste = 50,
    command_clone = 51,
    command_delete_brush = 52,
    command_move_to_pad = 53,
    command_close = 54,
    command_new = 55,
    command_load = 56,
    command_import_from_bmp = 57,
    command_export = 58,
    command_save_as = 59,
    command_save = 60,
    command_quit = 61,
    command_view_in_real_size = 62,
    command_arrange_select = 63,
    command_add_new_tile = 64,
    command_insert_new_tile = 65,
    command_append_tile = 66,
    command_delete_tile = 67,
    command_statistics = 68,
    command_view_tile_array = 69,
    command_anti_alias = 70,
    command_center_tile_on_view = 71,
    command_adjust_hsv = 72,
    command_zoom_tile_up = 73,
    command_zoom_tile_down = 74,
    command_color_editor = 75,
    command_map_editor = 76,
    command_options = 77,
    command_context_info = 78,
    command_about = 79,
    command_keyboard_commands = 80,
    command_mouse_commands = 81,
    command_view_undo_history = 82,
    command_debug_monitor = 83,
    command_undo_paste_tile = 84,
    command_undo_delete_tile = 85,
    command_save_image_to_undo = 86,
    command_undo = 87,
    command_redo = 88,
    command_filled_rectangle = 89,
    command_filled_circle = 90,
    command_skip_command = 91,
    command_test = 92,
    command_count = 93,
};

// Modifier classes of the key translation: Shift wins over Ctrl, Ctrl over Alt.
enum Modifier_Class : int32_t { modifier_none = 0, modifier_shift = 1, modifier_alt = 2, modifier_ctrl = 3 };

// What a command changes, for the undo system and the refresh after it.
enum Command_Group : int32_t {
    group_nothing = 0,
    group_image = 1,
    group_selection = 2,
    group_tile_list = 3,
    group_current_tile = 4,
};

struct Command_Record {
    const char* name;
    uint8_t f8;  // carried, read by nothing
    int32_t inverse;
    int32_t modifier;
    int32_t key;  // an SDL key code; 0 for none
    const char* key_label;  // a single blank for none
    uint8_t brush;  // carried, read by nothing
    uint8_t seam_off;
    int32_t group;
    const char* help;  // "\r" breaks lines
};

extern const Command_Record command_table[command_count];

namespace commands {
inline const char* name(int c) { return command_table[c].name; }
inline const char* help(int c) { return command_table[c].help; }
inline const char* key_label(int c) { return command_table[c].key_label; }
inline int32_t inverse(int c) { return command_table[c].inverse; }
inline int32_t group(int c) { return command_table[c].group; }
inline bool seam_off(int c) { return command_table[c].seam_off != 0; }
inline bool has_key(int c) { return command_table[c].key != 0; }
inline bool matches(int c, int32_t key, int32_t modifier) {
    return command_table[c].key == key && command_table[c].modifier == modifier;
}
// The first command bound to the key and modifier class, or no_command.
int find_key(int32_t key, int32_t modifier);
// The name, then " (" key label ")" for a command with a key.
void caption(int c, char* out, int size);

bool is_tool(int c);
// The page of the tool options pane for a tool, or -1.
int tool_options_index(int c);
bool tool_has_brush_mode(int c);
int brush_mode(int c);
bool scrolls_strip_after(int c);
bool resets_selection_after(int c);
bool saves_copy_after(int c);
}  // namespace commands
