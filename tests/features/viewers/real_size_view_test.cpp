// "Tiles in real size" and the repeated tile view, drawn through their own loops.

#include "support/editor_fixture.h"
#include "ui/options.h"
#include "app/undo_control.h"
#include "features/viewers/real_size_view.h"
#include "platform/text_writer.h"
#include "platform/ui_colors.h"
#include "features/viewers/repeated_view.h"
#include "ui/ui_globals.h"

namespace {
constexpr int picture = 512;
const Color mark(250, 20, 90);
}  // namespace

class TileViewsTest : public Editor_Fixture {
protected:
    Tile_Store& store() { return g_editor->current()->store(); }

    void add_tiles(int count) {
        for (int i = 0; i < count; ++i) store().add_tile();
    }
};

TEST_F(TileViewsTest, RealSizeShowsEachPixelAtItsPlaceAndAClickChoosesATile) {
    // 24-pixel tiles: 21 to a row of the picture, so tile 22 opens the
    // second row in its second column.
    add_tiles(29);
    store().tile_at(22)->set_pixel(5, 7, mark);
    store().tile_at(22)->update_texture();
    store().go_to(3);
    g_editor->execute(command_change_tile);

    Real_Size_View view(store());
    const Rectangle p = view.picture();
    const int across = picture / 24;
    const SDL_Point at{p.x + 24 * (22 % across) + 5, p.y + 24 * (22 / across) + 7};
    EXPECT_EQ(view.hit(float(at.x), float(at.y)), 22);
    EXPECT_EQ(view.hit(float(p.x + 24 * 10), float(p.y + 24 * 1 + 3)), -1) << "past the last tile";

    Event_Script script;
    Color seen;
    script.then([&] { push_click(at.x, at.y); });
    script.then([&] {
        seen = read_pixel(at.x, at.y);
        push_key(SDLK_ESCAPE);
    });
    EXPECT_EQ(view.run(), 22);
    EXPECT_EQ(seen, mark);
    // The tile beside it, opaque black, left of the chosen tile's frame.
    EXPECT_EQ(read_pixel(at.x - 7, at.y), Color(0, 0, 0));
    EXPECT_NE(read_pixel(at.x - 6, at.y), Color(0, 0, 0));
    EXPECT_EQ(store().current_index(), 3) << "the view itself changes nothing";

    // As the editor's command the choice is recorded like a strip click; "Ok"
    // or Escape without a choice records nothing.
    Tileset& t = *g_editor->current();
    const int records = t.history().count();
    script.then([&] {
        push_click(at.x, at.y);
        const Rectangle ok = view.ok_button();
        push_click(ok.x + 2, ok.y + 2);
    });
    EXPECT_EQ(g_editor->execute(command_view_in_real_size), command_select_tile);
    EXPECT_EQ(store().current_index(), 22);
    EXPECT_EQ(g_editor->canvas().tile(), store().tile_at(22));
    script.then([] { push_key(SDLK_RETURN); });
    g_editor->run_command(command_view_in_real_size);
    EXPECT_EQ(t.history().count(), records);
    script.then([&] {
        push_click(at.x - 24, at.y);
        push_key(SDLK_ESCAPE);
    });
    g_editor->run_command(command_view_in_real_size);
    EXPECT_EQ(store().current_index(), 21);
    EXPECT_EQ(t.history().count(), records + 1);
    EXPECT_FALSE(t.is_modified());
    EXPECT_FALSE(script.ran_out());
}

TEST_F(TileViewsTest, TheRepeatedViewOpensOnTabAndRepeatsTheTileOverTheAlphaGrid) {
    // A 6-pixel tile, transparent but for one opaque pixel.
    ASSERT_TRUE(g_editor->tilesets().new_tileset(6, 6));
    g_editor->execute(command_change_tile);
    Tile& tile = *store().current_tile();
    tile.fill(Color(0, 0, 0, 0));
    tile.set_pixel(4, 1, mark);
    tile.update_texture();

    Repeated_View view(tile, 2, 3);
    const int z = view.zoom();
    EXPECT_GT(z, 1) << "small tiles are magnified";
    const Rectangle p = view.picture();

    Event_Script script;
    script.then([] { push_key(SDLK_ESCAPE); });
    view.run();
    EXPECT_FALSE(script.ran_out());
    // The pixel in every repeat, first and last.
    const int last_x = view.across() - 1;
    const int last_y = view.down() - 1;
    EXPECT_EQ(read_pixel(p.x + 4 * z, p.y + 1 * z), mark);
    EXPECT_EQ(read_pixel(p.x + (last_x * 6 + 4) * z + z - 1, p.y + (last_y * 6 + 1) * z + z - 1), mark);
    // The checkerboard's cells are 2 x 3 tile pixels and run on across repeats.
    const Color a = read_pixel(p.x, p.y);
    EXPECT_NE(read_pixel(p.x + 2 * z, p.y), a);
    EXPECT_EQ(read_pixel(p.x + 8 * z, p.y + 6 * z), a) << "picture pixel (8, 6) is checker cell (4, 2)";
    EXPECT_NE(read_pixel(p.x + 6 * z, p.y), a) << "picture pixel (6, 0) is checker cell (3, 0)";

    // Tab in the main loop opens it (with the options' alpha grid) and any key closes it.
    script.then([] { push_key(SDLK_A); });
    push_key(SDLK_TAB);
    pump();
    EXPECT_EQ(script.left(), 0u);
    EXPECT_FALSE(script.ran_out());
    EXPECT_EQ(Backdrop::depth(), 0);
}

// Frames and rows stay whole: the current tile's frame keeps its top and left
// edges on the first row and column, and the undo history is as wide as its
// longest row.
TEST_F(TileViewsTest, TheCurrentTilesFrameAndTheHistoryRowsAreDrawnWhole) {
    Real_Size_View view(store());
    Event_Script script;
    script.then([] { push_key(SDLK_ESCAPE); });
    view.run();
    const Rectangle p = view.picture();
    EXPECT_EQ(read_pixel(p.x + 5, p.y - 1), ui_colors[ui_cyan]) << "top edge";
    EXPECT_EQ(read_pixel(p.x - 1, p.y + 5), ui_colors[ui_cyan]) << "left edge";

    for (int i = 0; i < 3; ++i) g_editor->undo().record(command_rectangle_selector);
    int width = 0;
    script.then([&] {
        width = Backdrop::top_area().parts[0].width;
        push_key(SDLK_ESCAPE);
    });
    g_editor->run_command(command_view_undo_history);
    EXPECT_GT(width, 72 + g_main_window->writer().measure("3. Rectangle selector, tile 2"));
}
