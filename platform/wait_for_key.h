#pragma once

#include "platform/event_source.h"

// Waits until a key is pressed or the window is asked to close; pending
// events are flushed afterwards. Returns true for a key, false for a close.
bool wait_for_key();

// Drops every event still queued, as each modal loop does when it ends.
void flush_events();
