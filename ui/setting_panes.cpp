#include "ui/setting_panes.h"

#include "ui/dialog_rows.h"

Number_Pane::Number_Pane(const Rectangle& area, const char* title, const char* label, int32_t min,
                         int32_t max, int32_t value)
    : Dialog_Pane(area, title) {
    container().add(make_number_row(setting_pane_first_id, value, min, max, label));
    layout_rows();
}

Option_Pane::Option_Pane(const Rectangle& area, const char* title, const char* list_text,
                         int32_t value)
    : Dialog_Pane(area, title) {
    container().add(make_list_row(setting_pane_first_id, value, list_text));
    layout_rows();
}

Tick_Pane::Tick_Pane(const Rectangle& area, const char* title, const char* label, bool checked)
    : Dialog_Pane(area, title) {
    container().add(make_tick_row(setting_pane_first_id, checked, label));
    layout_rows();
}
