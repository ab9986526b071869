#include "app/canvas_picture.h"

#include <algorithm>
#include <cstring>

#include "model/selection/floating.h"
#include "model/selection/tile_selection.h"
#include "model/tile/tile.h"
#include "platform/draw_sink.h"
#include "platform/main_window.h"
#include "platform/ui_colors.h"

namespace {
bool is_selected(const Tile& m, int x, int y) {
    if (m.is_outside(x, y)) return false;
    const Color c = m.get_pixel(x, y);
    return c.blue == 255 && c.green == 255 && c.red == 255;
}
}  // namespace

namespace {
inline uint32_t argb(Color c) { return 0xFF000000u | uint32_t(c.red) << 16 | uint32_t(c.green) << 8 | c.blue; }

// The renderer's own blend: source over destination by the source's alpha.
inline Color over(Color below, Color above) {
    const int a = above.alpha;
    auto mix = [a](int d, int s) { return uint8_t((s * a + d * (255 - a)) / 255); };
    return Color(mix(below.red, above.red), mix(below.green, above.green), mix(below.blue, above.blue), 255);
}
}  // namespace

Canvas_Picture::~Canvas_Picture() {
    if (picture_texture) SDL_DestroyTexture(picture_texture);
    if (float_texture) SDL_DestroyTexture(float_texture);
}

// True when something other than the tile's and the mask's rows changed since
// the last composition.
bool Canvas_Picture::compose_everything() {
    const Compose_Key key{now.tile->width(), now.tile->height(), now.checker_w,
                          now.checker_h,      now.grid_contrast, now.selection->active()};
    const size_t cells = size_t(now.tile->pixel_count());
    bool all = key != composed_key || composed_pixels.size() != cells;
    if (now.selection->active() && !now.selection->mask()->same_size(*now.tile)) all = true;
    composed_key = key;
    if (all) {
        composed_pixels.assign(cells, Color(0, 0, 0, 0));
        composed_mask.assign(cells, Color(0, 0, 0, 0));
    }
    return all;
}

// Every cell is composed in memory and the visible part of the tile goes to
// the screen as one texture: one upload and one copy per repaint, however many
// cells there are. The picture is the one the per-cell steps describe: the
// checkerboard, the pixel blended over it, the grid in a contrast of the
// pixel's colour, then the veil outside the selection.
// Every cell is composed in memory and the visible part of the tile goes to
// the screen as one texture: one upload and one copy per repaint, however many
// cells there are. The picture is the one the per-cell steps describe: the
// checkerboard, the pixel blended over it, the grid in a contrast of the
// pixel's colour, then the veil outside the selection.
void Canvas_Picture::compose_cells() {
    const int w = now.tile->width();
    const int h = now.tile->height();
    const bool all = compose_everything();
    const bool masked = now.selection->active() && now.selection->mask()->same_size(*now.tile);
    for (int ty = 0; ty < h; ++ty) {
        const size_t row = size_t(ty * w);
        const Color* pixels = now.tile->pixels() + row;
        const Color* mask_pixels = masked ? now.selection->mask()->pixels() + row : nullptr;
        if (!all && std::equal(pixels, pixels + w, composed_pixels.begin() + std::ptrdiff_t(row)) &&
            (!masked || std::equal(mask_pixels, mask_pixels + w, composed_mask.begin() + std::ptrdiff_t(row))))
            continue;
        std::copy(pixels, pixels + w, composed_pixels.begin() + std::ptrdiff_t(row));
        if (masked) std::copy(mask_pixels, mask_pixels + w, composed_mask.begin() + std::ptrdiff_t(row));
        for (int tx = 0; tx < w; ++tx) {
            const bool light = ((tx / now.checker_w) + (ty / now.checker_h)) % 2 == 0;
            const Color pixel = now.tile->get_pixel(tx, ty);
            Color inside = over(ui_colors[light ? ui_grey_169 : ui_grey_101], pixel);
            Color grid = pixel;
            grid.alpha = 255;
            if (grid.red < 40 && grid.green < 40 && grid.blue < 40)
                lighten(grid, now.grid_contrast);
            else
                darken(grid, now.grid_contrast);
            if (now.selection->active() && !is_selected(*now.selection->mask(), tx, ty)) {
                inside = over(inside, ui_colors[ui_white_veil]);
                grid = over(grid, ui_colors[ui_white_veil]);
            }
            cell_inside[size_t(ty * w + tx)] = argb(inside);
            cell_grid[size_t(ty * w + tx)] = argb(grid);
        }
    }
}

