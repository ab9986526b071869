// The painting tools driven through the canvas's real stroke loop.
#include "tests/app/drawing_fixture.h"

namespace {
const Color red(220, 20, 30);
const Color blue(10, 40, 230);
const Color white(255, 255, 255);
}  // namespace

TEST_F(Drawing, AFastPenStrokeLeavesNoGaps) {
    use_tool(command_pen);
    set_colors(red, blue);
    stroke({{1, 2}, {9, 2}, {9, 8}});
    for (int x = 1; x <= 9; ++x) EXPECT_EQ(tile().get_pixel(x, 2), red) << x;
    for (int y = 2; y <= 8; ++y) EXPECT_EQ(tile().get_pixel(9, y), red) << y;
    EXPECT_EQ(tile().get_pixel(5, 5), Color());
    EXPECT_EQ(on_screen(5, 2), red);
    EXPECT_TRUE(g_editor->current()->is_modified());
    // An even brush is centred on the cell and extends one pixel more to the right and down.
    g_editor->run_command(command_select_brush_size_2);
    stroke({{14, 14}});
    EXPECT_EQ(tile().get_pixel(15, 14), red);
    EXPECT_EQ(tile().get_pixel(14, 15), red);
    EXPECT_EQ(tile().get_pixel(13, 14), Color());
    EXPECT_EQ(tile().get_pixel(14, 13), Color());
}

TEST_F(Drawing, ThePenRightButtonFollowsItsMode) {
    use_tool(command_pen);
    set_colors(red, blue);
    stroke({{3, 3}}, SDL_BUTTON_RIGHT);
    EXPECT_EQ(tile().get_pixel(3, 3), blue);

    // History: the right button brings back the saved copy's pixels.
    g_editor->run_command(command_save_undo_buffer);
    stroke({{1, 1}, {6, 1}});
    g_editor->drawing().context().settings.right_button_mode = right_button_history;
    Tool_Settings kept = g_editor->drawing().context().settings;
    g_editor->drawing().context().gather = [&kept] { return kept; };
    stroke({{2, 1}, {4, 1}}, SDL_BUTTON_RIGHT);
    EXPECT_EQ(tile().get_pixel(1, 1), red);
    for (int x = 2; x <= 4; ++x) EXPECT_EQ(tile().get_pixel(x, 1), Color()) << x;
    EXPECT_EQ(tile().get_pixel(5, 1), red);

    // Dropper: the right button takes the left colour from the tile.
    kept.right_button_mode = right_button_dropper;
    stroke({{3, 3}}, SDL_BUTTON_RIGHT);
    EXPECT_EQ(g_editor->drawing().context().settings.left_color, blue);
    EXPECT_EQ(tile().get_pixel(3, 3), blue);
    g_editor->drawing().context().gather = nullptr;
}

TEST_F(Drawing, ThePenIsClippedToTheSelection) {
    use_tool(command_pen);
    set_colors(red, blue);
    Canvas_View& view = g_editor->canvas();
    for (int x = 0; x < 4; ++x) view.tile_selection().mask()->set_pixel(x, 5, white);
    view.tile_selection().set_active(true);
    stroke({{0, 5}, {10, 5}});
    for (int x = 0; x < 4; ++x) EXPECT_EQ(tile().get_pixel(x, 5), red) << x;
    for (int x = 4; x <= 10; ++x) EXPECT_EQ(tile().get_pixel(x, 5), Color()) << x;
}

TEST_F(Drawing, ALineShowsOnlyItsLastShapeWhileDragging) {
    use_tool(command_line);
    set_colors(red, blue);
    stroke({{2, 2}, {12, 2}, {2, 9}});
    // The line to (12, 2) was a preview, taken back at the next move.
    EXPECT_EQ(tile().get_pixel(12, 2), Color());
    for (int y = 2; y <= 9; ++y) EXPECT_EQ(tile().get_pixel(2, y), red) << y;
    EXPECT_EQ(on_screen(2, 9), red);
    EXPECT_EQ(on_screen(12, 2), Color());
}

TEST_F(Drawing, TheFillPaintsTheAreaAndIgnoresDragging) {
    use_tool(command_pen);
    set_colors(white, blue);
    stroke({{0, 6}, {23, 6}});
    use_tool(command_flood_fill);
    set_colors(red, blue);
    stroke({{3, 2}, {3, 20}});
    EXPECT_EQ(tile().get_pixel(0, 0), red);
    EXPECT_EQ(tile().get_pixel(23, 5), red);
    EXPECT_EQ(tile().get_pixel(3, 20), Color());
    EXPECT_EQ(on_screen(10, 3), red);
}

TEST_F(Drawing, TheDropperSetsTheButtonsColour) {
    use_tool(command_pen);
    set_colors(red, white);
    stroke({{4, 4}});
    set_colors(blue, white);
    use_tool(command_dropper);
    stroke({{4, 4}}, SDL_BUTTON_RIGHT);
    EXPECT_EQ(g_editor->drawing().context().settings.right_color, red);
    EXPECT_EQ(g_editor->drawing().context().settings.left_color, blue);
    stroke({{0, 0}, {4, 4}});
    EXPECT_EQ(g_editor->drawing().context().settings.left_color, red);
    // Picking changes no pixel and leaves nothing to undo.
    EXPECT_EQ(g_editor->current()->history().count(), 2);
}

TEST_F(Drawing, TheLightnessPenStepsAtThePress) {
    use_tool(command_pen);
    set_colors(Color(100, 100, 100), white);
    stroke({{5, 5}, {7, 5}});
    use_tool(command_lightness_pen);
    stroke({{6, 5}});
    EXPECT_GT(tile().get_pixel(6, 5).red, 100);
    EXPECT_EQ(tile().get_pixel(5, 5), Color(100, 100, 100));
    stroke({{5, 5}}, SDL_BUTTON_RIGHT);
    EXPECT_LT(tile().get_pixel(5, 5).red, 100);
}

TEST_F(Drawing, TheColorizePenKeepsBrightnessAndTakesTheHue) {
    use_tool(command_pen);
    set_colors(Color(120, 120, 120), white);
    stroke({{5, 5}});
    use_tool(command_colorize_pen);
    set_colors(Color(255, 0, 0), white);
    stroke({{5, 5}});
    const Color c = tile().get_pixel(5, 5);
    EXPECT_GT(c.red, 150);
    EXPECT_EQ(c.green, 0);
    EXPECT_EQ(c.blue, 0);
}
