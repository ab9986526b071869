#pragma once

#include "app/editor.h"
#include "platform/globals.h"
#include "support/headless.h"

// The real program with its first tileset made, fed events as its main loop
// would feed them.
class Editor_Fixture : public Headless {
protected:
    void SetUp() override {
        Headless::SetUp();
        ASSERT_TRUE(g_editor->begin());
        drop_pending_events();
    }
    // Hands every queued event to the editor.
    static void pump() {
        SDL_Event e;
        while (SDL_PollEvent(&e)) g_editor->handle(e);
    }
};
