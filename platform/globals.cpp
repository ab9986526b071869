#include "platform/globals.h"

Debug_Log* g_debug_log = nullptr;
Main_Window* g_main_window = nullptr;
