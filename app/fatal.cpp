#include "app/fatal.h"

#include <cstdio>
#include <cstdlib>

void fatal_error(const char* text) {
    std::printf("Error: %s!\n", text);
    std::fflush(stdout);
    std::_Exit(1);
}

void fatal_error(const char* message, const char* name) {
    std::printf("Error: %s %s!\n", message, name);
    std::fflush(stdout);
    std::_Exit(1);
}
