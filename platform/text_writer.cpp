#include "platform/text_writer.h"

#include <cstdarg>
#include <cstdio>

#include "platform/texture.h"
#include "platform/fonts.h"
#include "platform/image_pool.h"

Text_Writer::Text_Writer(int font, const Image_Pool& pool, Texture& pool_texture)
    : font_id(font),
      buffer(new char[buffer_size]()),
      cell_w(font_table[font].cell_width),
      line_h(font_table[font].glyph_height),
      glyph_count(pool.glyph_count(font)),
      pool(pool),
      pool_texture(pool_texture) {}

Text_Writer::~Text_Writer() = default;

void Text_Writer::set_cell(int column, int row) { set_cursor(column * cell_w, row * line_h); }

int Text_Writer::char_width(char c) const {
    const int k = pool.glyph_index(font_id, c);
    return k < 0 ? 0 : pool.glyph_width(font_id, k);
}

int Text_Writer::measure(const char* text) const {
    int widest = 0;
    int width = 0;
    for (; *text; ++text) {
        if (*text == '\r') {
            width = 0;
            continue;
        }
        width += char_width(*text);
        if (width > widest) widest = width;
    }
    return widest;
}

int Text_Writer::measure_prefix(const char* text, int n) const {
    int width = 0;
    for (int i = 0; i < n && static_cast<signed char>(text[i]) >= 32; ++i) width += char_width(text[i]);
    return width;
}

int Text_Writer::put_char(char c) {
    const int k = pool.glyph_index(font_id, c);
    if (k < 0) return 0;
    const SDL_FRect& source = pool.glyph_rect(font_id, k);
    const SDL_FRect target{float(cursor_x), float(cursor_y), source.w, source.h};
    pool_texture.copy(source, target);
    cursor_x += uint32_t(source.w);
    return int(source.w);
}

int Text_Writer::write(const char* text) {
    const uint32_t left = cursor_x;
    int consumed = 0;
    for (; *text; ++text, ++consumed) {
        if (*text == '\r') {
            cursor_x = left;
            cursor_y += uint32_t(line_h);
        } else {
            put_char(*text);
        }
    }
    return consumed;
}

int Text_Writer::write_at_cell(int column, int row, const char* text) {
    set_cell(column, row);
    return write(text);
}

int Text_Writer::write_at(int x, int y, const char* text) {
    set_cursor(x, y);
    return write(text);
}

int Text_Writer::printf(const char* format, ...) {
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer.get(), buffer_size, format, args);
    va_end(args);
    return write(buffer.get());
}
