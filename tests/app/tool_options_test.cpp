
#include "app/tool_options.h"
#include "support/editor_fixture.h"
#include "ui/info_panes.h"
#include "ui/pane.h"

namespace {
class ToolOptions : public Editor_Fixture {
protected:
    static void press_row(int id) {
        const Rectangle c = g_tool_options->row(id).client_area();
        // The row's "More" button is its first item, at the client's left.
        push_click(c.x + 4, c.y + 4);
        SDL_Event e;
        while (SDL_PollEvent(&e)) g_editor->handle(e);
    }
};
}  // namespace

TEST_F(ToolOptions, RowsTakeClicksOnTheirPagesAndTheHiddenRightButtonRowToo) {
    g_editor->run_command(command_lightness_pen);
    press_row(tool_pages::row_speed);
    EXPECT_EQ(g_tool_options->speed(), 4);
    // The smudge brush's page does not show "Right button mode", yet its
    // place below the brush selector still takes the click.
    g_editor->run_command(command_pen);
    g_editor->run_command(command_smudge_brush);
    press_row(tool_pages::row_right_button_mode);
    EXPECT_EQ(g_tool_options->right_button_mode(), 1);
    // The line page has no choice rows: nothing there takes a click.
    g_editor->run_command(command_line);
    press_row(tool_pages::row_right_button_mode);
    EXPECT_EQ(g_tool_options->right_button_mode(), 1);
}

TEST_F(ToolOptions, FilledShapeButtonsChooseTheShapeToolFilled) {
    g_editor->run_command(command_filled_rectangle);
    EXPECT_EQ(g_editor->current_tool(), command_rectangle);
    EXPECT_EQ(g_tool_options->rectangle_type(), 1);
    EXPECT_EQ(g_tool_options->page(), 7);
    g_editor->run_command(command_filled_circle);
    EXPECT_EQ(g_editor->current_tool(), command_circle);
    EXPECT_EQ(g_tool_options->ellipse_type(), 1);
}
