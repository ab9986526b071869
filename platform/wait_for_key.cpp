#include "platform/wait_for_key.h"

#include <SDL3/SDL.h>

bool wait_for_key() {
    SDL_Event event;
    bool key = false;
    while (wait_event(event)) {
        if (event.type == SDL_EVENT_KEY_DOWN) {
            key = true;
            break;
        }
        if (event.type == SDL_EVENT_QUIT || event.type == SDL_EVENT_WINDOW_CLOSE_REQUESTED) break;
    }
    flush_events();
    return key;
}

void flush_events() {
    SDL_PumpEvents();
    SDL_FlushEvents(SDL_EVENT_FIRST, SDL_EVENT_LAST);
}

void push_quit_request() {
    SDL_Event quit{};
    quit.type = SDL_EVENT_QUIT;
    SDL_PushEvent(&quit);
}
