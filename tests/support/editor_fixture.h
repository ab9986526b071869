#pragma once

#include <string>

#include "app/canvas_view.h"
#include "app/editor.h"
#include "app/file_dialog.h"
#include "model/tileset/tileset.h"
#include "platform/globals.h"
#include "support/headless.h"
#include "ui/event_script.h"

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
    // Every file dialog from now on answers with this path.
    static void answer_files_with(const std::string& path) {
        set_file_chooser([path](int, const std::string&, std::string& chosen) {
            chosen = path;
            return int(file_chosen);
        });
    }
};
