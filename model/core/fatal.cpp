#include "model/core/fatal.h"

#include <cstdio>
#include <cstdlib>

namespace {
Fatal_Hook last_words = nullptr;

// A fatal error inside the hook must not run the hook again.
void run_hook() {
    Fatal_Hook hook = last_words;
    last_words = nullptr;
    if (hook) hook();
}
}  // namespace

void set_fatal_hook(Fatal_Hook hook) { last_words = hook; }

void fatal_error(const char* text) {
    run_hook();
    std::printf("Error: %s!\n", text);
    std::fflush(stdout);
    std::_Exit(1);
}

void fatal_error(const char* message, const char* name) {
    run_hook();
    std::printf("Error: %s %s!\n", message, name);
    std::fflush(stdout);
    std::_Exit(1);
}
