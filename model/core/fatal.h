#pragma once

// Unrecoverable start-up, resource and file-read failures: print the message
// to standard output and end the process with exit code 1 at once. No
// destructor runs; only the last-words hook (below) gets to keep the user's work.
[[noreturn]] void fatal_error(const char* text);
[[noreturn]] void fatal_error(const char* message, const char* name);

// Runs once, just before a fatal error prints its message and ends the process:
// start-up installs the writer of recovery files here. It must not print.
using Fatal_Hook = void (*)();
void set_fatal_hook(Fatal_Hook hook);
