#pragma once

#include <SDL3/SDL.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "model/color/color.h"
#include "model/core/rectangle.h"
#include "support/scratch_dir.h"

// Runs the real start-up of the program on SDL's dummy video driver (a window
// with a software renderer) in a fresh working directory holding a data/
// folder with the real "pool.bmp", and shuts it down again afterwards.
class Headless : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // The dummy driver queues window events at creation; tests start clean.
    static void drop_pending_events();
    static void push_key(SDL_Keycode key, SDL_Keymod mod = SDL_KMOD_NONE);
    // A key pressed and held: no release follows.
    static void push_key_down(SDL_Keycode key, SDL_Keymod mod);
    static void push_text_key(char c);
    static void push_button(int x, int y, bool down, Uint8 button = SDL_BUTTON_LEFT);
    static void push_click(int x, int y, Uint8 button = SDL_BUTTON_LEFT);
    static SDL_Point centre(const Rectangle& r) { return SDL_Point{r.x + r.width / 2, r.y + r.height / 2}; }
    static void push_click(const Rectangle& r, Uint8 button = SDL_BUTTON_LEFT) {
        push_click(r.x + r.width / 2, r.y + r.height / 2, button);
    }
    static void push_motion(int x, int y, Uint32 buttons = 0, float xrel = 0, float yrel = 0);
    static void push_quit();
    static void push_close_request();

    // The frame as it stands on the renderer's target.
    static Color read_pixel(int x, int y);
    static SDL_Surface* read_frame();

    std::filesystem::path work_dir;

private:
    std::filesystem::path previous_dir;
    std::unique_ptr<Scratch_Dir> scratch;
};

// A fresh temporary directory, removed with the object.
struct Temp_Dir {
    Scratch_Dir scratch;
    const std::filesystem::path path = scratch.path();
};

std::filesystem::path source_path(const std::string& relative);

// How many pixels of two frames of the same size differ; the window has no
// alpha, so its unused byte is left out.
int differing_pixels(const SDL_Surface* a, const SDL_Surface* b);

inline void PrintTo(const Rectangle& r, std::ostream* os) {
    *os << "{" << r.x << ", " << r.y << ", " << r.width << ", " << r.height << "}";
}

inline void PrintTo(const Color& c, std::ostream* os) {
    *os << "(" << int(c.red) << ", " << int(c.green) << ", " << int(c.blue) << ", " << int(c.alpha) << ")";
}
