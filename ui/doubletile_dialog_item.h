#pragma once

#include "ui/dialog_item.h"

class Tile;

// Two tiles side by side at one screen pixel per tile pixel, for comparing a
// tile before and after a change. The tiles stay the caller's.
class Doubletile_Dialog_Item : public Dialog_Item {
public:
    static constexpr int gap = 7;

    Doubletile_Dialog_Item(uint32_t id, uint32_t host, Tile& left, Tile& right);

    void update() override;
    void draw() override;

private:
    Tile* left;
    Tile* right;
};
