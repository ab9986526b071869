#include "features/selection/buffer_pane.h"

#include <algorithm>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/ui_colors.h"
#include "model/tile/tile.h"
#include "model/selection/copy_buffer.h"
#include "platform/text_writer.h"
#include "ui/ui_style.h"

namespace {
constexpr int picture_body = Buffer_Pane::picture_size + Pane::inset_top + Pane::inset_bottom - Pane::header_height;
constexpr int thumbnails_body =
    Buffer_Pane::thumbnail_rows * Buffer_Pane::thumbnail_step + Pane::inset_top + Pane::inset_bottom - Pane::header_height;

// The image as large as it fits in the box, by a whole factor when it is
// smaller (its pixels stay square and sharp), centred. The box is dark grey
// and the image's own area light grey beneath it, so its transparent pixels
// show, and a copy that is all transparent still shows its size instead of
// looking like an empty slot.
void draw_fitted(Tile& image, const Rectangle& box) {
    g_main_window->fill_rect(box, ui_colors[ui_grey_101]);
    Tile_Texture* texture = image.texture();
    if (!texture || image.width() <= 0 || image.height() <= 0) return;
    int w = box.width;
    int h = box.height;
    if (image.width() <= box.width && image.height() <= box.height) {
        const int factor = std::min(box.width / image.width(), box.height / image.height());
        w = image.width() * factor;
        h = image.height() * factor;
    } else if (image.width() * box.height > image.height() * box.width) {
        h = std::max(1, image.height() * box.width / image.width());
    } else {
        w = std::max(1, image.width() * box.height / image.height());
    }
    const Rectangle shown{box.x + (box.width - w) / 2, box.y + (box.height - h) / 2, w, h};
    g_main_window->fill_rect(shown, ui_colors[ui_grey_169]);
    texture->draw_scaled(shown.x, shown.y, w, h);
}
}  // namespace

Buffer_Pane::Buffer_Pane()
    : Pane(Rectangle{0, 0, width, picture_body}, "Copy buffer"),
      previous(Rectangle{0, 0, width, thumbnails_body}, "Previous copies") {}

int Buffer_Pane::place(int x, int y) {
    set_position(x, y);
    const int next = y + area.height + 4;
    previous.set_position(x, next);
    return next + previous.outer_area().height + 4;
}

Copy_Buffer* Buffer_Pane::buffer() const { return g_copy_buffer; }

Rectangle Buffer_Pane::thumbnail(int index) const {
    const Rectangle c = previous.client_area();
    const int i = index - 1;
    return Rectangle{c.x + (i % columns) * thumbnail_step, c.y + (i / columns) * thumbnail_step, thumbnail_size,
                     thumbnail_size};
}

void Buffer_Pane::draw() {
    Pane::draw();
    previous.draw();
    Copy_Buffer* b = buffer();
    const Rectangle box{client.x + (client.width - picture_size) / 2, client.y, picture_size, picture_size};
    if (!b || b->empty()) {
        g_main_window->writer(font_pane).write_at(client.x + 2, client.y, "Nothing copied yet.");
        return;
    }
    draw_fitted(const_cast<Tile&>(*b->current()), box);
    for (int i = 1; i < b->count() && i <= columns * thumbnail_rows; ++i) {
        const Rectangle r = thumbnail(i);
        draw_fitted(const_cast<Tile&>(*b->at(i)), r);
        g_main_window->frame(r, ui_colors[ui_dark_grey]);
    }
}

bool Buffer_Pane::click(int x, int y) {
    Copy_Buffer* b = buffer();
    if (!b) return false;
    for (int i = 1; i < b->count() && i <= columns * thumbnail_rows; ++i)
        if (thumbnail(i).contains(x, y)) return b->make_current(i);
    return false;
}
