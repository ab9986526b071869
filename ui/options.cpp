#include "ui/options.h"

#include "ui/dialog.h"

const char* const Options::names[count] = {
    "precise brush: ",     "blocky precise brush: ", "show shadow brush: ", "confirm quick save: ",
    "editor pixel size: ", "grid intensity: ",       "clear selection: ",   "repeat x tiles: ",
    "repeat y tiles: ",    "alpha grid width: ",     "alpha grid height: ", "clone style: ",
};

const uint32_t Options::value_ids[count] = {31, 40, 50, 70, 81, 91, 100, 111, 121, 151, 161, 131};

namespace {
constexpr int pixel_size_offset = 3;
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
    for (int i = 0; i < count; ++i) settings[i] = options_dialog->value_of(value_ids[i]);
    settings[editor_pixel_size] += pixel_size_offset;
}

bool Options::edit() {
    const bool accepted = options_dialog->run();
    if (accepted) load();
    return accepted;
}
