// Every modal window is drawn whole on top of the editor: while it is open,
// each pixel of its area shows what the window itself draws there, whatever
// the editor beneath holds (the brush under the pointer, a stroke, the tool
// colour panes, a highlighted menu title).

#include <cstdio>
#include <functional>

#include "app/prompt_dialogs.h"
#include "app/tool_bar.h"
#include "app/tool_options.h"
#include "support/editor_fixture.h"
#include "ui/dialog.h"
#include "ui/menu_bar.h"

namespace {
// A colour that neither the editor nor any window draws: where the window
// painted alone over it still shows it, the window leaves the pixel open.
constexpr Color plain(1, 2, 3);

void paint_editor(void*) { g_editor->repaint(false); }

Uint32 pixel_at(const SDL_Surface* s, int x, int y) {
    return reinterpret_cast<const Uint32*>(static_cast<const Uint8*>(s->pixels) + y * s->pitch)[x] & 0x00FFFFFF;
}

// The pixels of the window's area where the frame on screen is not the
// window alone: the first of them described, and how many there are.
std::string difference(const SDL_Surface* seen, const SDL_Surface* alone, const Backdrop::Area& area) {
    const Uint32 open = SDL_MapSurfaceRGB(const_cast<SDL_Surface*>(alone), plain.red, plain.green, plain.blue) &
                        0x00FFFFFF;
    int count = 0;
    char first[160] = "";
    for (int part = 0; part < 2; ++part) {
        const Rectangle& r = area.parts[part];
        for (int y = r.y; y < r.y + r.height; ++y)
            for (int x = r.x; x < r.x + r.width; ++x) {
                const Uint32 own = pixel_at(alone, x, y);
                const Uint32 shown = pixel_at(seen, x, y);
                if (own == open) {
                    if (part == 0 && y < r.y + area.open_rows) continue;
                } else if (own == shown) {
                    continue;
                }
                if (count++ == 0)
                    std::snprintf(first, sizeof first, "(%d, %d) shows %06x where the window alone is %06x", x, y,
                                  unsigned(shown), unsigned(own));
            }
    }
    return count == 0 ? std::string() : std::to_string(count) + " pixels, first " + first;
}
}  // namespace

class ModalLayers : public Editor_Fixture {
protected:
    // The worst case beneath a window: the pen with its biggest brush in white, a
    // stroke on the tile (an undo step, a modified tileset), the pen's page
    // with the tool colour panes, and the pointer over the canvas.
    void SetUp() override {
        Editor_Fixture::SetUp();
        // White on the black fresh tile, so that the stroke changes it.
        push_key(SDLK_X);
        push_key(SDLK_6);
        pump();
        const Rectangle c = Editor::canvas_area;
        const int x = c.x + c.width / 2;
        const int y = c.y + c.height / 2;
        {
            // The stroke's loop takes its moves while it waits.
            Event_Script script(paint_editor);
            script.then([x, y] { push_motion(x, y, SDL_BUTTON_LMASK); }).then([x, y] { push_button(x, y, false); });
            push_button(x - 40, y - 40, true);
            pump();
        }
        push_motion(x + 10, y + 10);
        pump();
        ASSERT_EQ(g_editor->current_tool(), int(command_pen));
        ASSERT_TRUE(g_editor->current()->is_modified());
        ASSERT_GE(g_tool_options->brush_size(), 6);
    }

    using Steps = std::vector<std::function<void()>>;

