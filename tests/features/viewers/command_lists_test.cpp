// The keyboard and mouse command lists.
#include "features/viewers/command_lists.h"

#include <gtest/gtest.h>

#include "model/core/commands.h"
#include "app/editor.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "support/editor_fixture.h"
#include "ui/event_script.h"
#include "platform/text_writer.h"

TEST(KeyboardList, ListsEveryKeyedCommandOnceInTableOrderAcrossTwoColumns) {
    const std::vector<Keyboard_Line> lines = keyboard_lines(10);
    int keyed = 0;
    for (int c = 0; c < command_count; ++c) keyed += commands::has_key(c);
    ASSERT_EQ(int(lines.size()), keyed);
    for (size_t i = 0; i < lines.size(); ++i) {
        EXPECT_TRUE(commands::has_key(lines[i].command)) << commands::name(lines[i].command);
        if (i > 0) {
            EXPECT_GT(lines[i].command, lines[i - 1].command);
        }
        // The first column is full before the second starts, which runs on without limit.
        EXPECT_EQ(lines[i].column, i < 10 ? 0 : 1);
        EXPECT_EQ(lines[i].line, int(i < 10 ? i : i - 10));
    }
}

class CommandListsTest : public Editor_Fixture {};

TEST_F(CommandListsTest, RowsWithoutAKeyDrawNothingAndTheListsOpenFromKeyAndCommand) {
    Main_Window& w = *g_main_window;
    w.fill_rect(Rectangle{0, 0, 400, 40}, Color(200, 200, 200));
    SDL_Surface* before = read_frame();
    EXPECT_FALSE(keyboard_row(command_line, 10, 10));
    SDL_Surface* after = read_frame();
    EXPECT_EQ(differing_pixels(before, after), 0);
    EXPECT_TRUE(keyboard_row(command_pen, 10, 10));
    SDL_Surface* drawn = read_frame();
    EXPECT_GT(differing_pixels(before, drawn), 0);
    SDL_DestroySurface(before);
    SDL_DestroySurface(after);
    SDL_DestroySurface(drawn);

    Event_Script script;
    script.then([] { push_key(SDLK_ESCAPE); });
    push_key(SDLK_K);
    pump();
    EXPECT_EQ(script.left(), 0u) << "no viewer opened on k";
    EXPECT_FALSE(script.ran_out());
    script.then([] { push_key(SDLK_RETURN); });
    EXPECT_EQ(g_editor->execute(command_mouse_commands), command_mouse_commands);
    EXPECT_EQ(script.left(), 0u);
    EXPECT_FALSE(script.ran_out());
}
