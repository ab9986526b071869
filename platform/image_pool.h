#pragma once

#include <SDL3/SDL.h>

#include <memory>
#include <vector>

#include "platform/image.h"
#include "platform/sprites.h"
#include "platform/fonts.h"

class Texture;

// The sheet "pool.bmp" with its sprite rectangles and the glyph rectangles of
// the four fonts, found once at start-up from the marker pixels of the sheet,
// so an artist can redraw the fonts without touching any table.
class Image_Pool {
public:
    static constexpr int sheet_size = 512;

    // Loads "pool.bmp" from the working directory (fatal when missing).
    Image_Pool();
    explicit Image_Pool(const char* file_name);

    // -1 when the character (a signed byte) is below 32 or past the font.
    int glyph_index(int font, char c) const;
    const SDL_FRect& glyph_rect(int font, int k) const { return glyphs[font][size_t(k)]; }
    int glyph_width(int font, int k) const { return int(glyphs[font][size_t(k)].w); }
    int glyph_height(int font, int k) const { return int(glyphs[font][size_t(k)].h); }
    int glyph_count(int font) const { return counts[font]; }

    const SDL_FRect& sprite_rect(int id) const { return sprites[size_t(id)]; }
    int sprite_width(int id) const { return int(sprites[size_t(id)].w); }
    int sprite_height(int id) const { return int(sprites[size_t(id)].h); }

    void blit_sprite(int id, int x, int y, SDL_Surface* surface) const;
    // Glyphs side by side; no line breaks, characters without a glyph skipped.
    void blit_text(int font, const char* text, int x, int y, SDL_Surface* surface) const;
    int text_width(int font, const char* text) const;

    // Header images of panes: caps from the sheet, the title between them.
    Texture* make_pane_header(SDL_Renderer* renderer, int width, const char* title) const;
    Texture* make_passive_pane_header(SDL_Renderer* renderer, int width, const char* title) const;

    const Image& image() const { return *sheet; }

private:
    void scan_font(int font);
    Texture* make_header(SDL_Renderer* renderer, int width, const char* title, int start_cap,
                         int end_cap, int font) const;

    std::unique_ptr<Image> sheet;
    std::vector<SDL_FRect> glyphs[font_count];
    std::vector<SDL_FRect> sprites;
    int counts[font_count] = {};
};
