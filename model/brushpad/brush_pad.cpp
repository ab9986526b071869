#include "model/brushpad/brush_pad.h"

#include <algorithm>

void Brush_Pad::select(int index) {
    const int next = index >= 0 && index < count() ? index : -1;
    if (next == selected_index) return;
    selected_index = next;
    changed = true;
}

bool Brush_Pad::usable(int width, int height, int hot_x, int hot_y) {
    return width >= 1 && height >= 1 && width <= max_side && height <= max_side && hot_x >= 0 && hot_y >= 0 &&
           hot_x < width && hot_y < height;
}

Brush_Pad::Add_Result Brush_Pad::add(const Tile& image, int hot_x, int hot_y) {
    if (!usable(image.width(), image.height(), hot_x, hot_y)) return Add_Result::unusable;
    if (find(image, hot_x, hot_y) >= 0) return Add_Result::already_there;
    if (full()) return Add_Result::full;
    const Color* source = image.pixels();
    auto copy = std::make_unique<Tile>(image.width(), image.height(), [&](Color* pixels) {
        std::copy(source, source + image.pixel_count(), pixels);
    });
    brushes.push_back(Pad_Brush{std::move(copy), hot_x, hot_y});
    selected_index = count() - 1;
    changed = true;
    return Add_Result::added;
}

int Brush_Pad::find(const Tile& image, int hot_x, int hot_y) const {
    for (int i = 0; i < count(); ++i) {
        const Pad_Brush& b = brush(i);
        if (!b.image->same_size(image) || b.hot_x != hot_x || b.hot_y != hot_y) continue;
        if (std::equal(image.pixels(), image.pixels() + image.pixel_count(), b.image->pixels())) return i;
    }
    return -1;
}

bool Brush_Pad::remove_selected() {
    if (selected_index < 0) return false;
    brushes.erase(brushes.begin() + selected_index);
    if (selected_index >= count()) selected_index = count() - 1;
    changed = true;
    return true;
}

void Brush_Pad::clear() {
    brushes.clear();
    selected_index = -1;
}
