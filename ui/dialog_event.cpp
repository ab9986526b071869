#include "ui/dialog_event.h"

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/text_writer.h"

namespace {
struct Type_Record {
    const char* name;
    bool redraw;
};

constexpr Type_Record type_table[item_type_count] = {
    {"Unknown", false}, {"Accept", false}, {"Cancel", false}, {"Increase", true},
    {"Decrease", true}, {"Self", true},    {"Radio", true},    {"Middle", true},
    {"Left", true},     {"Right", true},
};

bool in_table(int32_t type) { return type >= 0 && type < item_type_count; }
}  // namespace

const char* item_type_name(int32_t type) { return type_table[in_table(type) ? type : 0].name; }

bool item_type_redraws(int32_t type) { return in_table(type) && type_table[type].redraw; }

void Dialog_Event::write_readout() const {
    Text_Writer& writer = g_main_window->writer(font_regular);
    writer.set_cell(2, 2);
    writer.printf("Type: %s, target: %d       ", item_type_name(type), target);
}
