#include "ui/image_dialog_item.h"

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/texture.h"
#include "platform/image_pool.h"

Image_Dialog_Item::Image_Dialog_Item(int sprite) : Dialog_Item(no_id, no_id), sprite(sprite) {
    area.width = g_main_window->pool().sprite_width(sprite);
    area.height = g_main_window->pool().sprite_height(sprite);
}

Image_Dialog_Item::Image_Dialog_Item(Texture& texture)
    : Dialog_Item(no_id, no_id), texture(&texture) {
    area.width = texture.width();
    area.height = texture.height();
}

void Image_Dialog_Item::draw() {
    if (texture)
        texture->draw_at(area.x, area.y);
    else
        g_main_window->sprite(sprite, area.x, area.y);
}
