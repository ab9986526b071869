#pragma once

#include <cstdint>
#include <memory>

class Dialog;

// The twelve user settings. They live in the "Options" dialog, whose data
// file "options.dlg" is the settings file; the values are copied out of the
// dialog at start-up and after every accepted edit.
class Options {
public:
    static constexpr int count = 12;
    enum Index : int {
        precise_brush = 0,
        blocky_precise_brush = 1,
        show_shadow_brush = 2,
        confirm_quick_save = 3,
        editor_pixel_size = 4,
        grid_intensity = 5,
        clear_selection = 6,
        repeat_x_tiles = 7,
        repeat_y_tiles = 8,
        alpha_grid_width = 9,
        alpha_grid_height = 10,
        clone_style = 11,
    };
    // Each setting's name, with its trailing blank.
    static const char* const names[count];
    // The dialog item each setting is read from.
    static const uint32_t value_ids[count];

    // Builds the dialog, which reads "options.dlg"; the settings start at 0
    // until load copies them out.
    Options();
    ~Options();
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;

    // The pixel size list holds entries 0..7 for the sizes 3..10.
    void load();
    // Runs the dialog; on Accept the file is written and the settings reloaded.
    bool edit();

    int32_t get(int index) const { return settings[index]; }
    bool is_on(int index) const { return settings[index] == 1; }
    Dialog& dialog() { return *options_dialog; }

private:
    std::unique_ptr<Dialog> options_dialog;
    int32_t settings[count] = {};
};
