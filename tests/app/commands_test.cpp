#include "app/commands.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

TEST(Commands, DeliberateBindingsShareKeysAndDifferByModifier) {
    using namespace commands;
    EXPECT_EQ(find_key('z', modifier_ctrl), command_undo);
    EXPECT_EQ(find_key('r', modifier_ctrl), command_redo);
    EXPECT_EQ(find_key('r', modifier_none), command_rotate);
    EXPECT_EQ(find_key('r', modifier_shift), command_rotate_back);
    EXPECT_EQ(find_key('x', modifier_none), command_swap_tool_colors);
    EXPECT_EQ(find_key('x', modifier_ctrl), command_cut);
    EXPECT_EQ(find_key(92, modifier_shift), command_next_tile_strip);
    EXPECT_EQ(find_key(92, modifier_none), command_previous_tile_strip);
    EXPECT_EQ(find_key(0x40000055, modifier_none), command_center_tile_on_view);
    EXPECT_EQ(find_key(0x40000057, modifier_none), command_zoom_tile_up);
    EXPECT_EQ(find_key(27, modifier_none), command_quit);
    EXPECT_EQ(find_key('t', modifier_alt), command_test);
    // No key, a modifier alone and a key with the wrong modifier match nothing.
    EXPECT_EQ(find_key(0, modifier_none), no_command);
    EXPECT_EQ(find_key(0, modifier_ctrl), no_command);
    EXPECT_EQ(find_key('s', modifier_shift), no_command);
    EXPECT_EQ(find_key('q', modifier_none), no_command);
}

TEST(Commands, TableKeepsItsInversesGroupsAndOddNames) {
    using namespace commands;
    EXPECT_EQ(inverse(command_scroll_left), command_scroll_right);
    EXPECT_EQ(inverse(command_mirror), command_mirror);
    EXPECT_EQ(inverse(command_flip), command_flip);
    EXPECT_EQ(inverse(command_delete_tile), command_undo_paste_tile);
    EXPECT_EQ(inverse(command_append_tile), command_undo_delete_tile);
    EXPECT_EQ(inverse(command_next_tile), command_change_tile);
    EXPECT_EQ(inverse(command_pen), no_command);
    EXPECT_STREQ(name(command_anti_alias), "Anti-alias ");
    EXPECT_STREQ(key_label(command_save), "^s");
    EXPECT_STREQ(key_label(command_pen), "p");
    EXPECT_STREQ(key_label(command_line), " ");
    EXPECT_EQ(group(command_rewind_strip), group_nothing);
    EXPECT_EQ(group(command_arrange_select), group_tile_list);
    EXPECT_TRUE(seam_off(command_export));
    EXPECT_FALSE(seam_off(command_save));
    EXPECT_STREQ(help(command_swap_tool_colors), "dsc");
    // The long help texts have their full length and keep their first sentence.
    const struct {
        int command;
        size_t length;
        const char* start;
    } long_texts[] = {{0, 411, "Select pen size and shape"}, {1, 206, "Select color from the canvas."},
                      {2, 437, "Darken or lighten pixels."}, {7, 132, "Draws an ellipse or circle."},
                      {8, 300, "Draw with brush from brush pad."}, {18, 282, "Select a rectangular area."},
                      {19, 279, "Select a circular area."}};
    for (const auto& t : long_texts) {
        EXPECT_EQ(std::strlen(help(t.command)), t.length) << name(t.command);
        EXPECT_EQ(std::string(help(t.command)).rfind(t.start, 0), 0u) << name(t.command);
    }
    // Line breaks are real ones, never a backslash and an "r" shown as text.
    for (int c = 0; c < command_count; ++c) EXPECT_EQ(std::strchr(help(c), '\\'), nullptr) << name(c);
    for (int c : {command_rectangle, command_rotate, command_rotate_back, command_horizontal_seam_tool,
                  command_vertical_seam_tool, command_next_tile_strip})
        EXPECT_NE(std::strchr(help(c), '\r'), nullptr) << name(c);
}

TEST(Commands, CaptionsAddTheKeyLabelOnlyForKeyedCommands) {
    char text[64];
    commands::caption(command_save, text, sizeof text);
    EXPECT_STREQ(text, "Save (^s)");
    commands::caption(command_line, text, sizeof text);
    EXPECT_STREQ(text, "Line");
    char tiny[6];
    commands::caption(command_save, tiny, sizeof tiny);
    EXPECT_STREQ(tiny, "Save ");
}

TEST(Commands, SetsMapToolsToPagesAndBrushModesAsTheyAlwaysHave) {
    using namespace commands;
    int tools = 0;
    for (int c = 0; c < command_count; ++c) tools += is_tool(c);
    EXPECT_EQ(tools, 17);
    EXPECT_EQ(tool_options_index(command_work_selection), 16);
    EXPECT_EQ(tool_options_index(command_stamp_brush), 13);
    EXPECT_EQ(tool_options_index(command_save), -1);
    // The brush selector passes the gate with no mode; the stamp brush has a mode it never gets.
    EXPECT_TRUE(tool_has_brush_mode(command_brush_selector));
    EXPECT_EQ(brush_mode(command_brush_selector), -1);
    EXPECT_FALSE(tool_has_brush_mode(command_stamp_brush));
    EXPECT_EQ(brush_mode(command_stamp_brush), 6);
    EXPECT_TRUE(scrolls_strip_after(command_undo_paste_tile));
    EXPECT_FALSE(resets_selection_after(command_undo_paste_tile));
    EXPECT_TRUE(saves_copy_after(command_cut));
}
