// The map view's pictures and how it draws them. The map and the chooser are
// composed into textures only when they change, the map with its grid, seam
// and missing-cell marks on it, so a repaint costs a few draws whatever the
// map holds.
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/texture.h"
#include "model/tile/tile_store.h"
#include "model/map/layer_stack.h"
#include "model/map/map_editor.h"
#include "features/map/map_view.h"
#include "features/map/map_view_style.h"
#include "ui/checkerboard.h"
#include "platform/text_writer.h"
#include "ui/ui_style.h"

using namespace map_view_style;

namespace {
constexpr int checker_cell = 8;
// A seam mark covers this many pixels on each side of its edge.
constexpr int seam_half_width = 1;

const char* const button_labels[Map_View::button_count] = {
    "Paint", "Fill", "Eraser", "Terrain", "Grid",   "Seams", "Preview", "Undo",
    "Redo",  "Image", "Close", "New",    "Delete", "Raise", "Lower",   "Rename"};

// The tile's pixel at (x, y) of a picture of w x h pixels showing it whole.
Color sampled(const Tile& tile, int x, int y, int w, int h) {
    return tile.get_pixel(x * tile.width() / std::max(w, 1), y * tile.height() / std::max(h, 1));
}
}  // namespace

// Only the cells whose visible tiles changed since the last composition are
// drawn again.
void Map_View::compose_map() {
    if (composed_generation == editor.generation() && map_image) return;
    composed_generation = editor.generation();
    const Layer_Stack& layers = visible_layers();
    const int cw = int(store.tile_width()) * factor;
    const int ch = int(store.tile_height()) * factor;
    const int stride = layers.columns() * cw;
    bool any = false;
    Layer_Stack::Cell stack;
    for (int cell = 0; cell < layers.columns() * layers.rows(); ++cell) {
        const uint64_t shown = layers.key(cell);
        if (composed_cells[size_t(cell)] == shown) continue;
        composed_cells[size_t(cell)] = shown;
        any = true;
        const int cx = cell % layers.columns(), cy = cell / layers.columns();
        layers.at(cx, cy, stack);
        const int left = cx * cw;
        const int top = cy * ch;
        for (int y = 0; y < ch; ++y) {
            Color* row = map_pixels.data() + size_t(top + y) * size_t(stride) + size_t(left);
            for (int x = 0; x < cw; ++x) {
                if (stack.count == 0) {
                    row[x] = empty_color;
                    continue;
                }
                const bool light = ((left + x) / checker_cell + (top + y) / checker_cell) % 2 == 0;
                row[x] = on_checkerboard(Layer_Stack::pixel(stack, x / factor, y / factor), light);
            }
        }
    }
    cells_composed = cells_composed || any;
}

namespace {
void fill_in(std::vector<Color>& pixels, int width, int height, const Rectangle& r, Color c) {
    const int x0 = std::max(r.x, 0), x1 = std::min(r.x + r.width, width);
    const int y0 = std::max(r.y, 0), y1 = std::min(r.y + r.height, height);
    for (int y = y0; y < y1; ++y)
        std::fill(pixels.begin() + std::ptrdiff_t(y) * width + x0, pixels.begin() + std::ptrdiff_t(y) * width + x1, c);
}
}  // namespace

