#include "platform/event_source.h"

#include <utility>

namespace {
Event_Source& events() {
    static Event_Source installed;
    return installed;
}

Tick_Source& tick_source() {
    static Tick_Source installed;
    return installed;
}
}  // namespace

bool wait_event(SDL_Event& event) {
    const Event_Source& source = events();
    return source ? source(event) : SDL_WaitEvent(&event);
}

void set_event_source(Event_Source source) { events() = std::move(source); }

uint64_t event_ticks() {
    const Tick_Source& source = tick_source();
    return source ? source() : SDL_GetTicks();
}

void set_tick_source(Tick_Source source) { tick_source() = std::move(source); }
