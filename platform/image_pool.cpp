#include "platform/image_pool.h"

#include <algorithm>

#include "platform/texture.h"
#include "platform/ui_colors.h"

namespace {
// An ARGB8888 surface with no translucent pixel can be copied without blending.
bool fully_opaque(const SDL_Surface* surface) {
    for (int y = 0; y < surface->h; ++y) {
        const Uint32* row = reinterpret_cast<const Uint32*>(static_cast<const Uint8*>(surface->pixels) + y * surface->pitch);
        for (int x = 0; x < surface->w; ++x)
            if ((row[x] >> 24) != 0xff) return false;
    }
    return true;
}
}  // namespace

Image_Pool::Image_Pool() : Image_Pool("pool.bmp") {}

Image_Pool::Image_Pool(const char* file_name)
    : sheet(std::make_unique<Image>(file_name, sheet_size, sheet_size, true, 255, 0, 255)) {
    for (int f = 0; f < font_count; ++f) scan_font(f);
    sprites.reserve(sprite_count);
    for (const Sprite_Record& s : sprite_table)
        sprites.push_back(SDL_FRect{float(s.x), float(s.y), float(s.w), float(s.h)});
}

// Marker pixels on the line above each glyph row: green opens a glyph and
// yellow the next, alternating across all rows of a font; blue ends a row and
// flips the state too. The marker column is the first column of the next glyph.
void Image_Pool::scan_font(int font) {
    const Font_Record& f = font_table[font];
    int y = f.first_marker_line;
    bool in_glyph = false;
    for (int row = 0; row < f.glyph_rows; ++row) {
        int start = 0;
        int run = 0;
        bool row_end = false;
        int x = 0;
        while (x < sheet_size) {
            const Image::Rgba p = sheet->get_pixel(x, y);
            bool marker = false;
            if (!in_glyph && p.r == 0 && p.g > 254 && p.b == 0)
                marker = true;
            else if (in_glyph && p.r > 254 && p.g > 254 && p.b == 0)
                marker = true;
            else if (p.r == 0 && p.g == 0 && p.b > 254)
                marker = row_end = true;
            if (!marker) {
                ++run;
                ++x;
                continue;
            }
            glyphs[font].push_back(SDL_FRect{float(start), float(y + 1), float(run), float(f.glyph_height)});
            start = x;
            in_glyph = !in_glyph;
            run = 0;
            if (row_end) break;
        }
        y += f.glyph_height + 1;
    }
    counts[font] = int(glyphs[font].size());
}

int Image_Pool::glyph_index(int font, char c) const {
    const int code = static_cast<signed char>(c);
    if (code < 32 || code - 32 >= counts[font]) return -1;
    return code - 32;
}

void Image_Pool::blit_sprite(int id, int x, int y, SDL_Surface* surface) const {
    const SDL_FRect& r = sprites[size_t(id)];
    const SDL_Rect from{int(r.x), int(r.y), int(r.w), int(r.h)};
    SDL_Rect to{x, y, int(r.w), int(r.h)};
    SDL_BlitSurface(sheet->surface(), &from, surface, &to);
}

void Image_Pool::blit_text(int font, const char* text, int x, int y, SDL_Surface* surface) const {
    for (; *text; ++text) {
        const int k = glyph_index(font, *text);
        if (k < 0) continue;
        const SDL_FRect& r = glyphs[font][size_t(k)];
        const SDL_Rect from{int(r.x), int(r.y), int(r.w), int(r.h)};
        SDL_Rect to{x, y, int(r.w), int(r.h)};
        SDL_BlitSurface(sheet->surface(), &from, surface, &to);
        x += int(r.w);
    }
}

int Image_Pool::text_width(int font, const char* text) const {
    int width = 0;
    for (; *text; ++text) {
        const int k = glyph_index(font, *text);
        if (k >= 0) width += glyph_width(font, k);
    }
    return width;
}

Texture* Image_Pool::make_header(SDL_Renderer* renderer, int width, const char* title,
                                 int start_cap, int end_cap, int font) const {
    width = std::min(width, max_text_width);
    const int left = sprite_width(start_cap);
    const int right = sprite_width(end_cap);
    SDL_Surface* surface = SDL_CreateSurface(left + width + right, 21, SDL_PIXELFORMAT_ARGB8888);
    if (!surface) return nullptr;
    blit_sprite(start_cap, 0, 0, surface);
    const SDL_Rect body{left, 1, width, 20};
    SDL_FillSurfaceRect(surface, &body,
                        SDL_MapSurfaceRGBA(surface, header_color.red, header_color.green,
                                           header_color.blue, 255));
    const SDL_Rect top{left, 0, width, 1};
    SDL_FillSurfaceRect(surface, &top,
                        SDL_MapSurfaceRGBA(surface, header_top_line.red, header_top_line.green,
                                           header_top_line.blue, 255));
    blit_sprite(end_cap, left + width, 0, surface);
    blit_text(font, title, left, 1, surface);
    Texture* texture = Texture::from_surface(renderer, surface);
    texture->set_opaque(fully_opaque(surface));
    SDL_DestroySurface(surface);
    return texture;
}

Texture* Image_Pool::make_pane_header(SDL_Renderer* renderer, int width, const char* title) const {
    return make_header(renderer, width, title, sprite_pane_header_start, sprite_pane_header_end,
                       font_pane_header);
}

Texture* Image_Pool::make_passive_pane_header(SDL_Renderer* renderer, int width,
                                              const char* title) const {
    return make_header(renderer, width, title, sprite_passive_pane_header_start,
                       sprite_passive_pane_header_end, font_pane);
}
