#include "app/file_dialog.h"

#include <SDL3/SDL.h>

#include <atomic>

#include "model/tileset/tileset.h"
#include "ui/message_box.h"
#include "ui/ui_globals.h"

namespace {
struct Kind {
    const char* extension;
    bool save;
    SDL_DialogFileFilter filter;
};

const Kind kinds[] = {
    {"wst", false, {"Mosswick file (*.wst)", "wst"}}, {"wst", true, {"Mosswick file (*.wst)", "wst"}},
    {"*", false, {"All files (*.*)", "*"}},           {"*", false, {"All files (*.*)", "*"}},
    {"bmp", false, {"Bitmap file (*.bmp)", "bmp"}},   {"bmp", true, {"Bitmap file (*.bmp)", "bmp"}},
    {"png", true, {"PNG image (*.png)", "png"}},
};
const SDL_DialogFileFilter all_files = {"All files (*.*)", "*"};

const SDL_DialogFileFilter& filter_of(int kind) {
    return kind >= 0 && kind <= file_save_png ? kinds[kind].filter : all_files;
}

// The dialog may answer on another thread: the result is published last.
struct Pending_Dialog {
    std::atomic<int> result{file_pending};
    std::string path;
};

void SDLCALL dialog_done(void* userdata, const char* const* files, int) {
    auto* pending = static_cast<Pending_Dialog*>(userdata);
    const int result = file_dialog_answer(files);
    if (result == file_chosen) pending->path = files[0];
    pending->result.store(result);
}

File_Chooser chooser = native_file_chooser;
}  // namespace

// Escape in some native save dialogs answers with one empty entry: no file
// was chosen, so it is a cancel like an empty list.
int file_dialog_answer(const char* const* files) {
    if (!files) return file_error;
    if (!files[0] || !files[0][0]) return file_cancelled;
    return file_chosen;
}

bool is_save_kind(int kind) { return kind == file_save_tileset || kind == file_save_bmp || kind == file_save_png; }

void set_file_chooser(File_Chooser replacement) {
    chooser = replacement ? std::move(replacement) : File_Chooser(native_file_chooser);
}

// Waits without sleeping or repainting: the native dialog is on top and the
// program only waits for its answer. Events meanwhile are dropped.
int native_file_chooser(int kind, const std::string& start, std::string& chosen) {
    Pending_Dialog pending;
    const char* location = start.empty() ? nullptr : start.c_str();
    if (is_save_kind(kind))
        SDL_ShowSaveFileDialog(dialog_done, &pending, nullptr, &filter_of(kind), 1, location);
    else
        SDL_ShowOpenFileDialog(dialog_done, &pending, nullptr, &filter_of(kind), 1, location, false);
    SDL_Event event;
    while (pending.result.load() == file_pending) SDL_PollEvent(&event);
    chosen = pending.path;
    return pending.result.load();
}

std::string force_extension(const std::string& path, int kind) {
    if (!is_save_kind(kind)) return path;
    const size_t slash = path.find_last_of('/');
    const size_t dot = path.find_last_of('.');
    const bool has_dot = dot != std::string::npos && (slash == std::string::npos || dot > slash);
    return (has_dot ? path.substr(0, dot) : path) + "." + kinds[kind].extension;
}

bool choose_file(int kind, File_Path& name) {
    std::string chosen;
    const int result = chooser(kind, name.full, chosen);
    if (result == file_error) {
        g_message_box->note("Unknown error occurred in file dialog.");
        return false;
    }
    if (result != file_chosen || chosen.empty()) return false;
    name.set(force_extension(chosen, kind));
    return true;
}
