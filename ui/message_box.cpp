#include "ui/message_box.h"

#include <SDL3/SDL.h>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/sprites.h"
#include "model/tileset/tileset.h"
#include "ui/dialog.h"
#include "ui/preview_pane.h"

// The preview stands at the top of the window's left column, beside the tool bar.
Message_Box::Message_Box() : preview_pane(std::make_unique<Preview_Pane>(28, 32)) {}

Message_Box::~Message_Box() = default;

void Message_Box::show_message(const char* title, const char* text) {
    Dialog dialog(title);
    dialog.add_text(text);
    dialog.finish(false);
    dialog.run();
}

bool Message_Box::ask(const char* title, const char* text) {
    Dialog dialog(title);
    dialog.add_text(text);
    dialog.finish(true);
    return dialog.run();
}

std::string Message_Box::about_text() {
    // The size the window has now, which need not be the size it began with.
    int width = int(g_main_window->width());
    int height = int(g_main_window->height());
    SDL_GetWindowSize(g_main_window->window(), &width, &height);
    const char* renderer = g_main_window->renderer_name();
    std::string text = "    \r";
    text += "Version";
    text += " 0.88";
    text += "\r\rFreeware\r";
    text += std::to_string(width) + " x " + std::to_string(height);
    text += " window size\r";
    text += "Renderer: ";
    text += renderer ? renderer : "";
    return text;
}

void Message_Box::show_about() {
    const std::string text = about_text();
    Dialog dialog("About");
    dialog.add_image(sprite_logo);
    dialog.add_text(text.c_str());
    dialog.finish(false);
    dialog.run();
}

void Message_Box::show_statistics(const Tileset& tileset) { show_statistics(tileset.statistics_text()); }

void Message_Box::show_statistics(const std::string& text) {
    Dialog dialog("Statistics");
    dialog.add_text(text.c_str());
    dialog.finish(false);
    dialog.run();
}