void Canvas_Picture::draw_cells(Main_Window& window, const Frame& frame, int left, int top, int right, int bottom) {
    now = frame;
    const int s = now.cell_size;
    const size_t cells = size_t(now.tile->width() * now.tile->height());
    if (cell_inside.size() < cells) {  // grows with the largest tile seen, not per repaint
        cell_inside.resize(cells);
        cell_grid.resize(cells);
    }
    if (picture.empty()) picture.resize(size_t(now.view.width) * size_t(now.view.height));
    if (!picture_texture) {
        picture_texture = SDL_CreateTexture(window.renderer(), SDL_PIXELFORMAT_ARGB8888, SDL_TEXTUREACCESS_STREAMING,
                                            now.view.width, now.view.height);
        SDL_SetTextureBlendMode(picture_texture, SDL_BLENDMODE_NONE);
        SDL_SetTextureScaleMode(picture_texture, SDL_SCALEMODE_NEAREST);
    }
    compose_cells();
    // The picture goes to the screen as one band per tile row, each with its
    // own generation: a stroke uploads and draws again only the rows it changed.
    const Picture_Key key{Rectangle{left, top, right - left, bottom - top}, now.origin_x, now.origin_y, s,
                          now.tile->width()};
    const bool all = key != shown_key || shown_inside.size() != cells;
    if (all) {
        shown_key = key;
        shown_inside.assign(cells, 0);
        shown_grid.assign(cells, 0);
        band_generation.assign(size_t(now.tile->height()), 0);
    }
    const int w = now.tile->width();
    const int first_row = (top - now.origin_y) / s;
    const int last_row = (bottom - 1 - now.origin_y) / s;
    // Changed bands are composed first and sent to the texture in runs, one
    // upload per run of neighbouring bands: a drag that changes every row
    // costs one upload, not one per row.
    int run_first = -1;
    uint64_t run_generation = 0;
    auto send_run = [&](int end_row) {
        if (run_first < 0) return;
        const int y0 = std::max(top, now.origin_y + run_first * s);
        const int y1 = std::min(bottom, now.origin_y + end_row * s);
        const SDL_Rect area{left - now.view.x, y0 - now.view.y, right - left, y1 - y0};
        SDL_UpdateTexture(picture_texture, &area, &picture[size_t(area.y) * size_t(now.view.width) + size_t(area.x)],
                          now.view.width * 4);
        run_first = -1;
    };
    for (int ty = first_row; ty <= last_row; ++ty) {
        const auto from = cell_inside.begin() + std::ptrdiff_t(ty * w);
        const auto grid_from = cell_grid.begin() + std::ptrdiff_t(ty * w);
        const auto shown_from = shown_inside.begin() + std::ptrdiff_t(ty * w);
        const auto shown_grid_from = shown_grid.begin() + std::ptrdiff_t(ty * w);
        if (all || !std::equal(from, from + w, shown_from) || !std::equal(grid_from, grid_from + w, shown_grid_from)) {
            std::copy(from, from + w, shown_from);
            std::copy(grid_from, grid_from + w, shown_grid_from);
            compose_band(key, ty);
            if (run_first < 0) {
                run_first = ty;
                run_generation = Draw_Sink::fresh_generation();
            }
            band_generation[size_t(ty)] = run_generation;
        } else {
            send_run(ty);
        }
    }
    send_run(last_row + 1);
    for (int ty = first_row; ty <= last_row; ++ty) {
        const int y0 = std::max(top, now.origin_y + ty * s);
        const int y1 = std::min(bottom, now.origin_y + (ty + 1) * s);
        const SDL_FRect picture_part{float(left - now.view.x), float(y0 - now.view.y), float(right - left),
                                     float(y1 - y0)};
        const SDL_FRect screen_part{float(left), float(y0), float(right - left), float(y1 - y0)};
        window.sink().copy(picture_texture, band_generation[size_t(ty)], false, picture_part, screen_part);
    }

}

