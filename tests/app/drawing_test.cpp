// The painting tools driven through the canvas's real stroke loop, and undo
// through the keys with the undo meter.
#include "app/tool_options.h"
#include "app/undo_control.h"
#include "features/viewers/undo_meter.h"
#include "support/editor_fixture.h"

namespace {
const Color red(220, 20, 30);
const Color blue(10, 40, 230);
const Color white(255, 255, 255);
const Color black(0, 0, 0);
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

TEST_F(Drawing, UndoOfAScrollRunsTheOppositeScroll) {
    use_tool(command_pen);
    set_colors(red, blue);
    stroke({{1, 1}});
    key(SDLK_LEFT);
    EXPECT_EQ(tile().get_pixel(0, 1), red);
    ASSERT_EQ(g_editor->current()->history().count(), 3);
    key(SDLK_Z, SDL_KMOD_CTRL);
    EXPECT_EQ(tile().get_pixel(1, 1), red);
    EXPECT_EQ(tile().get_pixel(0, 1), Color());
}

TEST_F(Drawing, TheMeterShowsOneOrangeBarAtTheCurrentRecord) {
    use_tool(command_pen);
    set_colors(red, blue);
    stroke({{1, 1}});
    stroke({{2, 2}});
    key(SDLK_Z, SDL_KMOD_CTRL);
    g_editor->repaint(false);
    const Undo_Meter& meter = g_editor->undo().meter();
    auto bar_colour = [&](int i) {
        const Rectangle r = meter.bar(i);
        return read_pixel(r.x + 4, r.y + r.height / 2);
    };
    EXPECT_EQ(bar_colour(0), Undo_Meter::record_bar);
    EXPECT_EQ(bar_colour(1), Undo_Meter::current_bar);
    EXPECT_EQ(bar_colour(2), Undo_Meter::record_bar);
    const Color empty = bar_colour(3);
    EXPECT_FALSE(empty == Undo_Meter::record_bar || empty == Undo_Meter::current_bar);
    EXPECT_EQ(bar_colour(17), empty);
}

// A row's "More" button is its first item, at the client's left.
TEST_F(Drawing, ToolOptionRowsTakeClicksOnTheirPagesAndTheHiddenRightButtonRowToo) {
    auto press_row = [](int id) {
        const Rectangle c = g_tool_options->row(id).client_area();
        push_click(c.x + 4, c.y + 4);
        pump();
    };
    use_tool(command_lightness_pen);
    press_row(tool_pages::row_speed);
    EXPECT_EQ(g_tool_options->speed(), 4);
    // The smudge brush's page does not show "Right button mode", yet its
    // place below the brush selector still takes the click.
    use_tool(command_pen);
    use_tool(command_smudge_brush);
    press_row(tool_pages::row_right_button_mode);
    EXPECT_EQ(g_tool_options->right_button_mode(), 1);
    // The line page has no choice rows: nothing there takes a click.
    use_tool(command_line);
    press_row(tool_pages::row_right_button_mode);
    EXPECT_EQ(g_tool_options->right_button_mode(), 1);
}
