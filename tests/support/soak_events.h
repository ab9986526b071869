#pragma once

#include <SDL3/SDL.h>

#include <cstdint>
#include <deque>
#include <string>

// An endless stream of user input for the editor, made from a seed alone:
// keys of the command table with their modifiers, the keys dialogs answer to,
// clicks and drags with either button (mostly where the window's parts and
// its dialogs are), pointer moves, wheel turns, a Ctrl drag now and then,
// and rarely a close request or a quit. Each event also moves the stream's
// own clock on, so that paced work sees the same time on every run.
// Which dialog is open follows from the events before, so the stream still
// depends on the seed alone.
class Soak_Events {
public:
    explicit Soak_Events(uint64_t seed);

    // The next event; while a dialog is open, more of the stream answers it
    // (keys and presses in the middle) so that the run also gets back out.
    SDL_Event next(bool dialog_open);
    // A choice below n from the same stream, for answers the program asks
    // for outside the event queue (the file dialogs).
    uint32_t below(uint32_t n);
    uint64_t now_ms() const { return clock_ms; }

    static std::string describe(const SDL_Event& event);

private:
    uint64_t random();
    void plan(bool dialog_open);
    SDL_Point somewhere();
    SDL_Point middle();
    void key(SDL_Keycode key, SDL_Keymod mod);
    void command_key();
    void answer_key(bool closing);
    void button(Uint8 which, bool down);
    void move_to(SDL_Point to, int steps);
    void click(SDL_Point at);
    void menu_pick();
    void drag(Uint8 which);
    void wheel();
    void pan();
    void lone(Uint32 type);

    uint64_t state;
    uint64_t clock_ms = 0;
    std::deque<SDL_Event> planned;
    float x = 600;
    float y = 300;
    SDL_MouseButtonFlags held = 0;
};
