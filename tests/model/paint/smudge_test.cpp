#include <gtest/gtest.h>

#include "model/paint/painter.h"
#include "model/paint/smudge.h"
#include "model/tile/tile.h"

namespace {
const Color black(0, 0, 0);
const Color red(200, 0, 0);
const Color white(255, 255, 255);

struct Canvas {
    explicit Canvas(int size = 12) : tile(size, size) {
        tile.fill(black);
        painter.set_target(&tile);
    }
    Tile tile;
    Painter painter;
};
}  // namespace

// Opaque colours average; transparency thins a colour out without darkening
// it; two clear pixels mix plainly, halves rounding up.
TEST(Smudge, MixAveragesAndTransparencyThinsAColourOutWithoutDarkeningIt) {
    EXPECT_EQ(Smudge::mix(Color(200, 100, 0), Color(0, 50, 255), 128), Color(100, 75, 128));
    EXPECT_EQ(Smudge::mix(red, black, 256), red);
    EXPECT_EQ(Smudge::mix(red, black, 0), black);
    EXPECT_EQ(Smudge::mix(red, Color(0, 0, 0, 0), 128), Color(200, 0, 0, 128));
    EXPECT_EQ(Smudge::mix(Color(0, 0, 0, 0), Color(11, 21, 31, 0), 128), Color(6, 11, 16, 0));
}

TEST(Smudge, DragsAColourAlongAndFadesIt) {
    Canvas c;
    c.tile.set_pixel(2, 4, red);
    Smudge s;
    s.pick_up(c.painter, nullptr, 2, 4);
    s.drag(c.painter, nullptr, 2, 4, 5, 4);
    EXPECT_EQ(c.tile.get_pixel(2, 4), red);
    EXPECT_EQ(c.tile.get_pixel(3, 4), Color(100, 0, 0));
    EXPECT_EQ(c.tile.get_pixel(4, 4), Color(50, 0, 0));
    EXPECT_EQ(c.tile.get_pixel(5, 4), Color(25, 0, 0));
    EXPECT_EQ(c.tile.get_pixel(6, 4), black);
}

TEST(Smudge, ABrushCarriesEachOfItsPixels) {
    Canvas c;
    c.tile.set_pixel(3, 3, red);
    c.tile.set_pixel(3, 4, white);
    Tile brush(2, 2);
    brush.fill(white);
    Smudge s;
    s.set_strength(256);
    // A 2 x 2 brush at (3, 3) covers (3, 3) to (4, 4).
    s.pick_up(c.painter, &brush, 3, 3);
    s.drag(c.painter, &brush, 3, 3, 5, 3);
    EXPECT_EQ(c.tile.get_pixel(5, 3), red);
    EXPECT_EQ(c.tile.get_pixel(5, 4), white);
    EXPECT_EQ(c.tile.get_pixel(6, 3), black);
}

TEST(Smudge, NothingOutsideTheSelectionChanges) {
    Canvas c;
    c.tile.set_pixel(1, 1, red);
    Tile mask(12, 12);
    mask.fill(black);
    mask.set_pixel(3, 1, white);
    c.painter.set_mask(&mask);
    c.painter.set_clip(true);
    Smudge s;
    s.set_strength(256);
    s.pick_up(c.painter, nullptr, 1, 1);
    s.drag(c.painter, nullptr, 1, 1, 4, 1);
    EXPECT_EQ(c.tile.get_pixel(2, 1), black);
    EXPECT_EQ(c.tile.get_pixel(3, 1), red);
    EXPECT_EQ(c.tile.get_pixel(4, 1), black);
}