    // Pushes the events that open the window (the steps reach it through the
    // loops before it), then compares a frame presented while it is open with
    // the window painted alone over a plain window. A step runs as a loop
    // begins to repaint, before anything of that repaint is drawn, so the
    // window still holds the frame the loop presented last.
    void expect_drawn_whole(const char* window, const std::function<void()>& open, const Steps& reach = {}) {
        std::string found = "never checked";
        Event_Script script(paint_editor);
        for (const auto& step : reach) script.then(step);
        // Nothing that changes the window may come between the frame presented
        // and the window painted alone: the step before pushes an event no loop takes.
        script.then([] { push_idle(); }).then([&] {
            SDL_Surface* seen = read_frame();
            g_main_window->fill_opaque(Rectangle{0, 0, int(g_main_window->width()), int(g_main_window->height())},
                                       plain);
            Backdrop::paint_layers();
            SDL_Surface* alone = read_frame();
            const Backdrop::Area area = Backdrop::top_area();
            found = area.parts[0].empty() ? "no area" : difference(seen, alone, area);
            SDL_DestroySurface(seen);
            SDL_DestroySurface(alone);
            push_key(SDLK_ESCAPE);
        });
        // A prompt closes first, then the dialog beneath it.
        script.then([] { push_key(SDLK_ESCAPE); });
        open();
        pump();
        EXPECT_EQ(found, "") << window << " is not drawn whole";
        EXPECT_EQ(Backdrop::depth(), 0) << window;
    }

    static void push_idle() {
        SDL_Event e{};
        e.type = SDL_EVENT_USER;
        SDL_PushEvent(&e);
    }


    // A press on the menu's title opens it; the first step presses the entry.
    void through_menu(const char* window, int command, const Steps& then = {}) {
        const Menu_Bar& bar = g_editor->menus();
        for (int m = 0; m < Menu_Bar::menu_count; ++m)
            for (const Menu_Item& item : bar.menu(m).items)
                if (item.command == command) {
                    const SDL_Point title = centre(bar.menu(m).title.area);
                    const SDL_Point entry = centre(item.area);
                    Steps steps{[entry] { push_click(entry.x, entry.y); }};
                    steps.insert(steps.end(), then.begin(), then.end());
                    expect_drawn_whole(window, [title] { push_click(title.x, title.y); }, steps);
                    return;
                }
        ADD_FAILURE() << "no menu entry for " << window;
    }
};

TEST_F(ModalLayers, OptionsDialog) { through_menu("Options", command_options); }

TEST_F(ModalLayers, NewTilesetDialog) { through_menu("New tileset", command_new); }

TEST_F(ModalLayers, CloseQuestion) { through_menu("Close question", command_close); }

TEST_F(ModalLayers, MapEditor) { through_menu("Map editor", command_map_editor); }

TEST_F(ModalLayers, HelpBoxOfAToolButton) {
    const Rectangle first_tool{0, 32, 24, 24};
    const SDL_Point p = centre(first_tool);
    g_main_window->warp(p.x, p.y);
    ASSERT_EQ(g_editor->tools().command_at(g_main_window->mouse_position().x, g_main_window->mouse_position().y),
              int(command_pen));
    expect_drawn_whole("Help box", [] { push_key(SDLK_F1); });
}

TEST_F(ModalLayers, MenuOpenedAfterAnother) {
    const Menu_Bar& bar = g_editor->menus();
    const SDL_Point first = centre(bar.menu(0).title.area);
    const SDL_Point other = centre(bar.menu(4).title.area);
    expect_drawn_whole("Menu", [first] { push_click(first.x, first.y); },
                       {[other] { push_motion(other.x, other.y); }});
}

TEST_F(ModalLayers, ColorEditor) { through_menu("Color editor", command_color_editor); }

TEST_F(ModalLayers, EditHsvDialog) {
    const SDL_Point p = centre(g_tool_options->adjust_button());
    expect_drawn_whole("Edit HSV", [p] { push_click(p.x, p.y); });
}

TEST_F(ModalLayers, UndoHistoryViewer) { through_menu("Undo history", command_view_undo_history); }

TEST_F(ModalLayers, NumberPromptOverItsDialog) {
    const Rectangle number = g_prompt_dialogs->new_tileset().find(Prompt_Dialogs::width_id)->area;
    const SDL_Point p = centre(number);
    through_menu("Number prompt", command_new, {[p] { push_click(p.x, p.y); }});
}
