#pragma once

#include <SDL3/SDL.h>

#include <cstdint>
#include <functional>

// Every loop that waits for an event, the main loop and each modal loop alike,
// waits through here. By default it is SDL_WaitEvent; a test can put one
// source in its place and so feed the whole program, nested loops included,
// one event at a time. False ends the waiting loop, as SDL's failure would.
using Event_Source = std::function<bool(SDL_Event& event)>;

bool wait_event(SDL_Event& event);
// An empty source puts SDL_WaitEvent back.
void set_event_source(Event_Source source);

// The clock in milliseconds that work paced between events reads (the
// lightness pen). SDL_GetTicks by default; a source of scripted events keeps
// its own time here, so that its run repeats exactly.
using Tick_Source = std::function<uint64_t()>;

uint64_t event_ticks();
// An empty source puts SDL_GetTicks back.
void set_tick_source(Tick_Source source);
