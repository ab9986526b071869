#pragma once

#include <string>
#include <vector>

#include "app/canvas_view.h"
#include "app/editor.h"
#include "app/file_dialog.h"
#include "app/strokes/drawing_tools.h"
#include "model/core/commands.h"
#include "model/tileset/tileset.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "ui/backdrop.h"
#include "support/headless.h"
#include "ui/event_script.h"

// The file dialogs a test answered: how many, and the kind of the last.
struct File_Questions {
    int count = 0;
    int last_kind = -1;
};

// The real program with its first tileset made, fed events as its main loop
// would feed them.
class Editor_Fixture : public Headless {
protected:
    void SetUp() override {
        Headless::SetUp();
        ASSERT_TRUE(g_editor->begin());
        drop_pending_events();
    }
    void TearDown() override {
        set_file_chooser(nullptr);
        Headless::TearDown();
    }
    // Hands every queued event to the editor.
    static void pump() {
        SDL_Event e;
        while (SDL_PollEvent(&e)) g_editor->handle(e);
    }
    // The window point at the middle of a tile pixel on the canvas.
    static SDL_Point cell_centre(int tx, int ty) {
        const Canvas_View& c = g_editor->canvas();
        const int s = c.pixel_size();
        return SDL_Point{c.origin().x + tx * s + s / 2, c.origin().y + ty * s + s / 2};
    }
    // A command through the dispatch; a note or question it shows is closed
    // with Escape (no to a question).
    static void run(int command) {
        Event_Script script;
        for (int i = 0; i < 4; ++i) script.then([] { push_key(SDLK_ESCAPE); });
        g_editor->run_command(command);
        drop_pending_events();
    }
    // A command that is refused must say why in a note and record nothing.
    static void expect_refused(int command) {
        const int records = g_editor->current()->history().count();
        Event_Script script;
        script.then([] { push_key(SDLK_RETURN); });
        EXPECT_EQ(g_editor->execute(command), -1) << command;
        EXPECT_EQ(script.left(), 0u) << command << " showed no note";
        EXPECT_EQ(g_editor->current()->history().count(), records) << command;
    }
    // Every file dialog from now on answers with this path (or the given
    // answer); the questions are counted from here.
    static inline File_Questions asked;
    static void answer_files_with(const std::string& path, int answer = file_chosen) {
        asked = {};
        set_file_chooser([path, answer](int kind, const std::string&, std::string& chosen) {
            ++asked.count;
            asked.last_kind = kind;
            chosen = path;
            return answer;
        });
    }
};

// The editor after start-up, with helpers that draw through the real canvas
// loop: a press, pushed moves while the loop waits, and the release.
class Drawing : public Editor_Fixture {
protected:
    void SetUp() override {
        Editor_Fixture::SetUp();
        // The stroke loop repaints through the backdrop, where the script
        // pushes the next events.
        g_editor->canvas().repaint = [] {
            Backdrop::paint();
            g_main_window->present();
        };
    }
    static void key(SDL_Keycode k, SDL_Keymod mod = SDL_KMOD_NONE) {
        push_key(k, mod);
        pump();
    }
    // A press at the first cell, a move to each further cell, the release at
    // the last, with the given button.
    static void stroke(const std::vector<SDL_Point>& cells, Uint8 button = SDL_BUTTON_LEFT) {
        Event_Script script;
        const Uint32 mask = SDL_BUTTON_MASK(button);
        for (size_t i = 1; i < cells.size(); ++i) {
            const SDL_Point p = cell_centre(cells[i].x, cells[i].y);
            script.then([p, mask] { push_motion(p.x, p.y, mask); });
        }
        const SDL_Point end = cell_centre(cells.back().x, cells.back().y);
        script.then([end, button] { push_button(end.x, end.y, false, button); });
        const SDL_Point start = cell_centre(cells.front().x, cells.front().y);
        push_button(start.x, start.y, true, button);
        pump();
        EXPECT_EQ(script.left(), 0u);
        EXPECT_FALSE(script.ran_out());
    }
    static void use_tool(int tool) { g_editor->run_command(tool); }
    static void set_colors(Color left, Color right) {
        Stroke_Context& c = g_editor->drawing().context();
        c.take_color(0, left);
        c.take_color(1, right);
    }
    static Tile& tile() { return *g_editor->canvas().tile(); }
    static Color on_screen(int tx, int ty) {
        g_editor->repaint(false);
        const SDL_Point p = cell_centre(tx, ty);
        return read_pixel(p.x, p.y);
    }
};
