#pragma once

// Unrecoverable start-up, resource and file-read failures: print the message
// to standard output and end the process with exit code 1 at once. Nothing is
// saved and no destructor runs.
[[noreturn]] void fatal_error(const char* text);
[[noreturn]] void fatal_error(const char* message, const char* name);
