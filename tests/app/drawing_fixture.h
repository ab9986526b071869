#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "app/canvas_view.h"
#include "model/core/commands.h"
#include "app/editor.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "app/strokes/drawing_tools.h"
#include "support/editor_fixture.h"
#include "ui/backdrop.h"
#include "ui/event_script.h"

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
