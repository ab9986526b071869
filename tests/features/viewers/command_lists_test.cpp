// The keyboard and mouse command lists.
#include "features/viewers/command_lists.h"

#include <gtest/gtest.h>

#include "model/core/commands.h"
#include "platform/main_window.h"
#include "support/editor_fixture.h"
#include "platform/text_writer.h"

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
