// The "Preview" pane: the current tile repeated at its real size.
#include "ui/preview_pane.h"

#include "app/selection/selection_tools.h"

#include "support/editor_fixture.h"
#include "platform/frame_cache.h"
#include "ui/message_box.h"
#include "ui/ui_globals.h"

class PreviewTest : public Drawing {};

TEST_F(PreviewTest, AStrokeAndAnUndoShowInEveryRepeatAtOnce) {
    ASSERT_TRUE(g_editor->tilesets().new_tileset(64, 64));
    g_editor->relayout();
    Preview_Pane& preview = g_message_box->preview();
    preview.set_repeats(5, 4);
    use_tool(command_pen);
    set_colors(Color(250, 240, 10), Color(0, 0, 0));
    stroke({{32, 30}});
    g_editor->repaint(false);
    const Rectangle area = preview.picture_area();
    EXPECT_EQ(area.width, 3 * 64);
    EXPECT_EQ(area.height, 3 * 64);
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j) {
            EXPECT_EQ(read_pixel(area.x + i * 64 + 32, area.y + j * 64 + 30), Color(250, 240, 10)) << i << "," << j;
            EXPECT_EQ(read_pixel(area.x + i * 64 + 33, area.y + j * 64 + 30), Color(0, 0, 0)) << i << "," << j;
        }

    // An undo shows in the same repaint too.
    key(SDLK_Z, SDL_KMOD_CTRL);
    g_editor->repaint(false);
    EXPECT_EQ(read_pixel(area.x + 32, area.y + 30), Color(0, 0, 0));
}

// While a lifted image floats, the preview shows the tile as it will be when
// the image is put down: the image where it floats, no hole left behind it.
TEST_F(PreviewTest, AFloatingImageShowsWhereItFloats) {
    const Color red(250, 20, 30);
    tile().set_pixel(3, 3, red);
    Tile_Selection& marks = g_editor->canvas().tile_selection();
    marks.mask()->set_pixel(3, 3, Color(255, 255, 255));
    marks.set_active(true);
    ASSERT_TRUE(g_editor->selection().float_selection(true));
    marks.move_float(10, 12);
    g_editor->repaint(false);
    const Rectangle area = g_message_box->preview().picture_area();
    EXPECT_EQ(read_pixel(area.x + 10, area.y + 12), red);
    EXPECT_NE(read_pixel(area.x + 3, area.y + 3), red);
    EXPECT_EQ(tile().get_pixel(10, 12), Color(0, 0, 0)) << "still floating, not put down";
}

// With the map shown, the Preview centres the first cell holding the tile
// and draws the tile being drawn into every cell that holds it.
TEST_F(PreviewTest, TheMapAroundTheTileFollowsTheStroke) {
    Tileset& t = *g_editor->current();  // one 24 x 24 tile, opaque black
    ASSERT_TRUE(t.store().add_tile());  // tile 1 current, black too
    t.store().tile_at(0)->fill(Color(40, 160, 60));
    t.map().place(3, 2, 1);
    t.map().place(4, 2, 1, turn::flip_h);
    t.map().place(2, 2, 0);
    t.map().in_preview = true;
    use_tool(command_pen);
    set_colors(Color(250, 240, 10), Color(0, 0, 0));
    stroke({{1, 5}});
    g_editor->repaint(false);
    const Rectangle area = g_message_box->preview().picture_area();
    // Cell (3, 2)'s middle is the body's middle.
    const int ox = area.x + area.width / 2 - 12 - 3 * 24, oy = area.y + area.height / 2 - 12 - 2 * 24;
    EXPECT_EQ(read_pixel(ox + 3 * 24 + 1, oy + 2 * 24 + 5), Color(250, 240, 10));
    EXPECT_EQ(read_pixel(ox + 4 * 24 + 22, oy + 2 * 24 + 5), Color(250, 240, 10)) << "flipped across";
    EXPECT_EQ(read_pixel(ox + 2 * 24 + 5, oy + 2 * 24 + 5), Color(40, 160, 60));
    // A tile the map does not use is shown repeated.
    t.map().place(2, 2, Tile_Map::empty);
    g_editor->execute(command_previous_tile);
    g_editor->repaint(false);
    EXPECT_EQ(g_message_box->preview().picture_area().width, 2 * 24);
}
