#pragma once

#include "platform/event_source.h"

// Waits until a key is pressed or the window is asked to close; pending
// events are flushed afterwards. Returns true for a key, false for a close.
bool wait_for_key();

// Drops every event still queued, as each modal loop does when it ends.
void flush_events();

// Asks the main loop to quit, as closing the window does: for a modal
// window that a close request ended, after its flush, so that one close of
// the window is enough to reach the quit question.
void push_quit_request();