// The composed map with the grid's lines, the seams' marks and the missing
// cells' marks (a frame, and the wanted terrains in the corners) drawn on.
void Map_View::compose_picture() {
    compose_map();
    if (map_image && !cells_composed && marked_generation == editor.generation() && marked_grid == grid &&
        marked_seams == seams)
        return;
    cells_composed = false;
    marked_generation = editor.generation();
    marked_grid = grid;
    marked_seams = seams;
    const Tile_Map& map = editor.map();
    const int cw = int(store.tile_width()) * factor;
    const int ch = int(store.tile_height()) * factor;
    const int width = std::max(map.columns() * cw, 1);
    const int height = std::max(map.rows() * ch, 1);
    // Marked afresh beside the picture shown, so that only the rows that
    // changed go to the texture.
    std::swap(marked_pixels, shown_pixels);
    marked_pixels = map_pixels;
    auto fill = [&](const Rectangle& r, Color c) { fill_in(marked_pixels, width, height, r, c); };
    if (grid) {
        for (int x = 1; x < map.columns(); ++x) fill(Rectangle{x * cw, 0, 1, height}, grid_color);
        for (int y = 1; y < map.rows(); ++y) fill(Rectangle{0, y * ch, width, 1}, grid_color);
    }
    if (seams)
        for (const Seam& s : seam_list())
            fill(s.vertical ? Rectangle{(s.x + 1) * cw - seam_half_width, s.y * ch, 2 * seam_half_width, ch}
                            : Rectangle{s.x * cw, (s.y + 1) * ch - seam_half_width, cw, 2 * seam_half_width},
                 seam_color);
    const Terrain_Set& set = editor.terrain();
    const int mark = std::clamp(cw / 4, 3, 8);
    auto outline = [&](const Rectangle& r, Color c) {
        fill(Rectangle{r.x, r.y, r.width, 1}, c);
        fill(Rectangle{r.x, r.y + r.height - 1, r.width, 1}, c);
        fill(Rectangle{r.x, r.y + 1, 1, r.height - 2}, c);
        fill(Rectangle{r.x + r.width - 1, r.y + 1, 1, r.height - 2}, c);
    };
    if (set.terrain_count() > 0)
        for (const int cell : missing_cells()) {
            const int cx = cell % map.columns(), cy = cell / map.columns();
            const Rectangle r{cx * cw, cy * ch, cw, ch};
            outline(r, missing_color);
            const int xs[4] = {r.x + 1, r.x + r.width - 1 - mark, r.x + r.width - 1 - mark, r.x + 1};
            const int ys[4] = {r.y + 1, r.y + 1, r.y + r.height - 1 - mark, r.y + r.height - 1 - mark};
            const Terrain_Set::Corners c = editor.wanted(cx, cy);
            for (int k = 0; k < 4; ++k) {
                const int t = c[size_t(k)];
                if (t < 1 || t > set.terrain_count()) continue;
                const Rectangle square{xs[k], ys[k], mark, mark};
                fill(square, set.terrains[size_t(t - 1)].color);
                outline(square, mark_frame);
            }
        }
    if (!map_image || shown_pixels.size() != marked_pixels.size()) {
        map_image.reset(Texture::from_pixels(g_main_window->renderer(), marked_pixels.data(), width, height));
        map_image->set_opaque(true);
        return;
    }
    auto row_differs = [&](int y) {
        const size_t at = size_t(y) * size_t(width);
        return std::memcmp(marked_pixels.data() + at, shown_pixels.data() + at, size_t(width) * sizeof(Color)) != 0;
    };
    int first = 0, last = height - 1;
    while (first < height && !row_differs(first)) ++first;
    while (last > first && !row_differs(last)) --last;
    map_image->update_rows(marked_pixels.data(), first, last - first + 1);
}

// Each tile fitted into its cell: small tiles magnified by a whole factor,
// large ones shrunk, both keeping their shape.
void Map_View::compose_chooser() {
    std::vector<Color> pixels(size_t(chooser_size) * chooser_size, pane_body_color);
    const int room = chooser_cell - 2;
    const int tw = std::max(int(store.tile_width()), 1);
    const int th = std::max(int(store.tile_height()), 1);
    const int longer = std::max(tw, th);
    const int w = longer <= room ? tw * (room / longer) : std::max(1, tw * room / longer);
    const int h = longer <= room ? th * (room / longer) : std::max(1, th * room / longer);
    int index = 0;
    for (const auto& tile : store.all()) {
        if (index >= chooser_columns * chooser_columns) break;
        const int left = (index % chooser_columns) * chooser_cell + (chooser_cell - w) / 2;
        const int top = (index / chooser_columns) * chooser_cell + (chooser_cell - h) / 2;
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                const bool light = (x / 4 + y / 4) % 2 == 0;
                pixels[size_t(top + y) * chooser_size + size_t(left + x)] =
                    on_checkerboard(sampled(*tile, x, y, w, h), light);
            }
        ++index;
    }
    chooser_image.reset(Texture::from_pixels(g_main_window->renderer(), pixels.data(), chooser_size, chooser_size));
    chooser_image->set_opaque(true);
}

void Map_View::draw() {
    Main_Window& w = *g_main_window;
    pane.draw();
    compose_picture();
    const Rectangle p = picture();
    map_image->draw_at(p.x, p.y);
    const Rectangle c = chooser();
    // Only the rows that hold tiles: the rest is the pane's own colour.
    const int used = std::min(chooser_size, (store.tile_count() + chooser_columns - 1) / chooser_columns * chooser_cell);
    if (used > 0)
        chooser_image->copy(SDL_FRect{0, 0, float(chooser_size), float(used)},
                            SDL_FRect{float(c.x), float(c.y), float(chooser_size), float(used)});
    w.frame(Rectangle{p.x - 1, p.y - 1, p.width + 2, p.height + 2}, pane_frame_color);
    w.frame(Rectangle{c.x - 1, c.y - 1, c.width + 2, c.height + 2}, pane_frame_color);
    auto cell_of = [&](int index) {
        return Rectangle{c.x + (index % chooser_columns) * chooser_cell, c.y + (index / chooser_columns) * chooser_cell,
                         chooser_cell, chooser_cell};
    };
    if (chosen >= 0 && chosen < chooser_columns * chooser_columns) {
        const Rectangle r = cell_of(chosen);
        w.frame(r, chosen_color);
        w.frame(Rectangle{r.x + 1, r.y + 1, r.width - 2, r.height - 2}, chosen_color);
    }
    if (hover_column >= 0) {
        const Rectangle r = cell_area(hover_column, hover_row);
        w.frame(r, hover_color);
    }
    draw_terrain();
    draw_layers();
    draw_buttons();
    draw_status();
}

