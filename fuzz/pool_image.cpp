// "pool.bmp": the image loader with its colour key, the font scan over the
// marker lines and the glyph and sprite blits that every text and icon of the
// window goes through, fed with whatever bytes stand in the file.
#include <SDL3/SDL.h>

#include <cstdlib>
#include <string>

#include "platform/sprites.h"
#include "fuzz/fatal_throws.h"
#include "fuzz/support.h"
#include "platform/image_pool.h"

namespace {

// Loaded pixels are fully opaque, or fully transparent where the key matched.
void check_key(const Image& image) {
    const SDL_Surface* s = image.surface();
    for (int y = 0; y < s->h; ++y) {
        const auto* row = reinterpret_cast<const Uint32*>(static_cast<const Uint8*>(s->pixels) + y * s->pitch);
        for (int x = 0; x < s->w; ++x) {
            const Uint32 alpha = row[x] >> 24;
            if (alpha == 0xFF) continue;
            if (alpha != 0 || (row[x] & 0xFFFFFF) != 0xFF00FF) std::abort();
        }
    }
}

void check_glyphs(const Image_Pool& pool, int font) {
    const Font_Record& f = font_table[font];
    const int last_line = f.first_marker_line + f.glyph_rows * (f.glyph_height + 1);
    for (int k = 0; k < pool.glyph_count(font); ++k) {
        const SDL_FRect& r = pool.glyph_rect(font, k);
        if (r.x < 0 || r.w < 0 || r.x + r.w > Image_Pool::sheet_size || r.y <= f.first_marker_line ||
            r.y + r.h > last_line || int(r.h) != f.glyph_height)
            std::abort();
    }
}

// Everything the program writes or shows passes through these.
void draw_everything(const Image_Pool& pool, SDL_Surface* target) {
    static const std::string printable = [] {
        std::string s;
        for (int c = 1; c < 256; ++c) s += char(c);
        return s;
    }();
    for (int font = 0; font < font_count; ++font) {
        check_glyphs(pool, font);
        pool.blit_text(font, printable.c_str(), -3, 2, target);
        if (pool.text_width(font, printable.c_str()) < 0) std::abort();
    }
    for (int id = 0; id < sprite_count; ++id) pool.blit_sprite(id, 1, -1, target);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::string path = (fuzz::private_dir() / "pool.bmp").string();
    static SDL_Surface* target = SDL_CreateSurface(64, 32, SDL_PIXELFORMAT_ARGB8888);
    fuzz::write_file(path, data, size);
    try {
        const Image_Pool pool(path.c_str());
        check_key(pool.image());
        draw_everything(pool, target);
    } catch (const Fatal_Exit& e) {
        // An unreadable file names itself; an image too large for a surface has its own message.
        if (e.text != "Error: Could not load SDL surface from %s. " + path + "!" &&
            e.text != "Error: Could not set SDL surface.!")
            std::abort();
    }
    return 0;
}
