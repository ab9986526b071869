// make_pool: paints the sprite and font sheet of the editor and writes it as
// a BMP. Run as: make_pool <output.bmp>. The output is the same on every run.
#include <cstdio>

#include "sprites.h"

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_pool <output.bmp>\n");
        return 2;
    }
    Canvas canvas(512, 512, magenta);
    paint_fonts(canvas);
    paint_logo(canvas);
    paint_tool_icons(canvas);
    paint_ui_pieces(canvas);
    paint_edge_pieces(canvas);
    if (!canvas.write_bmp(argv[1])) {
        std::fprintf(stderr, "make_pool: cannot write %s\n", argv[1]);
        return 1;
    }
    return 0;
}