// Expands one tile row of composed cells to screen pixels inside the key's
// area. Each screen row is composed once per run of identical
// rows: s - 1 rows of cell insides and one row of grid, and copies do the rest.
void Canvas_Picture::compose_band(const Picture_Key& key, int ty) {
    const int s = key.cell_size;
    const int left = key.area.x;
    const int right = left + key.area.width;
    const int top = std::max(key.area.y, key.origin_y + ty * s);
    const int bottom = std::min(key.area.y + key.area.height, key.origin_y + (ty + 1) * s);
    const int w = key.tile_width;
    const size_t stride = size_t(now.view.width);
    const size_t span = size_t(right - left);
    const uint32_t* inside = &cell_inside[size_t(ty * w)];
    const uint32_t* grid = &cell_grid[size_t(ty * w)];
    for (int y = top; y < bottom;) {
        const int iy = (y - key.origin_y) % s;
        const bool grid_row = iy == s - 1;
        const int run = std::min(bottom - y, grid_row ? 1 : s - 1 - iy);
        uint32_t* row = &picture[size_t(y - now.view.y) * stride + size_t(left - now.view.x)];
        // Cell by cell: s - 1 pixels of the inside and one of grid (a grid
        // row is grid throughout), cut to the area at both ends.
        uint32_t* out = row;
        int tx = (left - key.origin_x) / s;
        int ix = (left - key.origin_x) % s;
        for (int x = left; x < right; ++tx, ix = 0) {
            const int inside_n = std::min(right - x, std::max(0, s - 1 - ix));
            if (grid_row) {
                const int n = std::min(right - x, s - ix);
                out = std::fill_n(out, n, grid[tx]);
                x += n;
                continue;
            }
            out = std::fill_n(out, inside_n, inside[tx]);
            x += inside_n;
            if (x < right) {
                *out++ = grid[tx];
                ++x;
            }
        }
        for (int r = 1; r < run; ++r) std::memcpy(row + size_t(r) * stride, row, span * sizeof(uint32_t));
        y += run;
    }
}

// The floating image is a layer of its own over the composed cells, drawn
// magnified and blended by its alpha, once for every place where it wraps
// onto the tile: moving it redraws the layer, and no cell is composed or
// uploaded again. Where it wraps onto itself the later pixels show, as they
// would be stamped.
void Canvas_Picture::draw_float(Main_Window& window, const Frame& frame) {
    now = frame;
    const Tile& image = *now.selection->floating_image();
    const int s = now.cell_size;
    const int fw = image.width();
    const int fh = image.height();
    if (fw <= 0 || fh <= 0) return;
    // Magnified in memory once per change of the image or the zoom, so a move
    // is one unscaled blended copy (the renderer's scaled blending is slow).
    const int tw = fw * s;
    const int th = fh * s;
    const size_t n = size_t(image.pixel_count());
    if (!float_texture || float_texture_w != tw || float_texture_h != th) {
        if (float_texture) SDL_DestroyTexture(float_texture);
        float_texture = SDL_CreateTexture(window.renderer(), SDL_PIXELFORMAT_ARGB8888, SDL_TEXTUREACCESS_STREAMING,
                                          tw, th);
        SDL_SetTextureBlendMode(float_texture, SDL_BLENDMODE_BLEND);
        float_texture_w = tw;
        float_texture_h = th;
        uploaded_float.clear();
    }
    if (uploaded_float.size() != n || !std::equal(image.pixels(), image.pixels() + n, uploaded_float.begin())) {
        uploaded_float.assign(image.pixels(), image.pixels() + n);
        float_picture.resize(size_t(tw) * size_t(th));
        for (int y = 0; y < th; ++y) {
            uint32_t* row = &float_picture[size_t(y) * size_t(tw)];
            if (y % s != 0) {
                std::copy(row - tw, row, row);
                continue;
            }
            // Colours lie in memory as blue, green, red, alpha: the texture's own layout.
            const Color* source = image.pixels() + size_t(y / s) * size_t(fw);
            for (int x = 0; x < fw; ++x) std::fill_n(row + size_t(x) * size_t(s), s, source[x].word());
        }
        SDL_UpdateTexture(float_texture, nullptr, float_picture.data(), tw * 4);
        float_generation = Draw_Sink::fresh_generation();
    }
    const int w = now.tile->width();
    const int h = now.tile->height();
    window.clip(Rectangle{now.origin_x, now.origin_y, now.extent_w, now.extent_h}.intersection(now.view));
    const SDL_FRect source{0, 0, float(tw), float(th)};
    const int fx = floating::wrap(now.selection->float_x(), w);
    const int fy = floating::wrap(now.selection->float_y(), h);
    for (int j = 0; fy - j * h + fh > 0; ++j)
        for (int i = 0; fx - i * w + fw > 0; ++i) {
            const int x = fx - i * w;
            const int y = fy - j * h;
            const SDL_FRect place{float(now.origin_x + x * s), float(now.origin_y + y * s), float(fw * s),
                                  float(fh * s)};
            window.sink().copy(float_texture, float_generation, true, source, place);
        }
    window.end_clip();
}

