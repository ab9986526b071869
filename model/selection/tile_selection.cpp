#include "model/selection/tile_selection.h"

#include <algorithm>

#include "model/selection/floating.h"
#include "model/tile/tile.h"

Tile_Selection::Tile_Selection() = default;

Tile_Selection::~Tile_Selection() = default;

void Tile_Selection::follow_tile(const Tile* tile) {
    const bool new_size = !tile || tile->width() != tile_w || tile->height() != tile_h;
    tile_w = tile ? tile->width() : 0;
    tile_h = tile ? tile->height() : 0;
    // An image carried to a smaller tile keeps only what fits there.
    fit_float(at_x, at_y);
    if (!new_size || !tile) return;
    selected = std::make_unique<Tile>(tile_w, tile_h);
    drawn = std::make_unique<Tile>(tile_w, tile_h);
    is_active = false;
    is_drawing = false;
    // A floating image carried to a tile of another size keeps floating.
    if (pending) move_float(at_x, at_y);
}

void Tile_Selection::clear() {
    if (selected) selected->fill(Color(0, 0, 0));
    is_active = false;
}

void Tile_Selection::restore_mask(const Tile* from) {
    if (!from || !selected || !from->same_size(*selected)) {
        // An inactive mask selects nothing already: no need to wipe it again.
        if (is_active) clear();
        return;
    }
    from->copy_into(*selected);
    // A record of the selection tools may hold an empty mask: nothing selected.
    bool any = false;
    for (int i = 0; i < selected->pixel_count() && !any; ++i) any = selected->is_white(i % tile_w, i / tile_w);
    is_active = any;
}

void Tile_Selection::commit(Tile* onto) {
    if (!pending || !floating || !onto) return;
    floating::stamp_wrapped(*onto, *floating, at_x, at_y);
    onto->update_texture();
    pending = false;
}

void Tile_Selection::paste(const Tile& image, int x, int y, Tile* onto) {
    commit(onto);
    floating = std::make_unique<Tile>(image.width(), image.height());
    image.copy_into(*floating);
    pending = true;
    move_float(x, y);
    fit_float(x, y);
}

// An image larger than the tile would wrap onto itself and scramble: only
// the part that lies over the tile is kept.
void Tile_Selection::fit_float(int x, int y) {
    if (!pending || !floating || tile_w <= 0 || tile_h <= 0) return;
    const int w = floating->width();
    const int h = floating->height();
    if (w <= tile_w && h <= tile_h) return;
    const int cut_w = std::min(w, tile_w);
    const int cut_h = std::min(h, tile_h);
    const int from_x = std::clamp(-x, 0, w - cut_w);
    const int from_y = std::clamp(-y, 0, h - cut_h);
    auto part = std::make_unique<Tile>(cut_w, cut_h);
    for (int py = 0; py < cut_h; ++py)
        for (int px = 0; px < cut_w; ++px) part->set_pixel(px, py, floating->get_pixel(from_x + px, from_y + py));
    part->update_texture();
    floating = std::move(part);
    move_float(x + from_x, y + from_y);
}

void Tile_Selection::replace_float(const Tile* image, int x, int y) {
    pending = false;
    if (image) paste(*image, x, y, nullptr);
}

void Tile_Selection::move_float(int x, int y) {
    at_x = tile_w > 0 ? floating::wrap(x, tile_w) : x;
    at_y = tile_h > 0 ? floating::wrap(y, tile_h) : y;
}

bool Tile_Selection::on_float(int x, int y) const {
    if (!pending || !floating || x < 0 || y < 0 || x >= tile_w || y >= tile_h) return false;
    // The image may be larger than the tile: any of its pixels over the cell counts.
    for (int iy = floating::wrap(y - at_y, tile_h); iy < floating->height(); iy += tile_h)
        for (int ix = floating::wrap(x - at_x, tile_w); ix < floating->width(); ix += tile_w)
            if (floating->alpha(ix, iy) != 0) return true;
    return false;
}

std::unique_ptr<Tile> Tile_Selection::put_down_copy(const Tile& tile) const {
    if (!pending || !floating) return nullptr;
    auto copy = std::make_unique<Tile>(tile.width(), tile.height());
    tile.copy_into(*copy);
    floating::stamp_wrapped(*copy, *floating, at_x, at_y);
    return copy;
}
