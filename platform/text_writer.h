#pragma once

#include <SDL3/SDL.h>

#include <cstdint>
#include <memory>

class Image_Pool;
class Texture;

// Writes text in one bitmap font with a cursor. Each glyph advances the cursor
// by its own width; "\r" returns to the x where the write began, one line down.
class Text_Writer {
public:
    static constexpr int buffer_size = 3000;

    Text_Writer(int font, const Image_Pool& pool, Texture& pool_texture);
    ~Text_Writer();
    Text_Writer(const Text_Writer&) = delete;
    Text_Writer& operator=(const Text_Writer&) = delete;

    void set_cell(int column, int row);
    void set_cursor(int x, int y) {
        cursor_x = uint32_t(x);
        cursor_y = uint32_t(y);
    }
    int x() const { return int(cursor_x); }
    int y() const { return int(cursor_y); }
    int line_height() const { return line_h; }
    int font() const { return font_id; }

    int char_width(char c) const;
    // The widest of the lines separated by "\r".
    int measure(const char* text) const;
    // The first n characters, stopping early at the end or any control character.
    int measure_prefix(const char* text, int n) const;

    int put_char(char c);
    // Returns the number of characters consumed.
    int write(const char* text);
    int write_at_cell(int column, int row, const char* text);
    int write_at(int x, int y, const char* text);
    int printf(const char* format, ...) __attribute__((format(printf, 2, 3)));

private:
    int font_id;
    std::unique_ptr<char[]> buffer;
    uint32_t cursor_x = 0;
    uint32_t cursor_y = 0;
    int cell_w;
    int line_h;
    int glyph_count;
    const Image_Pool& pool;
    Texture& pool_texture;
};
