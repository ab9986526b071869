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
    copy_of(view.tile(), pixels);
    copy_of(view.selection(), mask);
    selection = view.has_selection();
    floating = view.floating_image();
    floating_x = view.floating_position().x;
    floating_y = view.floating_position().y;
}

bool Stroke_Change::changed(Canvas_View& view) const {
    return !same(view.tile(), pixels) || !same(view.selection(), mask) || selection != view.has_selection() ||
           floating != view.floating_image() || floating_x != view.floating_position().x ||
           floating_y != view.floating_position().y;
}
