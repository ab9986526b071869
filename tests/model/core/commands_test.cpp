#include "model/core/commands.h"

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

TEST(Commands, HelpTextsKeepTheirFirstSentenceLengthAndRealLineBreaks) {
    using namespace commands;
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
