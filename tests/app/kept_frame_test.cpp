// The editor keeps its frame between repaints and draws again only what
// changed: after anything a user does, the window must look exactly as a
// repaint of everything would draw it.

#include "platform/frame_cache.h"
#include "app/tool_options.h"
#include "support/editor_fixture.h"

namespace {
class KeptFrame : public Drawing {
protected:
    // Returns how many pixels the kept repaint drew again.
    static long expect_as_full_repaint(const char* step) {
        g_editor->repaint(false);
        const Frame_Cache& cache = g_main_window->frame_cache();
        long drawn = 0;
        for (int i = 0; i < cache.damage_count(); ++i) drawn += long(cache.damage(i).width) * cache.damage(i).height;
        SDL_Surface* kept = read_frame();
        g_main_window->frame_cache().invalidate();
        g_editor->repaint(false);
        SDL_Surface* full = read_frame();
        EXPECT_TRUE(kept && full);
        if (kept && full) {
            EXPECT_EQ(differing_pixels(kept, full), 0) << "after " << step;
        }
        SDL_DestroySurface(kept);
        SDL_DestroySurface(full);
        return drawn;
    }
    static void move_to(int x, int y) {
        push_motion(x, y);
        pump();
    }
};
}  // namespace

TEST_F(KeptFrame, EveryRepaintLooksLikeARepaintOfEverything) {
    expect_as_full_repaint("start-up");
    use_tool(command_pen);
    set_colors(Color(200, 20, 20), Color(20, 20, 200));
    stroke({{1, 1}, {6, 1}, {6, 5}});
    expect_as_full_repaint("a stroke");
    const SDL_Point cell = cell_centre(4, 4);
    move_to(cell.x, cell.y);
    expect_as_full_repaint("the pointer over the canvas");
    // The brush shadow and the read-out follow the pointer; nothing else is drawn again.
    const SDL_Point next = cell_centre(9, 6);
    move_to(next.x, next.y);
    const long drawn = expect_as_full_repaint("a move to another cell");
    EXPECT_GT(drawn, 0);
    EXPECT_LT(drawn, long(g_main_window->width()) * g_main_window->height() / 20);
    EXPECT_EQ(expect_as_full_repaint("nothing"), 0);
    const Rectangle pane = g_tool_options->outer_area();
    move_to(pane.x + 20, pane.y + 40);
    expect_as_full_repaint("the pointer over the tool options");
    key(SDLK_Z, SDL_KMOD_CTRL);
    expect_as_full_repaint("an undo");
    use_tool(command_dropper);
    expect_as_full_repaint("another tool");
    Canvas_View& view = g_editor->canvas();
    for (int x = 0; x < 5; ++x) view.tile_selection().mask()->set_pixel(x, 2, Color(255, 255, 255));
    view.tile_selection().set_active(true);
    expect_as_full_repaint("a selection");
    SDL_Event wheel{};
    wheel.type = SDL_EVENT_MOUSE_WHEEL;
    wheel.wheel.y = 1;
    g_editor->handle(wheel);
    expect_as_full_repaint("a zoom");
    view.tile_selection().set_active(false);
    move_to(5, 5);
    expect_as_full_repaint("the selection gone and the pointer on the menu bar");
}
