#include "ui/preview_pane.h"

#include <algorithm>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/texture.h"
#include "platform/ui_colors.h"
#include "model/map/layer_stack.h"
#include "model/map/map_editor.h"
#include "model/tile/tile.h"
#include "model/tile/tile_store.h"

namespace {
constexpr int widest_repeat = 191;

Color over(Color below, Color above) {
    const int a = above.alpha;
    auto mix = [a](int d, int s) { return uint8_t((s * a + d * (255 - a)) / 255); };
    return Color(mix(below.red, above.red), mix(below.green, above.green), mix(below.blue, above.blue), 255);
}
}  // namespace

Preview_Pane::Preview_Pane(int x, int y) : Pane(Rectangle{x, y, body_width, body_height}, "Preview") {
    update_layout();
}

Preview_Pane::~Preview_Pane() = default;

int Preview_Pane::repeat_count(int wanted, int tile_size) {
    if (tile_size <= 0) return 1;
    const int count = std::max(wanted, 1);
    if (int64_t(count) * tile_size > widest_repeat) return std::max(1, (widest_repeat + 1) / tile_size);
    return count;
}

void Preview_Pane::set_repeats(int new_across, int new_down) {
    across = std::max(new_across, 1);
    down = std::max(new_down, 1);
}

void Preview_Pane::set_checker_size(int width, int height) {
    checker_w = std::max(width, 1);
    checker_h = std::max(height, 1);
}

bool Preview_Pane::same_as_shown(const Tile& tile) const {
    return &tile == shown_tile && tile.width() == shown_tile_w && tile.height() == shown_tile_h &&
           repeat_count(across, tile.width()) == shown_across && repeat_count(down, tile.height()) == shown_down &&
           checker_w == shown_checker_w &&
           checker_h == shown_checker_h &&
           std::equal(shown_pixels.begin(), shown_pixels.end(), tile.pixels(), tile.pixels() + tile.pixel_count());
}

// A texture is made only when the picture's size changed.
void Preview_Pane::upload(int width, int height) {
    if (!texture || texture->width() != width || texture->height() != height) {
        texture.reset(Texture::from_pixels(g_main_window->renderer(), picture.data(), width, height));
        texture->set_opaque(true);
    } else {
        texture->update(picture.data());
    }
}

// The checkerboard runs on across the repeats, as it would under a map.
void Preview_Pane::compose(const Tile& tile) {
    const int tw = tile.width();
    const int th = tile.height();
    const int count_x = repeat_count(across, tw);
    const int count_y = repeat_count(down, th);
    const int width = std::min(count_x * tw, body_width);
    const int height = std::min(count_y * th, body_height);
    picture.resize(size_t(width) * size_t(height));
    // Row by row from the tile's own row, the column wrapping by a counter:
    // this runs at every repaint while the tile changes.
    for (int y = 0; y < height; ++y) {
        const Color* source = tile.pixels() + (y % th) * tw;
        Color* out = picture.data() + size_t(y) * size_t(width);
        const int checker_row = y / checker_h;
        for (int x = 0, tx = 0; x < width; ++x) {
            const bool light = ((x / checker_w) + checker_row) % 2 == 0;
            out[x] = over(ui_colors[light ? ui_grey_169 : ui_grey_101], source[tx]);
            if (++tx == tw) tx = 0;
        }
    }
    upload(width, height);
    shown_tile = &tile;
    shown_tile_w = tw;
    shown_tile_h = th;
    shown_pixels.assign(tile.pixels(), tile.pixels() + tile.pixel_count());
    shown_across = count_x;
    shown_down = count_y;
    shown_checker_w = checker_w;
    shown_checker_h = checker_h;
    shown_area = Rectangle{area.x + (body_width - width) / 2, area.y + header_height + (body_height - height) / 2,
                           width, height};
}

void Preview_Pane::draw_tile(const Tile* tile) {
    Pane::draw();
    if (!tile || tile->width() <= 0 || tile->height() <= 0) return;
    if (!same_as_shown(*tile)) compose(*tile);
    texture->draw_at(shown_area.x, shown_area.y);
}

