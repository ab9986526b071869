#include "app/application.h"

#include <SDL3/SDL.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "app/batch.h"
#include "app/command_line.h"
#include "features/brushpad/brush_pad_pane.h"
#include "model/core/data_file.h"
#include "platform/data_directory.h"
#include "platform/debug_log.h"
#include "app/editor.h"
#include "model/core/fatal.h"
#include "platform/globals.h"
#include "platform/main_window.h"
#include "app/prompt_dialogs.h"
#include "app/recovery.h"
#include "platform/sdl_tile_texture.h"
#include "app/tool_options.h"
#include "model/brushpad/brush_pad_file.h"
#include "model/color/color_database.h"
#include "model/color/palette.h"
#include "model/tile/tile_texture.h"
#include "platform/fonts.h"
#include "ui/message_box.h"
#include "ui/options.h"
#include "ui/ui_globals.h"

namespace {
// Why "brushpad.dat" was refused at start-up, told to the user over the first frame.
std::string pad_damage;
// The data folder, where damaged settings files are moved aside.
std::string data_folder;
}  // namespace

int Application::main(int argc, char** argv) {
    const Command_Line line =
        Command_Line::parse(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc), Command_Line::start_dir());
    switch (line.mode) {
        case Command_Line::Mode::help:
            std::fputs(Command_Line::usage(), stdout);
            return 0;
        case Command_Line::Mode::version:
            std::printf("%s\n", Command_Line::version());
            return 0;
        case Command_Line::Mode::usage_error:
            std::fprintf(stderr, "mosswick: %s\n%s", line.error.c_str(), Command_Line::usage());
            return 2;
        case Command_Line::Mode::batch:
            return run_batch(line);
        case Command_Line::Mode::window:
            break;
    }
    // Keys arrive as the unshifted key, so Shift+R is R with Shift held, as
    // the command table binds it.
    SDL_SetHint(SDL_HINT_KEYCODE_OPTIONS, "unmodified");
    if (!SDL_InitSubSystem(SDL_INIT_VIDEO)) {
        std::printf("Error: %s.\n", "Unable to initialize SDL video.");
        return 1;
    }
    start_up();
    run(&line);
    shut_down();
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    SDL_Quit();
    return 0;
}

// The order matters: each object may use those made before it.
void Application::start_up() {
    // The log keeps as many lines as the debug monitor can show.
    const int screen_lines = int(Main_Window::default_height) / font_table[font_regular].glyph_height;
    g_debug_log = new Debug_Log(size_t(screen_lines - 1));
    if (Data_Directory::enter(Data_Directory::data) <= 0) fatal_error("Unable to open 'data' directory.");
    std::error_code error;
    data_folder = std::filesystem::current_path(error).string();
    recovery::set_folder((std::filesystem::path(data_folder) / "recovery").string());
    g_main_window = new Main_Window(Main_Window::default_width, Main_Window::default_height);
    set_tile_texture_maker(make_sdl_tile_texture);
    g_palette = new Palette();
    if (!g_palette->damage_report().empty())
        g_debug_log->warn("%s damaged (%s): built-in pages used", Palette::default_file,
                          g_palette->damage_report().c_str());
    g_message_box = new Message_Box();
    g_tool_options = new Tool_Options_Pane(816, 32);
    pad_damage = g_tool_options->brush_pad().load(Brush_Pad_File::default_name);
    if (!pad_damage.empty())
        g_debug_log->warn("%s refused (%s): the pad starts empty and the file is kept as it is",
                          Brush_Pad_File::default_name, pad_damage.c_str());
    Data_Directory::leave();
    g_color_database = new Color_Database();
    g_prompt_dialogs = new Prompt_Dialogs();
    g_editor = new Editor();
    // From here on a fatal error first keeps the open tilesets' unsaved work.
    set_fatal_hook(recovery::save_open_work);
    g_options = new Options();
    g_options->load();
}

void Application::run(const Command_Line* given) {
    std::string note = recovery::start_note(recovery::folder());
    const std::vector<std::string> damaged = Data_File::damaged_files(data_folder);
    if (!damaged.empty()) {
        if (!note.empty()) note += "\r";
        note += "A damaged settings file ended the last run. It was moved aside,\rand the program runs on defaults "
                "instead:\r";
        for (size_t i = 0; i < damaged.size() && i < 6; ++i) note += "  " + damaged[i] + "\r";
        note += "in " + data_folder + "\rMove or delete them to stop this note.";
    }
    if (!pad_damage.empty()) {
        if (!note.empty()) note += "\r";
        note += std::string("The brush pad file \"") + Brush_Pad_File::default_name + "\" was refused (" + pad_damage +
                "):\rthe pad starts empty and the file is kept as it is; brushes added\rin this session are not saved.";
    }
    g_editor->run(note, given);
}

// Not the mirror of start-up: the options go first and the editor second, and
// the data directory is entered again only around the files written there.
void Application::shut_down() {
    set_fatal_hook(nullptr);
    recovery::set_folder("");
    delete g_options;
    g_options = nullptr;
    delete g_editor;
    g_editor = nullptr;
    delete g_prompt_dialogs;
    g_prompt_dialogs = nullptr;
    delete g_color_database;
    g_color_database = nullptr;
    Data_Directory::enter(Data_Directory::data);
    if (!g_palette->save_if_changed() && g_message_box)
        g_message_box->show_message(
            "Error", "The palette could not be saved to \"palette.dat\": the colours\rchanged in this session are "
                     "lost. The file keeps the colours it held.");
    delete g_palette;
    g_palette = nullptr;
    // The message box is still there to say that the new brushes are lost.
    if (!g_tool_options->brush_pad().save_if_changed(Brush_Pad_File::default_name) &&
        g_tool_options->brush_pad().has_unsaved_brushes() && g_message_box)
        g_message_box->show_message(
            "Error", "The brush pad could not be saved to \"brushpad.dat\": the brushes\rchanged in this "
                     "session are lost. The file keeps the brushes it held.");
    delete g_tool_options;
    g_tool_options = nullptr;
    Data_Directory::leave();
    delete g_message_box;
    g_message_box = nullptr;
    set_tile_texture_maker(nullptr);
    delete g_main_window;
    g_main_window = nullptr;
    delete g_debug_log;
    g_debug_log = nullptr;
}
