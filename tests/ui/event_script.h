#pragma once

#include <SDL3/SDL.h>

#include <deque>
#include <functional>

#include "ui/backdrop.h"

// Drives nested modal loops: every loop repaints its backdrop before it
// waits, so whenever the queue is empty at that moment the next step pushes
// its events. Events pushed up front would be flushed when an inner loop ends.
// When the steps run out a quit is pushed, so a test never hangs.
// A painter given to the script paints beneath the layers after each step
// (the editor's repaint, for tests of the whole window); a step therefore
// still finds the frame the previous repaint presented.
class Event_Script {
public:
    explicit Event_Script(Backdrop::Painter beneath = nullptr, void* context = nullptr)
        : beneath(beneath), context(context) {
        Backdrop::set_base(&Event_Script::paint, this);
    }
    ~Event_Script() { Backdrop::set_base(nullptr, nullptr); }
    Event_Script(const Event_Script&) = delete;
    Event_Script& operator=(const Event_Script&) = delete;

    Event_Script& then(std::function<void()> step) {
        steps.push_back(std::move(step));
        return *this;
    }
    bool ran_out() const { return overran; }
    size_t left() const { return steps.size(); }

private:
    static void paint(void* context) {
        auto* self = static_cast<Event_Script*>(context);
        self->next_step();
        if (self->beneath) self->beneath(self->context);
    }

    void next_step() {
        if (pending()) return;
        if (steps.empty()) {
            overran = true;
            SDL_Event quit{};
            quit.type = SDL_EVENT_QUIT;
            SDL_PushEvent(&quit);
            return;
        }
        const std::function<void()> step = std::move(steps.front());
        steps.pop_front();
        step();
    }

    // SDL leaves its internal poll sentinel in the queue; it is no event.
    static bool pending() {
        SDL_PumpEvents();
        return SDL_HasEvents(SDL_EVENT_FIRST, SDL_EVENT_POLL_SENTINEL - 1) ||
               SDL_HasEvents(SDL_EVENT_POLL_SENTINEL + 1, SDL_EVENT_LAST);
    }

    Backdrop::Painter beneath;
    void* context;
    std::deque<std::function<void()>> steps;
    bool overran = false;
};
