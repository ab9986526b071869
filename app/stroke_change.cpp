#include "app/stroke_change.h"

#include <algorithm>

#include "app/canvas_view.h"

namespace {
void copy_of(const Tile* tile, std::vector<Color>& out) {
    if (!tile) {
        out.clear();
        return;
    }
    out.assign(tile->pixels(), tile->pixels() + tile->pixel_count());
}

bool same(const Tile* tile, const std::vector<Color>& before) {
    if (!tile) return before.empty();
    return size_t(tile->pixel_count()) == before.size() &&
           std::equal(before.begin(), before.end(), tile->pixels());
}
}  // namespace

void Stroke_Change::take(Canvas_View& view) {
    const Tile_Selection& marks = view.tile_selection();
    copy_of(view.tile(), pixels);
    copy_of(marks.mask(), mask);
    selection = marks.active();
    floating = marks.floating_image();
    floating_x = marks.float_x();
    floating_y = marks.float_y();
}

bool Stroke_Change::changed(Canvas_View& view) const {
    const Tile_Selection& marks = view.tile_selection();
    return !same(view.tile(), pixels) || !same(marks.mask(), mask) || selection != marks.active() ||
           floating != marks.floating_image() || floating_x != marks.float_x() || floating_y != marks.float_y();
}
