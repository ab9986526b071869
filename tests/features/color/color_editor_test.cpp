// The colour editor window and the colour panes beside the canvas.
#include <cstring>

#include "features/color/edit_hsv_dialog.h"
#include "app/tool_options.h"
#include "app/undo_control.h"
#include "model/color/color_database.h"
#include "features/color/color_editor.h"
#include "features/color/color_tools.h"
#include "model/color/palette.h"
#include "support/editor_fixture.h"
#include "ui/dialog.h"
#include "ui/dialog_item.h"

namespace {
class ColorEditorTest : public Editor_Fixture {
protected:
    static Color_Editor& editor() { return g_editor->colors(); }
    static int swatch_of(const char* name) {
        const auto& list = editor().entries();
        for (size_t i = 0; i < list.size(); ++i)
            if (std::strcmp(list[i].name, name) == 0) return int(i);
        return -1;
    }
};
}  // namespace

TEST_F(ColorEditorTest, CtrlLeftClickStoresIntoThePaletteAndCtrlRightDoesNothing) {
    const SDL_Point s = centre(editor().swatch_area(swatch_of("Crimson")));
    const SDL_Point cell = centre(editor().palette_cell_area(5));
    const Color before = g_palette->color(0, 5);
    Color edited_after_right;
    Event_Script script;
    script.then([&] { push_click(s.x, s.y); })
        .then([&] { push_key_down(SDLK_LCTRL, SDL_KMOD_CTRL); })
        .then([&] { push_click(cell.x, cell.y, SDL_BUTTON_RIGHT); })
        .then([&] {
            edited_after_right = editor().edited_color();
            EXPECT_EQ(g_palette->color(0, 5), before);
            push_click(cell.x, cell.y);
        })
        .then([&] { push_key(SDLK_ESCAPE); });
    g_editor->run_command(command_color_editor);
    EXPECT_EQ(edited_after_right, Color(220, 20, 60));
    EXPECT_EQ(g_palette->color(0, 5), Color(220, 20, 60));
    EXPECT_TRUE(g_palette->dirty());
}

TEST_F(ColorEditorTest, AnAcceptedAdjustHsvIsOneStepThatUndoRestoresWithoutTheDialog) {
    Tile& tile = *g_editor->canvas().tile();
    tile.fill(Color(100, 0, 0));
    tile.update_texture();
    g_editor->undo().record(command_pen);
    Tileset& t = *g_editor->current();
    t.clear_modified();
    const int records = t.history().count();
    Event_Script script;
    script.then([] { push_key(SDLK_RETURN); });  // unchanged: no step
    g_editor->run_command(command_adjust_hsv);
    ASSERT_EQ(script.left(), 0u);
    EXPECT_EQ(t.history().count(), records);
    EXPECT_FALSE(t.is_modified());

    // The same dialog stands in the same place: "Value" at the far end of its slider.
    Rectangle more{};
    Rectangle slider{};
    {
        Edit_HSV_Dialog layout(tile);
        more = layout.dialog().find(Edit_HSV_Dialog::mode_id)->area;
        slider = layout.dialog().find(Edit_HSV_Dialog::slider_id)->area;
    }
    script.then([&] { push_click(more.x + 3, more.y + 3); })
        .then([&] { push_click(more.x + 3, more.y + 3); })
        .then([&] { push_click(slider.x + 257, slider.y + 5); })
        .then([&] { push_key(SDLK_RETURN); });
    g_editor->run_command(command_adjust_hsv);
    ASSERT_EQ(script.left(), 0u);
    ASSERT_EQ(tile.get_pixel(3, 3), Color(200, 0, 0));
    EXPECT_EQ(t.history().count(), records + 1);
    EXPECT_TRUE(t.is_modified());

    // Undo puts the pixels back and opens nothing: a dialog would run out of steps.
    push_key(SDLK_Z, SDL_KMOD_CTRL);
    for (SDL_Event e; SDL_PollEvent(&e);) g_editor->handle(e);
    EXPECT_FALSE(script.ran_out());
    EXPECT_EQ(tile.get_pixel(3, 3), Color(100, 0, 0));
    EXPECT_EQ(t.history().count(), records + 1);
}

TEST_F(ColorEditorTest, RightClickOnAPaletteCellSetsAndSelectsTheRightColour) {
    Color_Tools& tools = g_tool_options->color_tools();
    const Rectangle c = tools.palette_area().client_area();
    // Cell 3 of the first row of "Default": 132, 110, 234.
    push_click(c.x + 3 * 24 + 12, c.y + 12, SDL_BUTTON_RIGHT);
    pump();
    EXPECT_EQ(tools.color(1), Color(132, 110, 234));
    EXPECT_EQ(tools.selected_index(), 1u);
    EXPECT_EQ(tools.color(0), Color(0, 0, 0));
    EXPECT_EQ(tools.palette_area().cell_at(c.x + 191, c.y + 95), 31);
}

// Closing the program's window closes the colour editor and asks at once
// whether to quit: one close is enough.
TEST_F(ColorEditorTest, OneCloseRequestReachesTheQuitQuestion) {
    Event_Script script;
    script.then([] { push_close_request(); }).then([] { push_key(SDLK_Y); });
    g_editor->run_command(command_color_editor);
    pump();
    EXPECT_TRUE(g_editor->quit_requested());
}
