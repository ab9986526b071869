// The four bitmap fonts of the sheet. The program finds its glyphs by marker
// pixels on the line above each glyph row:
//  - the first glyph of a row starts at x 0 without a marker;
//  - every further glyph starts at a marker pixel, green and yellow in turn
//    through all rows of one font (the program looks for green while outside a
//    glyph and for yellow while inside one, and each marker flips that state);
//  - a blue pixel right after the last glyph ends the row, and flips the state too.
// Everything else on a marker line is magenta, and glyph backgrounds are magenta.
#include "sprites.h"

namespace {
#include "font_8x13.inc"
#include "font_9x18.inc"

constexpr Rgb marker_green{0, 255, 0};
constexpr Rgb marker_yellow{255, 255, 0};
constexpr Rgb marker_blue{0, 0, 255};

struct Glyph_Set {
    int width, height;
    const char* const* rows;  // glyph k, row r is rows[k * height + r]
};

struct Font_Layout {
    int marker_y;     // first marker line
    int line_height;  // height of a glyph row below its marker line
    int rows;         // glyph rows of the font
    int top;          // blank lines above the glyph cell, to centre it in the line
    Rgb ink;
    Glyph_Set glyphs;
    bool shadowed = false;  // light text gets a dark shadow one pixel down and right
    Rgb shadow{};
    // A highlight font fills its whole cell, so text written in it stands on
    // a bar as wide as the text: the menus highlight by switching to it.
    bool filled = false;
    Rgb fill{};
};

constexpr int glyph_count = 95;  // printable ASCII, codes 32 to 126

void paint_font(Canvas& canvas, const Font_Layout& font)
{
    const int per_row = (glyph_count + font.rows - 1) / font.rows;
    bool in_glyph = false;
    int k = 0;
    for (int row = 0; row < font.rows; ++row) {
        const int marker_y = font.marker_y + row * (font.line_height + 1);
        const int last = row + 1 == font.rows ? glyph_count : k + per_row;
        int x = 0;
        for (bool first = true; k < last; ++k, first = false) {
            if (!first) {
                canvas.set(x, marker_y, in_glyph ? marker_yellow : marker_green);
                in_glyph = !in_glyph;
            }
            const int cell_y = marker_y + 1 + font.top;
            auto ink_at = [&](int c, int r) {
                if (c < 0 || r < 0 || c >= font.glyphs.width || r >= font.glyphs.height)
                    return false;
                return font.glyphs.rows[k * font.glyphs.height + r][c] == '#';
            };
            // The shadow stays inside the glyph's own cell, so it never
            // touches the neighbouring glyph.
            if (font.filled)
                for (int r = 0; r < font.line_height; ++r)
                    for (int c = 0; c < font.glyphs.width; ++c) canvas.set(x + c, marker_y + 1 + r, font.fill);
            for (int r = 0; r <= font.glyphs.height; ++r)
                for (int c = 0; c < font.glyphs.width; ++c) {
                    if (ink_at(c, r))
                        canvas.set(x + c, cell_y + r, font.ink);
                    else if (font.shadowed && ink_at(c - 1, r - 1))
                        canvas.set(x + c, cell_y + r, font.shadow);
                }
            x += font.glyphs.width;
        }
        canvas.set(x, marker_y, marker_blue);
        in_glyph = !in_glyph;
    }
}

}  // namespace

const char* large_glyph_row(char c, int row)
{
    static const char blank[] = ".........";
    if (c < 32 || c > 126 || row < 0 || row >= fixed_9x18_height)
        return blank;
    return fixed_9x18_glyphs[c - 32][row];
}

int large_glyph_width() { return fixed_9x18_width; }
int large_glyph_height() { return fixed_9x18_height; }

void paint_fonts(Canvas& canvas)
{
    const Glyph_Set small{fixed_8x13_width, fixed_8x13_height, &fixed_8x13_glyphs[0][0]};
    const Glyph_Set large{fixed_9x18_width, fixed_9x18_height, &fixed_9x18_glyphs[0][0]};
    const Rgb dark_ink{16, 16, 16};
    const Rgb light_ink{255, 255, 255};
    // Pane text: dark on pane bodies; pane header text: white on the green
    // header, with a dark green shadow.
    paint_font(canvas, {226, 20, 2, 3, dark_ink, small});
    paint_font(canvas, {268, 20, 2, 3, light_ink, small, true, {30, 72, 36}});
    // Dialog and menu text: dark; the highlighted menu item: white with a
    // navy shadow on a blue bar of its own.
    paint_font(canvas, {310, 23, 3, 1, dark_ink, large});
    paint_font(canvas, {382, 23, 3, 1, light_ink, large, true, {0, 32, 96}, true, {0, 60, 230}});
}
