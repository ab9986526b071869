#include "ui/doubletile_dialog_item.h"

#include <algorithm>

#include "model/tile/tile.h"

Doubletile_Dialog_Item::Doubletile_Dialog_Item(uint32_t id, uint32_t host, Tile& left, Tile& right)
    : Dialog_Item(id, host), left(&left), right(&right) {
    update();
}

void Doubletile_Dialog_Item::update() {
    area.width = left->width() + gap + right->width();
    area.height = std::max(left->height(), right->height());
}

void Doubletile_Dialog_Item::draw() {
    left->draw(area.x, area.y);
    right->draw(area.x + left->width() + gap, area.y);
}
