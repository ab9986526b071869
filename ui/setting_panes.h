#pragma once

#include "ui/dialog_pane.h"

// Panes of one setting each, shown inside other panels. Their single row has
// the first id 140.
inline constexpr uint32_t setting_pane_first_id = 140;

// Label, "Less", the number and "More"; the value is item 141.
class Number_Pane : public Dialog_Pane {
public:
    Number_Pane(const Rectangle& area, const char* title, const char* label, int32_t min,
                int32_t max, int32_t value);
    int32_t value() const { return container().value_of(setting_pane_first_id + 1); }
};

// "More" and a text list; the value is item 141.
class Option_Pane : public Dialog_Pane {
public:
    Option_Pane(const Rectangle& area, const char* title, const char* list_text, int32_t value);
    int32_t value() const { return container().value_of(setting_pane_first_id + 1); }
};

// A tick box and its label; the value is item 140.
class Tick_Pane : public Dialog_Pane {
public:
    Tick_Pane(const Rectangle& area, const char* title, const char* label, bool checked);
    int32_t value() const { return container().value_of(setting_pane_first_id); }
};
