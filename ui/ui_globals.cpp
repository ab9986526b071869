#include "ui/ui_globals.h"

Message_Box* g_message_box = nullptr;
Options* g_options = nullptr;
