#include <SDL3/SDL.h>
#define SDL_MAIN_HANDLED
#include <SDL3/SDL_main.h>

#include "app/application.h"

namespace {
int mosswick_main(int, char**) { return Application::main(); }
}  // namespace

int main(int, char**) { return SDL_RunApp(0, nullptr, mosswick_main, nullptr); }
