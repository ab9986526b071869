#pragma once

#include <SDL3/SDL.h>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "ui/backdrop.h"
#include "platform/event_source.h"

// The loop of a modal window: the window is a backdrop layer while it runs,
// the editor and every open layer are painted and presented before each wait,
// and each event goes to the handler until it answers false or events end.
template <typename Handler>
void run_modal_layer(Backdrop::Painter painter, void* context, Backdrop::Area_Of area, Handler&& handle) {
    const Backdrop_Layer layer(painter, context, area);
    SDL_Event event;
    for (bool open = true; open;) {
        Backdrop::paint();
        g_main_window->present();
        if (!wait_event(event)) break;
        open = handle(event);
    }
}
