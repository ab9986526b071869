#include "features/viewers/undo_meter.h"

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/ui_colors.h"
#include "model/tileset/undo_history.h"

namespace {
// The frame around each bar and the bars of free slots: two greys that stand
// apart from the pane's light body.
constexpr Color frame_color = ui_colors[ui_grey_128];
constexpr Color empty_color = ui_colors[ui_grey_100];
}  // namespace

Undo_Meter::Undo_Meter(int x, int y) : Pane(Rectangle{x, y, body_width, body_height}, "Undo meter") {
    update_layout();
}

Rectangle Undo_Meter::bar(int i) const {
    return Rectangle{client.x + bar_step * i, client.y, bar_width, client.height};
}

void Undo_Meter::draw() {
    Pane::draw();
    Main_Window& w = *g_main_window;
    const int capacity = shown ? shown->capacity() : Undo_History::default_capacity;
    const int records = shown ? shown->count() : 0;
    for (int i = 0; i < capacity; ++i) {
        const Rectangle r = bar(i);
        if (i >= records) {
            w.fill_rect(r, empty_color);
            continue;
        }
        w.fill_rect(r, i == shown->position() ? current_bar : record_bar);
        w.bevel(Rectangle{r.x - 1, r.y - 1, r.width + 2, r.height + 2}, frame_color, true);
    }
}