// Four squares in the corners' terrain colours inside the rectangle, each
// framed dark so it shows on any tile; 0 leaves its corner bare.
static void draw_corners(const Rectangle& r, const Terrain_Set& set, const Terrain_Set::Corners& corners, int size) {
    Main_Window& w = *g_main_window;
    const int xs[4] = {r.x, r.x + r.width - size, r.x + r.width - size, r.x};
    const int ys[4] = {r.y, r.y, r.y + r.height - size, r.y + r.height - size};
    for (int k = 0; k < 4; ++k) {
        const int t = corners[size_t(k)];
        if (t < 1 || t > set.terrain_count()) continue;
        const Rectangle square{xs[k], ys[k], size, size};
        w.fill_opaque(square, set.terrains[size_t(t - 1)].color);
        w.frame(square, mark_frame);
    }
}

// The terrain marks beside the map: the chooser's corners (with the terrain
// tool), the terrains and the missing combinations.
void Map_View::draw_terrain() {
    Main_Window& w = *g_main_window;
    const Terrain_Set& set = editor.terrain();
    if (set.terrain_count() == 0) return;
    const Rectangle c = chooser();
    Text_Writer& t = w.writer(font_regular);
    char text[64];
    std::snprintf(text, sizeof text, "Terrain: %d of %d corner combinations drawn", set.drawn_count(),
                  set.combination_count());
    t.write_at(c.x, c.y + chooser_size + 5, text);
    if (current_tool == tool_terrain)
        for (const auto& [tile, corners] : set.tiles())
            if (tile < chooser_columns * chooser_columns)
                draw_corners(Rectangle{c.x + (tile % chooser_columns) * chooser_cell + 1,
                                       c.y + (tile / chooser_columns) * chooser_cell + 1, chooser_cell - 2,
                                       chooser_cell - 2},
                             set, corners, 7);
    for (int k = 1; k <= set.terrain_count(); ++k) {
        const Rectangle s = terrain_swatch(k);
        w.fill_opaque(s, set.terrains[size_t(k - 1)].color);
        w.frame(s, k == terrain ? chosen_color : mark_frame);
        if (k == terrain) w.frame(Rectangle{s.x + 1, s.y + 1, s.width - 2, s.height - 2}, chosen_color);
    }
    if (set.terrain_count() < Terrain_Set::most_terrains) {
        const Rectangle plus = terrain_swatch(set.terrain_count() + 1);
        w.bevel_fill(plus, button_face_color);
        t.write_at(plus.x + (plus.width - t.measure("+")) / 2, plus.y + (plus.height - t.line_height()) / 2, "+");
    }
    // The combinations still to draw, each as a 2 x 2 diagram of its corners.
    const Rectangle m = missing_area();
    const std::vector<Terrain_Set::Corners> combinations = set.missing();
    constexpr int half = 8;
    int x = m.x;
    for (const Terrain_Set::Corners& k : combinations) {
        if (x + 2 * half > m.x + m.width) break;
        const Rectangle d{x, m.y + (m.height - 2 * half) / 2, 2 * half, 2 * half};
        draw_corners(d, set, k, half);
        x += 2 * half + 4;
    }
}

void Map_View::draw_buttons() {
    Main_Window& w = *g_main_window;
    Text_Writer& t = w.writer(font_regular);
    for (int b = 0; b < button_count; ++b) {
        const Rectangle r = button(b);
        const bool down = (b == button_paint && current_tool == tool_paint) ||
                          (b == button_fill && current_tool == tool_fill) ||
                          (b == button_eraser && current_tool == tool_eraser) ||
                          (b == button_terrain && current_tool == tool_terrain) || (b == button_grid && grid) ||
                          (b == button_seams && seams) || (b == button_preview && editor.in_preview);
        if (down) {
            w.fill_opaque(r, pressed_face);
            w.bevel(r, pressed_face, true);
        } else {
            w.bevel_fill(r, button_face_color);
        }
        const char* label = button_labels[b];
        t.write_at(r.x + (r.width - t.measure(label)) / 2, r.y + (r.height - t.line_height()) / 2, label);
    }
}

void Map_View::draw_status() {
    Main_Window& w = *g_main_window;
    Text_Writer& t = w.writer(font_regular);
    const Rectangle r = button(button_redo);
    int x = r.x + r.width + 16;
    const int y = r.y + (r.height - t.line_height()) / 2;
    // Each item is written while it fits before the "Image" button.
    const int end = button(button_image).x - 8;
    char text[64];
    auto write = [&] {
        if (x + t.measure(text) > end) return;
        t.write_at(x, y, text);
        x += t.measure(text) + 16;
    };
    if (seams) {
        std::snprintf(text, sizeof text, "Seams: %d", int(seam_list().size()));
        write();
    }
    // The keys that flip and turn the painted tile, and how it is turned now.
    static const char* const turns[8] = {"as drawn", "flipped",   "upside down",  "half turn",
                                         "diagonal", "turned",    "turned back",  "other diagonal"};
    std::snprintf(text, sizeof text, "x y r: %s", turns[brush_turn & 7]);
    write();
    if (hover_column >= 0) {
        std::snprintf(text, sizeof text, "Cell %d, %d", hover_column, hover_row);
        write();
    }
}
