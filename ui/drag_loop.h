#pragma once

#include <SDL3/SDL.h>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "ui/backdrop.h"
#include "platform/event_source.h"

// The loop of a drag: repaint behind, wait, and hand every motion to the
// caller until a button is released or a quit arrives. The caller flushes
// the queue when its own clean-up is done.
template <class On_Motion>
void run_drag(On_Motion&& on_motion) {
    SDL_Event event;
    for (;;) {
        Backdrop::paint();
        g_main_window->present();
        if (!wait_event(event)) return;
        if (event.type == SDL_EVENT_MOUSE_BUTTON_UP || event.type == SDL_EVENT_QUIT) return;
        if (event.type == SDL_EVENT_MOUSE_MOTION) on_motion(event.motion);
    }
}
