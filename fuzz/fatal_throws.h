#pragma once

#include <string>

// In the fuzz build a fatal error throws this instead of ending the process:
// the block error of a truncated file is the program's specified reaction, so
// for the fuzzer it is an ordinary outcome, and the next input runs at once.
struct Fatal_Exit {
    std::string text;
};
