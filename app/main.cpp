#include <SDL3/SDL.h>
#define SDL_MAIN_HANDLED
#include <SDL3/SDL_main.h>

#include "app/application.h"

namespace {
int mosswick_main(int argc, char** argv) { return Application::main(argc, argv); }
}  // namespace

int main(int argc, char** argv) { return SDL_RunApp(argc, argv, mosswick_main, nullptr); }
