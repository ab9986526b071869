#pragma once

#include <memory>
#include <string>

class Preview_Pane;
class Tileset;

// The program's small modal windows: messages, the yes/no question, the About
// box and the statistics window, and the "Preview" pane of the main window.
// One instance is made at start-up, after the main window.
class Message_Box {
public:
    Message_Box();
    ~Message_Box();
    Message_Box(const Message_Box&) = delete;
    Message_Box& operator=(const Message_Box&) = delete;

    // A box with the text ("\r" breaks lines) and "Ok". Return, Escape, "y",
    // "Ok" and closing the window all end it.
    void show_message(const char* title, const char* text);
    void note(const char* text) { show_message("Note", text); }
    void warning(const char* text) { show_message("Warning", text); }
    // "Ok" and "Cancel": true when confirmed (also by Return or "y").
    bool ask(const char* title, const char* text);

    // The logo, version, window size and renderer.
    void show_about();
    static std::string about_text();
    // The tileset's statistics text in a window of its own.
    void show_statistics(const Tileset& tileset);
    void show_statistics(const std::string& text);

    Preview_Pane& preview() { return *preview_pane; }

private:
    std::unique_ptr<Preview_Pane> preview_pane;
};
