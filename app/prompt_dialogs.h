#pragma once

#include <memory>

class Dialog;

// The "New tileset" dialog, kept for the program's lifetime so that it offers
// the size chosen last time, and the yes/no prompts built on demand.
class Prompt_Dialogs {
public:
    static constexpr int width_id = 1;
    static constexpr int height_id = 11;
    static constexpr int keep_id = 20;
    static constexpr int mode_new = 0;
    static constexpr int mode_keep_and_resize = 2;

    struct New_Tileset {
        bool confirmed;
        int width;
        int height;
        int mode;
    };

    Prompt_Dialogs();
    ~Prompt_Dialogs();
    Prompt_Dialogs(const Prompt_Dialogs&) = delete;
    Prompt_Dialogs& operator=(const Prompt_Dialogs&) = delete;

    New_Tileset new_tileset_dialog();
    Dialog& new_tileset() { return *new_dialog; }

    static bool confirm(const char* title, const char* text);
    static bool confirm_quit(bool all_saved);

private:
    std::unique_ptr<Dialog> new_dialog;
};

extern Prompt_Dialogs* g_prompt_dialogs;
