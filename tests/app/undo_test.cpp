// Undo and redo through the keys and the menu commands, the undo meter and
// the history viewer, in the running editor.
#include "app/undo_control.h"
#include "tests/app/drawing_fixture.h"
#include "features/viewers/undo_meter.h"

namespace {
const Color red(220, 20, 30);
const Color blue(10, 40, 230);
const Color white(255, 255, 255);

const Undo_History& history() { return g_editor->current()->history(); }
}  // namespace

TEST_F(Drawing, CtrlZAndCtrlRUndoAndRedoAStroke) {
    use_tool(command_pen);
    set_colors(red, blue);
    stroke({{3, 3}, {6, 3}});
    ASSERT_EQ(history().count(), 2);
    key(SDLK_Z, SDL_KMOD_CTRL);
    EXPECT_EQ(tile().get_pixel(4, 3), Color());
    EXPECT_EQ(on_screen(4, 3), Color());
    key(SDLK_R, SDL_KMOD_CTRL);
    EXPECT_EQ(tile().get_pixel(4, 3), red);
    EXPECT_EQ(on_screen(4, 3), red);
    // Nothing further to redo, and the floor is never undone.
    EXPECT_FALSE(g_editor->undo().redo());
    key(SDLK_Z, SDL_KMOD_CTRL);
    key(SDLK_Z, SDL_KMOD_CTRL);
    EXPECT_EQ(history().position(), 0);
    EXPECT_FALSE(g_editor->undo().undo());
}

TEST_F(Drawing, UndoOfNextTileReturnsToTheEarlierTile) {
    use_tool(command_pen);
    set_colors(red, blue);
    stroke({{1, 1}});
    g_editor->run_command(command_add_new_tile);
    g_editor->run_command(command_previous_tile);
    g_editor->run_command(command_next_tile);
    Tile_Store& store = g_editor->current()->store();
    ASSERT_EQ(store.current_index(), 1);
    key(SDLK_Z, SDL_KMOD_CTRL);
    EXPECT_EQ(store.current_index(), 0);
    EXPECT_EQ(g_editor->canvas().tile(), store.tile_at(0));
    EXPECT_EQ(on_screen(1, 1), red);
    key(SDLK_R, SDL_KMOD_CTRL);
    EXPECT_EQ(store.current_index(), 1);
}

TEST_F(Drawing, UndoOfAScrollRunsTheOppositeScroll) {
    use_tool(command_pen);
    set_colors(red, blue);
    stroke({{1, 1}});
    key(SDLK_LEFT);
    EXPECT_EQ(tile().get_pixel(0, 1), red);
    ASSERT_EQ(history().count(), 3);
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
    // The meter stays beside the tool bar, inside the left column.
    EXPECT_GE(meter.outer_area().x, 28);
    EXPECT_LE(meter.outer_area().x + meter.outer_area().width, 264);
}
