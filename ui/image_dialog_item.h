#pragma once

#include "ui/dialog_item.h"

class Texture;

// Shows an image at its own size: a sprite of the sheet or a texture that
// stays the caller's.
class Image_Dialog_Item : public Dialog_Item {
public:
    explicit Image_Dialog_Item(int sprite);
    explicit Image_Dialog_Item(Texture& texture);

    void draw() override;

private:
    int sprite = -1;
    Texture* texture = nullptr;
};
