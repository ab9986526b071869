// Replaces app/fatal.cpp in the fuzz build (see the top-level CMakeLists.txt).
#include "fuzz/fatal_throws.h"

#include "model/core/fatal.h"

namespace {
Fatal_Hook last_words = nullptr;

void run_hook() {
    Fatal_Hook hook = last_words;
    last_words = nullptr;
    if (hook) hook();
}
}  // namespace

void set_fatal_hook(Fatal_Hook hook) { last_words = hook; }

// The text is built as the real routine prints it, so a target can tell the
// messages apart.
void fatal_error(const char* text) {
    run_hook();
    throw Fatal_Exit{std::string("Error: ") + text + "!"};
}

void fatal_error(const char* message, const char* name) {
    run_hook();
    throw Fatal_Exit{std::string("Error: ") + message + " " + name + "!"};
}
