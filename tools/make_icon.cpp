// The desktop icon, drawn from the program's own art: the pen of the tool bar,
// its pixels magnified, on a moss-green tile with a dark frame.
// Usage: make_icon POOL.bmp OUT.png SIZE   (SIZE a multiple of 32)
#include <cstdio>
#include <cstdlib>

#include "model/tile/png_file.h"
#include "platform/image.h"
#include "platform/sprites.h"
#include "platform/ui_colors.h"

int main(int argc, char** argv) {
    const int size = argc == 4 ? std::atoi(argv[3]) : 0;
    if (size < 32 || size % 32 != 0) {
        std::fprintf(stderr, "usage: make_icon POOL.bmp OUT.png SIZE (a multiple of 32)\n");
        return 2;
    }
    const Image pool(argv[1], 0, 0, true, 255, 0, 255);
    const int unit = size / 32;
    Picture icon(size, size, Color(0, 0, 0, 0));
    // A tile of 30 x 30 units with its corners cut, framed one unit wide.
    for (int y = unit; y < size - unit; ++y)
        for (int x = unit; x < size - unit; ++x) {
            const int ux = x / unit, uy = y / unit;
            const bool corner = (ux == 1 || ux == 30) && (uy == 1 || uy == 30);
            if (corner) continue;
            const bool frame = ux == 1 || ux == 30 || uy == 1 || uy == 30;
            icon.at(x, y) = ui_colors[frame ? ui_dark_moss : ui_moss];
        }
    // The pen without its button: the bevel cut off and the button's face left
    // out, so the moss shows through.
    const Sprite_Record& pen = sprite_table[sprite_icon_pen];
    const int inset = 2;
    const Image::Rgba face = pool.get_pixel(pen.x + inset, pen.y + inset);
    const int side = pen.w - 2 * inset;
    const int scale = (size - 6 * unit) / side;  // whole pixels, clear of the frame
    const int drawn = side * scale;
    const int origin = (size - drawn) / 2;
    for (int y = 0; y < drawn; ++y)
        for (int x = 0; x < drawn; ++x) {
            const int sx = pen.x + inset + x / scale, sy = pen.y + inset + y / scale;
            const Image::Rgba p = pool.get_pixel(sx, sy);
            if (p.a != 0 && !(p == face)) icon.at(origin + x, origin + y) = Color(p.r, p.g, p.b, 255);
        }
    if (!png_file::write(argv[2], icon, safe_file::Links::refuse)) {
        std::fprintf(stderr, "make_icon: could not write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
