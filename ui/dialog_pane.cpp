#include "ui/dialog_pane.h"

void Dialog_Pane::draw() {
    Pane::draw();
    rows.draw_all();
}

void Dialog_Pane::move_to(int x, int y) {
    set_position(x, y);
    layout_rows();
    draw();
}

void Dialog_Pane::layout_rows() { rows.layout(client.x, client.y - 2, true); }

bool Dialog_Pane::press(int x, int y) {
    const Dialog_Event event = rows.hit(x, y);
    if (event.target != -1)
        if (Dialog_Item* item = rows.find(uint32_t(event.target))) item->receive(event.type);
    if (!item_type_redraws(event.type)) return false;
    layout_rows();
    return true;
}
