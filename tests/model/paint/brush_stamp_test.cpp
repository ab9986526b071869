#include <gtest/gtest.h>

#include "model/paint/brush_stamp.h"
#include "model/paint/painter.h"
#include "model/tile/tile.h"

namespace {
const Color paper(0, 0, 0, 0);
const Color red(220, 20, 30);
const Color blue(10, 40, 230);
const Color green(0, 200, 0);
const Color clear(0, 0, 0, 0);

struct Canvas {
    explicit Canvas(int size = 12) : tile(size, size) {
        tile.fill(paper);
        painter.set_target(&tile);
    }
    Tile tile;
    Painter painter;
};

// A 3 x 2 image: red, blue, clear over green, clear, red.
struct Image : Tile {
    Image() : Tile(3, 2) {
        const Color pixels[] = {red, blue, clear, green, clear, red};
        for (int i = 0; i < 6; ++i) set_pixel(i % 3, i / 3, pixels[i]);
    }
};
}  // namespace

// The hotspot is the middle, rounding up and left; transparent pixels stay out.
TEST(Brush_Stamp, StampsItsOwnColoursAroundItsHotspotAndLeavesTransparentPixelsOut) {
    const Image t;
    const Brush_Stamp s(t, Brush_Stamp::mode_brush);
    EXPECT_EQ(s.hot_x(), 1);
    EXPECT_EQ(s.hot_y(), 0);
    EXPECT_EQ(Brush_Stamp(Tile(4, 4), Brush_Stamp::mode_brush).hot_x(), 1);
    Canvas c;
    c.tile.fill(blue);
    s.stamp(c.painter, 4, 5);
    const Color expected[2][3] = {{red, blue, blue}, {green, blue, red}};
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x) EXPECT_EQ(c.tile.get_pixel(4 + x, 5 + y), expected[y][x]) << x << "," << y;
}

TEST(Brush_Stamp, APatternRepeatsFromTheTilesCorner) {
    Canvas c;
    const Image t;
    // Wherever it is stamped, tile pixel (x, y) shows image pixel (x mod 3, y mod 2).
    Brush_Stamp(t, Brush_Stamp::mode_pattern).stamp(c.painter, 4, 5);
    EXPECT_EQ(c.tile.get_pixel(4, 5), clear);  // image (1, 1)
    EXPECT_EQ(c.tile.get_pixel(5, 5), red);    // image (2, 1)
    EXPECT_EQ(c.tile.get_pixel(6, 5), green);  // image (0, 1)
    EXPECT_EQ(c.tile.get_pixel(4, 6), blue);   // image (1, 0)
    EXPECT_EQ(c.tile.get_pixel(6, 6), red);    // image (0, 0)
    EXPECT_EQ(c.tile.get_pixel(7, 6), paper);
}

TEST(Brush_Stamp, ALineOfStampsLeavesNoGapsAndStaysInTheSelection) {
    Canvas c;
    Tile mask(12, 12);
    mask.fill(paper);
    for (int x = 0; x < 6; ++x) mask.set_pixel(x, 3, Color(255, 255, 255));
    c.painter.set_mask(&mask);
    c.painter.set_clip(true);
    Tile dot(1, 1);
    dot.set_pixel(0, 0, red);
    Brush_Stamp(dot, Brush_Stamp::mode_brush).stamp_line(c.painter, 0, 3, 10, 3);
    for (int x = 0; x < 6; ++x) EXPECT_EQ(c.tile.get_pixel(x, 3), red) << x;
    for (int x = 6; x <= 10; ++x) EXPECT_EQ(c.tile.get_pixel(x, 3), paper) << x;
}
