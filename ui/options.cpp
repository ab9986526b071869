#include "ui/options.h"

#include <algorithm>

#include "ui/dialog.h"

const char* const Options::names[count] = {
    "precise brush: ",     "blocky precise brush: ", "show shadow brush: ", "confirm quick save: ",
    "editor pixel size: ", "grid intensity: ",       "clear selection: ",   "repeat x tiles: ",
    "repeat y tiles: ",    "alpha grid width: ",     "alpha grid height: ", "clone style: ",
};

const uint32_t Options::value_ids[count] = {31, 40, 50, 70, 81, 91, 100, 111, 121, 151, 161, 131};

namespace {
constexpr int pixel_size_offset = 3;

// Each setting's range; a damaged "options.dlg" is held inside them.
struct Bounds {
    int32_t low;
    int32_t high;
};
constexpr Bounds bounds[Options::count] = {{0, 2}, {0, 1}, {0, 1},  {0, 1}, {3, 10}, {0, 255},
                                           {0, 1}, {1, 21}, {1, 21}, {1, 8}, {1, 8},  {0, 2}};
}  // namespace

Options::Options() : options_dialog(std::make_unique<Dialog>("Options", "options.dlg")) {
    Dialog& d = *options_dialog;
    d.add_list_row(30, 2, "No precise brush,Use precise brush,Exclude pixel size precise brush$");
    d.add_tick_row(40, false, "Use blocky precise brush movement");
    d.add_tick_row(50, true, "Show shadow brush");
    d.add_tick_row(70, false, "Confirm quick save");
    d.add_list_row(80, 7,
                   "Editor pixel size: 3 [restart],Editor pixel size: 4 [restart],"
                   "Editor pixel size: 5 [restart],Editor pixel size: 6 [restart],"
                   "Editor pixel size: 7 [restart],Editor pixel size: 8 [restart],"
                   "Editor pixel size: 9 [restart],Editor pixel size: 10 [restart]$");
    d.add_number_row(90, 64, 0, 255, "Grid intensity:");
    d.add_tick_row(100, true, "Clear selection when another tile selected");
    d.add_number_row(110, 2, 1, 21, "Preview X tiles:");
    d.add_number_row(120, 2, 1, 21, "Preview Y tiles:");
    d.add_number_row(150, 6, 1, 8, "Alpha grid width:");
    d.add_number_row(160, 6, 1, 8, "Alpha grid height:");
    // The clone style stands after the alpha grid rows although its ids are lower.
    d.add_list_row(130, 0,
                   "Center clone to image,Anchor clone to top-left,Resize clone to current size$");
    d.finish(true);
}

Options::~Options() = default;

void Options::load() {
    for (int i = 0; i < count; ++i) {
        int64_t value = options_dialog->value_of(value_ids[i]);
        if (i == editor_pixel_size) value += pixel_size_offset;
        settings[i] = int32_t(std::clamp<int64_t>(value, bounds[i].low, bounds[i].high));
    }
}

bool Options::edit() {
    const bool accepted = options_dialog->run();
    if (accepted) load();
    return accepted;
}
