// The stamp brush and the smudge brush driven through the canvas's real
// stroke loop.
#include "app/tool_options.h"
#include "app/undo_control.h"
#include "tests/app/drawing_fixture.h"

namespace {
const Color red(220, 20, 30);
const Color blue(10, 40, 230);
const Color white(255, 255, 255);
const Color black(0, 0, 0);

// The settings of the next presses, kept fixed by the test.
struct Fixed_Settings {
    Fixed_Settings() : context(g_editor->drawing().context()), kept(context.settings) {
        context.gather = [this] { return kept; };
    }
    ~Fixed_Settings() { context.gather = nullptr; }
    Stroke_Context& context;
    Tool_Settings kept;
};
}  // namespace

TEST_F(Drawing, TheStampCentresTheBrushOnThePointerInItsOwnColours) {
    use_tool(command_stamp_brush);
    set_colors(red, blue);
    g_tool_options->select_brush(1, 3);
    stroke({{5, 5}});
    for (int y = 4; y <= 6; ++y)
        for (int x = 4; x <= 6; ++x) EXPECT_EQ(tile().get_pixel(x, y), white) << x << "," << y;
    EXPECT_EQ(tile().get_pixel(7, 5), black);
    EXPECT_EQ(tile().get_pixel(3, 5), black);
    EXPECT_EQ(on_screen(4, 4), white);
    EXPECT_TRUE(g_editor->current()->is_modified());
    // The right button stamps the second colour all along the drag.
    stroke({{5, 9}, {12, 9}}, SDL_BUTTON_RIGHT);
    for (int x = 4; x <= 13; ++x) EXPECT_EQ(tile().get_pixel(x, 8), blue) << x;
    EXPECT_EQ(tile().get_pixel(14, 9), black);
}

TEST_F(Drawing, TheStampIsClippedToTheSelectionAndUndone) {
    use_tool(command_stamp_brush);
    g_tool_options->select_brush(1, 3);
    Canvas_View& view = g_editor->canvas();
    view.tile_selection().mask()->set_pixel(5, 5, white);
    view.tile_selection().set_active(true);
    const int before = g_editor->current()->history().count();
    stroke({{5, 5}});
    EXPECT_EQ(tile().get_pixel(5, 5), white);
    EXPECT_EQ(tile().get_pixel(4, 4), black);
    EXPECT_EQ(g_editor->current()->history().count(), before + 1);
    EXPECT_TRUE(g_editor->undo().undo());
    EXPECT_EQ(tile().get_pixel(5, 5), black);
}

TEST_F(Drawing, TheSmudgeCarriesWhatItsBrushCovers) {
    use_tool(command_pen);
    set_colors(white, blue);
    stroke({{2, 2}, {2, 4}});
    use_tool(command_smudge_brush);
    g_tool_options->select_brush(1, 3);
    Fixed_Settings fixed;
    fixed.kept.brush = &g_tool_options->brush();
    fixed.kept.smudge_strength = 256;
    // The 3 x 3 brush takes up the white column with black either side and
    // moves the whole picture two cells right.
    stroke({{2, 3}, {4, 3}});
    for (int y = 2; y <= 4; ++y) {
        EXPECT_EQ(tile().get_pixel(4, y), white) << y;
        EXPECT_EQ(tile().get_pixel(2, y), black) << y;
        EXPECT_EQ(tile().get_pixel(5, y), black) << y;
    }
    EXPECT_EQ(tile().get_pixel(4, 1), black);
}
