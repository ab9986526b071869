#pragma once

#include <cstdint>

// What a pressed dialog item asks for. The value is saved nowhere; only the
// order matters to the table of names and redraw flags below.
enum Item_Type : int32_t {
    item_unknown = 0,
    item_accept = 1,
    item_cancel = 2,
    item_increase = 3,
    item_decrease = 4,
    item_self = 5,
    item_radio = 6,
    item_middle = 7,
    item_left = 8,
    item_right = 9,
    item_type_count = 10,
};

// The name of a type for diagnostics, "Unknown" for values out of the table.
const char* item_type_name(int32_t type);
// Whether the dialog lays itself out and redraws after an event of this type.
bool item_type_redraws(int32_t type);

// The result of a press: the type, and the id of the item it goes to (-1: none).
struct Dialog_Event {
    int32_t type = item_unknown;
    int32_t target = -1;

    bool operator==(const Dialog_Event&) const = default;
    // Writes "Type: ..., target: ..." at character cell (2, 2); its trailing
    // blanks wipe out a longer previous readout.
    void write_readout() const;
};
