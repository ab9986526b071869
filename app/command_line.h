#pragma once

#include <string>
#include <vector>

// What the program was started to do, from its arguments. Relative paths are
// made absolute against the directory the user started in, since the editor
// runs with its data folder's parent as the working directory.
struct Command_Line {
    enum class Mode { window, batch, help, version, usage_error };
    Mode mode = Mode::window;

    // Window: tilesets to open, each in its own tab.
    std::vector<std::string> tilesets;
    // Window: a sheet opened as a new tileset; batch: the input when --tile is given.
    std::string sheet;
    int tile_width = 0;
    int tile_height = 0;

    // Batch: the tileset read (when no sheet is), and what is written.
    std::string input;
    std::string export_to;
    std::string save_to;
    std::string map_image_to;

    // Usage error: what was wrong, in one line.
    std::string error;

    static Command_Line parse(const std::vector<std::string>& arguments, const std::string& start_dir);
    // The directory relative paths are taken from: $MOSSWICK_START_DIR when the
    // launcher set it, else the working directory.
    static std::string start_dir();
    static const char* usage();
    static const char* version();
};
