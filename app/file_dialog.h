#pragma once

#include <functional>
#include <string>

struct File_Path;

// The kinds of native file dialog, each with one filter.
enum File_Kind : int {
    file_open_tileset = 0,
    file_save_tileset = 1,
    file_open_any = 2,
    file_open_any_too = 3,
    file_open_bmp = 4,
    file_save_bmp = 5,
    // The map window's image.
    file_save_png = 6,
};

// The outcome of one dialog: 0 chosen, 1 error, 2 cancelled (-1 while pending).
enum File_Result : int { file_pending = -1, file_chosen = 0, file_error = 1, file_cancelled = 2 };

// What the native dialog's file list means: none at all is an error; an
// empty list or an empty first entry a cancel; anything else a choice.
int file_dialog_answer(const char* const* files);

// Shows the dialog of a kind, started at a path, and waits for its answer.
// The native dialogs are the default; tests put an answering one in place.
using File_Chooser = std::function<int(int kind, const std::string& start, std::string& chosen)>;
void set_file_chooser(File_Chooser chooser);
int native_file_chooser(int kind, const std::string& start, std::string& chosen);

// Runs the chooser; on success the chosen path goes into name, with the
// kind's extension forced for the save kinds. An error shows the note
// "Unknown error occurred in file dialog."; a cancel changes nothing.
bool choose_file(int kind, File_Path& name);

// "tiles.bmp" saved as a tileset becomes "tiles.wst"; "tiles" too.
std::string force_extension(const std::string& path, int kind);
bool is_save_kind(int kind);
