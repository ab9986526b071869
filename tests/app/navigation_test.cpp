// The "Tileset navigation" pane and its tile strip through the editor's real
// routing, commands, undo and drawing.
#include "app/tile_navigation_pane.h"

#include "support/editor_fixture.h"

namespace {
constexpr int strip_y = 664 - 28;
constexpr int cell_centre_y = strip_y + 12;
int cell_centre_x(int cell) { return 4 + cell * 24 + 12; }
}  // namespace

class NavigationTest : public Editor_Fixture {
protected:
    static Tileset& tileset() { return *g_editor->current(); }
    static Tile_Store& store() { return tileset().store(); }
    static Tile_Navigation_Pane& pane() { return *static_cast<Tile_Navigation_Pane*>(tileset().navigation()); }
    // Tiles added as the "Add new tile" command adds them; the first stays current.
    static void add_tiles(int n) {
        for (int i = 0; i < n; ++i) g_editor->run_command(command_add_new_tile);
        g_editor->run_command(command_rewind_strip);
    }
    static void click_button(int button) {
        push_click(pane().button_area(button));
        pump();
    }
};

TEST_F(NavigationTest, ClickOnACellSelectsTheTileAndUndoReturns) {
    add_tiles(9);
    const int records = tileset().history().count();
    push_click(cell_centre_x(7), cell_centre_y);
    pump();
    EXPECT_EQ(store().current_index(), 7);
    EXPECT_EQ(g_editor->canvas().tile(), store().tile_at(7));
    EXPECT_EQ(tileset().history().count(), records + 1);
    // A click on the current cell changes nothing and records nothing.
    push_click(cell_centre_x(7), cell_centre_y);
    pump();
    EXPECT_EQ(tileset().history().count(), records + 1);
    push_key(SDLK_Z, SDL_KMOD_CTRL);
    pump();
    EXPECT_EQ(store().current_index(), 0);
    EXPECT_EQ(g_editor->canvas().tile(), store().tile_at(0));
}

TEST_F(NavigationTest, ButtonsRunTheirCommands) {
    add_tiles(59);
    Tile_Strip& strip = tileset().strip();
    click_button(5);  // strip next
    EXPECT_EQ(strip.first(), 46);
    click_button(1);  // strip previous
    EXPECT_EQ(strip.first(), 0);
    click_button(6);  // forward: the last tile, scrolled into view
    EXPECT_EQ(store().current_index(), 59);
    EXPECT_EQ(strip.first(), 9);
    EXPECT_EQ(g_editor->canvas().tile(), store().tile_at(59));
    click_button(2);  // previous tile
    EXPECT_EQ(store().current_index(), 58);
    click_button(4);  // next tile
    EXPECT_EQ(store().current_index(), 59);
    click_button(0);  // rewind
    EXPECT_EQ(store().current_index(), 0);
    EXPECT_EQ(strip.first(), 0);
    EXPECT_EQ(g_editor->canvas().tile(), store().tile_at(0));
    // Rewinding is undone like any other tile change.
    push_key(SDLK_Z, SDL_KMOD_CTRL);
    pump();
    EXPECT_EQ(store().current_index(), 59);
}

TEST_F(NavigationTest, ButtonsThatCannotActAreGreyAndDoNothing) {
    Tile_Navigation_Pane& p = pane();
    for (int b = 0; b < Tile_Navigation_Pane::button_count; ++b)
        EXPECT_FALSE(p.can_act(b) && b != Tile_Navigation_Pane::id_box) << b;
    add_tiles(2);
    for (int b : {0, 2, 5}) EXPECT_FALSE(p.can_act(b)) << b;
    for (int b : {4, 6}) EXPECT_TRUE(p.can_act(b)) << b;
    // A grey button takes the click without changing the tile or the history.
    const int records = tileset().history().count();
    click_button(2);
    EXPECT_EQ(store().current_index(), 0);
    EXPECT_EQ(tileset().history().count(), records);
}

TEST_F(NavigationTest, TheStripShowsTheTilesAndMarksTheCurrentOne) {
    add_tiles(5);
    Tile& red = *store().tile_at(3);
    red.fill(Color(255, 0, 0));
    red.update_texture();
    store().go_to(2);
    g_editor->repaint(false);
    EXPECT_EQ(read_pixel(cell_centre_x(3), cell_centre_y), Color(255, 0, 0));
    EXPECT_EQ(read_pixel(cell_centre_x(2), cell_centre_y), Color(0, 0, 0));
    // The current cell carries the marker, the others do not.
    EXPECT_NE(read_pixel(4 + 2 * 24 + 2, strip_y + 2), read_pixel(4 + 3 * 24 + 2, strip_y + 2));
}
