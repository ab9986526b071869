#include "app/prompt_dialogs.h"

#include "ui/dialog.h"
#include "ui/message_box.h"
#include "ui/ui_globals.h"

Prompt_Dialogs* g_prompt_dialogs = nullptr;

Prompt_Dialogs::Prompt_Dialogs() : new_dialog(std::make_unique<Dialog>("New tileset")) {
    // Number rows put their value item one above the row's first id.
    new_dialog->add_number_row(width_id - 1, 24, 6, 64, "Width:");
    new_dialog->add_number_row(height_id - 1, 24, 6, 64, "Height:");
    new_dialog->add_text("   ");
    new_dialog->add_tick_row(keep_id, false, "Keep and resize");
    new_dialog->finish(true);
}

Prompt_Dialogs::~Prompt_Dialogs() = default;

Prompt_Dialogs::New_Tileset Prompt_Dialogs::new_tileset_dialog() {
    const bool confirmed = new_dialog->run();
    return New_Tileset{confirmed, new_dialog->value_of(width_id), new_dialog->value_of(height_id),
                       new_dialog->value_of(keep_id) == 1 ? mode_keep_and_resize : mode_new};
}

bool Prompt_Dialogs::confirm(const char* title, const char* text) { return g_message_box->ask(title, text); }

bool Prompt_Dialogs::confirm_quit(bool all_saved) {
    return confirm("Quit", all_saved ? "Quit Mosswick?" : "Quit Mosswick without saving tiles?\r(Progress will be lost.)");
}