void Preview_Pane::draw_map(const Map_Editor& map, const Tile_Store& store, const Tile* live, int live_index) {
    const uint64_t generation = map.generation();
    const int cells = map.map().cell_count();
    auto holds = [&](int cell) {
        for (int i = 0; i < map.layer_count(); ++i)
            if (map.layer(i).visible && map.layer(i).cells.at(cell) == live_index) return true;
        return false;
    };
    // Looked for again only when the cells or the tile changed: a repaint
    // runs at every event.
    const bool still_there = searched_cell >= 0 && searched_cell < cells && holds(searched_cell);
    if (searched_generation != generation || searched_index != live_index || searched_map != &map ||
        (searched_cell >= 0 && !still_there)) {
        searched_cell = -1;
        for (int c = 0; c < cells && searched_cell < 0; ++c)
            if (holds(c)) searched_cell = c;
        searched_generation = generation;
        searched_index = live_index;
        searched_map = &map;
    }
    const int first = searched_cell;
    if (!live || first < 0) {
        shown_cell = -1;
        draw_tile(live);
        return;
    }
    Pane::draw();
    const int tw = live->width();
    const int th = live->height();
    const bool same = shown_cell == first && shown_generation == generation && shown_index == live_index &&
                      shown_tile == live && shown_tile_w == tw && shown_tile_h == th &&
                      std::equal(shown_pixels.begin(), shown_pixels.end(), live->pixels(),
                                 live->pixels() + live->pixel_count());
    if (!same) {
        layers.show(map, store, live, live_index);
        // The first cell holding the tile in the middle of the body.
        const int ox = (first % layers.columns()) * tw + tw / 2 - body_width / 2;
        const int oy = (first / layers.columns()) * th + th / 2 - body_height / 2;
        picture.assign(size_t(body_width) * size_t(body_height), ui_colors[ui_dark_grey]);
        // Cell by cell over the body, each cell's rows read straight from its
        // tile unless it is turned: this runs at every event of a stroke.
        const int first_cx = std::max(0, ox / tw), first_cy = std::max(0, oy / th);
        Layer_Stack::Cell stack;
        for (int cy = first_cy; cy < layers.rows() && cy * th < oy + body_height; ++cy)
            for (int cx = first_cx; cx < layers.columns() && cx * tw < ox + body_width; ++cx) {
                layers.at(cx, cy, stack);
                if (stack.count == 0) continue;
                const Tile* tile = stack.tiles[0];
                const bool plain = stack.count == 1 && stack.turns[0] == turn::none;
                const int x0 = std::max(cx * tw - ox, 0), x1 = std::min((cx + 1) * tw - ox, body_width);
                const int y0 = std::max(cy * th - oy, 0), y1 = std::min((cy + 1) * th - oy, body_height);
                for (int y = y0; y < y1; ++y) {
                    const int ty = y + oy - cy * th;
                    Color* out = picture.data() + size_t(y) * body_width;
                    const int checker_row = y / checker_h;
                    for (int x = x0; x < x1; ++x) {
                        const int tx = x + ox - cx * tw;
                        const Color c = plain ? tile->pixels()[ty * tw + tx] : Layer_Stack::pixel(stack, tx, ty);
                        const bool light = ((x / checker_w) + checker_row) % 2 == 0;
                        out[x] = over(ui_colors[light ? ui_grey_169 : ui_grey_101], c);
                    }
                }
            }
        upload(body_width, body_height);
        shown_tile = live;
        shown_tile_w = tw;
        shown_tile_h = th;
        shown_pixels.assign(live->pixels(), live->pixels() + live->pixel_count());
        // The repeated picture must be composed again when it comes back.
        shown_across = 0;
        shown_cell = first;
        shown_generation = generation;
        shown_index = live_index;
        shown_area = Rectangle{area.x, area.y + header_height, body_width, body_height};
    }
    texture->draw_at(shown_area.x, shown_area.y);
}
