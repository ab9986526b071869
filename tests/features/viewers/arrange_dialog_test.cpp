// The arrange dialog through its own loop, alone and as the editor's command.
#include "features/viewers/arrange_dialog.h"

#include "support/editor_fixture.h"

namespace {
constexpr int cells = 16;
constexpr int cell = 32;

// Tile i gets red i + 1 at its top-left pixel, to tell tiles apart.
std::vector<int> marks(const Tile_Store& store) {
    std::vector<int> result;
    for (const auto& tile : store.all()) result.push_back(tile->get_pixel(0, 0).red);
    return result;
}

SDL_Point grid_centre(const Arrange_Dialog& dialog, int index) {
    const Rectangle g = dialog.grid();
    return SDL_Point{g.x + (index % cells) * cell + cell / 2, g.y + (index / cells) * cell + cell / 2};
}
}  // namespace

class ArrangeDialogTest : public Editor_Fixture {
protected:
    void SetUp() override {
        Editor_Fixture::SetUp();
        make_tiles(5);
    }

    Tile_Store& store() { return g_editor->current()->store(); }

    void make_tiles(int count) {
        Tile_Store& s = store();
        // Past the most a tileset is made with, as loading a file appends.
        while (s.tile_count() < count) s.append(std::make_unique<Tile>(int(s.tile_width()), int(s.tile_height())));
        int i = 0;
        for (const auto& tile : s.all()) {
            tile->fill(Color(uint8_t(40 + i), uint8_t(200 - i), uint8_t(i * 3)));
            tile->set_pixel(0, 0, Color(uint8_t(i + 1), 0, 0));
            tile->update_texture();
            ++i;
        }
        s.go_to(2);
        g_editor->execute(command_change_tile);
    }
};

TEST_F(ArrangeDialogTest, TabSwapsThePairAndTwiceRestoresTheOrderButStillReportsSwaps) {
    Arrange_Dialog dialog(cells, cells, cell, cell, store());
    Event_Script script;
    std::vector<int> after_one_swap;
    int primary_after = -1;
    int secondary_after = -1;
    script.then([&] {
        const SDL_Point p = grid_centre(dialog, 4);
        push_click(p.x, p.y, SDL_BUTTON_RIGHT);
        push_key(SDLK_TAB);
    });
    script.then([&] {
        after_one_swap = marks(store());
        primary_after = dialog.primary_tile();
        secondary_after = dialog.secondary_tile();
        push_key(SDLK_TAB);
    });
    script.then([] { push_key(SDLK_ESCAPE); });
    EXPECT_TRUE(dialog.run());
    EXPECT_FALSE(script.ran_out());
    EXPECT_EQ(after_one_swap, (std::vector<int>{1, 2, 5, 4, 3}));
    // Each marker stays on the tile it marked.
    EXPECT_EQ(primary_after, 4);
    EXPECT_EQ(secondary_after, 2);
    EXPECT_EQ(marks(store()), (std::vector<int>{1, 2, 3, 4, 5}));

    // As the editor's command: one step to undo on top of the history, the
    // tileset is modified and the canvas shows what now stands at the current place.
    Tileset& t = *g_editor->current();
    g_editor->run_command(command_next_tile);
    g_editor->run_command(command_previous_tile);
    const int records = t.history().count();
    ASSERT_GT(records, 1);
    t.clear_modified();
    script.then([] {
        push_click(0, 0, SDL_BUTTON_RIGHT);
        push_key(SDLK_TAB);
        push_key(SDLK_RETURN);
    });
    // The right click outside the grid leaves the secondary tile at 0.
    g_editor->run_command(command_arrange_select);
    EXPECT_EQ(marks(store()), (std::vector<int>{3, 2, 1, 4, 5}));
    EXPECT_EQ(t.history().count(), records + 1);
    EXPECT_TRUE(t.is_modified());
    EXPECT_EQ(g_editor->canvas().tile(), store().tile_at(2));
}

TEST_F(ArrangeDialogTest, SpaceSelectsOnlyAnotherTileAndReturnYAndEscapeSelectNothing) {
    Tileset& t = *g_editor->current();
    const int records = t.history().count();
    Event_Script script;
    // Space on the starting tile: nothing changes, nothing is recorded.
    script.then([] { push_key(SDLK_SPACE); });
    EXPECT_EQ(g_editor->execute(command_arrange_select), -1);
    EXPECT_FALSE(script.ran_out());
    EXPECT_EQ(store().current_index(), 2);
    EXPECT_FALSE(t.is_modified());

    // A marked tile closed with Return, "y" or Escape is not selected.
    for (SDL_Keycode key : {SDLK_RETURN, SDLK_Y, SDLK_ESCAPE}) {
        Arrange_Dialog dialog(cells, cells, cell, cell, store());
        script.then([&dialog, key] {
            const SDL_Point p = grid_centre(dialog, 0);
            push_click(p.x, p.y);
            push_key(key);
        });
        EXPECT_FALSE(dialog.run());
        EXPECT_EQ(dialog.primary_tile(), 0);
        EXPECT_EQ(store().current_index(), 2) << key;
    }

    // Space after a left click selects, recorded like a click on the strip.
    Arrange_Dialog probe(cells, cells, cell, cell, store());
    const SDL_Point p = grid_centre(probe, 4);
    script.then([p] {
        push_click(p.x, p.y);
        push_key(SDLK_SPACE);
    });
    g_editor->run_command(command_arrange_select);
    EXPECT_EQ(g_editor->canvas().tile(), store().tile_at(4));
    EXPECT_EQ(t.history().count(), records + 1);
    EXPECT_FALSE(t.is_modified());
}

// A loaded file may hold more tiles than the grid; the current one can lie
// beyond it, and Tab still swaps it with the tile under the pointer.
TEST_F(ArrangeDialogTest, DrawsEveryTileInItsCellAndCopesWithMoreThanTheGridHolds) {
    Arrange_Dialog dialog(cells, cells, cell, cell, store());
    Event_Script script;
    script.then([] { push_key(SDLK_ESCAPE); });
    dialog.run();
    for (int i = 0; i < 5; ++i) {
        const Rectangle p = dialog.picture_of(i);
        EXPECT_EQ(read_pixel(p.x + p.width - 1, p.y + p.height - 1), store().tile_at(i)->get_pixel(23, 23)) << i;
    }
    make_tiles(300);
    store().go_to(290);
    Arrange_Dialog big(cells, cells, cell, cell, store());
    const Rectangle g = big.grid();
    script.then([&] {
        push_motion(g.x + 3, g.y + 15 * cell + 3);
        push_key(SDLK_TAB);
        push_key(SDLK_ESCAPE);
    });
    EXPECT_TRUE(big.run());
    EXPECT_EQ(store().tile_count(), 300);
    EXPECT_EQ(store().tile_at(0)->get_pixel(0, 0).red, uint8_t(291));
}
