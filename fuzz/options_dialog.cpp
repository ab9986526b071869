// "options.dlg" through the real options dialog (the one dialog with a data
// file), with the program started headless once per process; then every
// "More", "Less" and tick button is pressed once and the dialog is drawn, as
// a user opening the dialog would.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "fuzz/fatal_throws.h"
#include "fuzz/support.h"
#include "ui/button_dialog_item.h"
#include "ui/dialog.h"
#include "ui/number_dialog_item.h"
#include "ui/options.h"
#include "ui/textlist_dialog_item.h"

namespace {

struct Bounds {
    int32_t min, max;
};

// The settings the rest of the editor may rely on, whatever the file held:
// the range of each row of the dialog (the pixel size as a size, not an entry).
constexpr Bounds setting_bounds[Options::count] = {
    {0, 2}, {0, 1}, {0, 1}, {0, 1}, {3, 10}, {0, 255}, {0, 1}, {1, 21}, {1, 21}, {1, 8}, {1, 8}, {0, 2},
};

void check_settings(const Options& options) {
    for (int i = 0; i < Options::count; ++i)
        if (options.get(i) < setting_bounds[i].min || options.get(i) > setting_bounds[i].max) {
            std::fprintf(stderr, "setting %s%d outside %d..%d\n", Options::names[i], options.get(i),
                         setting_bounds[i].min, setting_bounds[i].max);
            std::abort();
        }
}

// Each item's value lies in its own bounds, which are the program's, not the file's.
void check_items(Dialog& dialog) {
    for (const auto& row : dialog.container().rows())
        for (const auto& item : row->items()) {
            const Range* range = nullptr;
            if (const auto* number = dynamic_cast<const Number_Dialog_Item*>(item.get())) range = &number->number;
            if (const auto* list = dynamic_cast<const Textlist_Dialog_Item*>(item.get())) {
                range = &list->choice;
                if (!list->current()) std::abort();
            }
            if (range && !range->inside(range->value)) std::abort();
        }
}

// What Dialog::run does with a press, without waiting for events.
void press_buttons(Dialog& dialog) {
    for (const auto& row : dialog.container().rows())
        for (const auto& item : row->items()) {
            const auto* button = dynamic_cast<const Button_Dialog_Item*>(item.get());
            if (!button || button->host == Dialog_Item::no_id) continue;
            const Rectangle a = item->area;
            const Dialog_Event event = dialog.container().hit(a.x + a.width / 2, a.y + a.height / 2);
            if (event.target != -1)
                if (Dialog_Item* target = dialog.find(uint32_t(event.target))) target->receive(event.type);
            if (item_type_redraws(event.type)) dialog.update_all();
        }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    fuzz::start_program();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::filesystem::path file = fuzz::private_dir() / "data" / "options.dlg";
    fuzz::write_file(file, data, size);
    try {
        Options options;
        options.load();
        check_settings(options);
        check_items(options.dialog());
        press_buttons(options.dialog());
        check_items(options.dialog());
        options.dialog().draw();
    } catch (const Fatal_Exit& e) {
        fuzz::leave_data_directory();
        if (e.text != "Error: Unable to load block from  options.dlg!") std::abort();
    }
    return 0;
}
