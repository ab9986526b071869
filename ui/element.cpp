#include "ui/element.h"

void Element::move_to(int x, int y) {
    area.x = x;
    area.y = y;
    update_layout();
    draw();
}

void Element::set_position(int x, int y) {
    area.x = x;
    area.y = y;
    update_layout();
}

void Element::set_size(int w, int h) {
    area.width = w;
    area.height = h;
    update_layout();
}
