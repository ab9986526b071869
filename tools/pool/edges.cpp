// Selection-edge pieces: dashed strips that the canvas view lays along the
// edges of selected cells. The program draws a piece s pixels long (s up to 32)
// and, for every other cell, starts the source one thickness further along,
// which lands on the opposite colour. So each strip is a run of dashes as long
// as its thickness, in two alternating colours, painted thickness pixels past
// the 32-pixel rectangle. The horizontal and vertical piece of a kind share
// their origin; both follow the same rule there, so the shared corner agrees.
#include <cstdio>
#include <cstdlib>

#include "sprites.h"

namespace {

void paint_dashes(Canvas& canvas, const char* name, Rgb first, Rgb second)
{
    const Rect r = sprite_rect(name);
    const bool horizontal = r.w > r.h;
    const int thickness = horizontal ? r.h : r.w;
    const int length = 32 + thickness;
    for (int along = 0; along < length; ++along)
        for (int across = 0; across < thickness; ++across) {
            const int x = r.x + (horizontal ? along : across);
            const int y = r.y + (horizontal ? across : along);
            const Rgb c = (along / thickness) % 2 == 0 ? first : second;
            // Only the shared corner may already be painted, and in the same colour.
            const Rgb before = canvas.get(x, y);
            if (before != magenta && before != c) {
                std::fprintf(stderr, "make_pool: edge piece \"%s\" overlaps another sprite at %d, %d\n", name, x, y);
                std::exit(1);
            }
            canvas.set(x, y, c);
        }
}

void paint_kind(Canvas& canvas, const char* thin_h, const char* thin_v, const char* thick_h, const char* thick_v,
                Rgb first, Rgb second)
{
    paint_dashes(canvas, thin_h, first, second);
    paint_dashes(canvas, thin_v, first, second);
    paint_dashes(canvas, thick_h, first, second);
    paint_dashes(canvas, thick_v, first, second);
}

}  // namespace

void paint_edge_pieces(Canvas& canvas)
{
    // Selection: black and white marching ants.
    paint_kind(canvas, "horiz selector one", "verti selector one", "horiz selector two", "verti selector two",
               {0, 0, 0}, {255, 255, 255});
    // A selection still being drawn: blue and cyan.
    paint_kind(canvas, "horiz active select one", "verti active select one", "horiz active select two",
               "verti active select two", {0, 60, 230}, {0, 222, 255});
    // A pending paste: red and white.
    paint_kind(canvas, "horiz paste one", "verti paste one", "horiz paste two", "verti paste two", {220, 30, 30},
               {255, 255, 255});
    // Seam markers: yellow and black.
    paint_kind(canvas, "horiz seam one", "verti seam one", "horiz seam two", "verti seam two", {255, 214, 0},
               {0, 0, 0});
}
