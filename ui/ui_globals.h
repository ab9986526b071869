#pragma once

class Message_Box;
class Options;

// The interface's long-lived objects, set and cleared by the start-up and
// shut-down routines of the application.
extern Message_Box* g_message_box;
extern Options* g_options;
