#pragma once

class Debug_Log;
class Main_Window;

// The long-lived objects of the program. The start-up routine of the
// application sets each pointer and its shut-down routine clears it; nothing
// else creates or frees them.
extern Debug_Log* g_debug_log;
extern Main_Window* g_main_window;
