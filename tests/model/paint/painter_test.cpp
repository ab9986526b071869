#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "model/paint/painter.h"
#include "model/tile/tile.h"

namespace {
const Color ink(200, 10, 20);
const Color paper(0, 0, 0, 0);
const Color white(255, 255, 255);

using Points = std::set<std::pair<int, int>>;

// The pixels of the tile that hold c.
Points painted(const Tile& t, Color c = ink) {
    Points out;
    for (int y = 0; y < t.height(); ++y)
        for (int x = 0; x < t.width(); ++x)
            if (t.get_pixel(x, y) == c) out.insert({x, y});
    return out;
}

struct Canvas {
    explicit Canvas(int size = 16) : tile(size, size) {
        tile.fill(paper);
        painter.set_target(&tile);
    }
    Tile tile;
    Painter painter;
};
}  // namespace

// Halves round away from zero, both ends are drawn whichever comes first, and
// what lies outside the tile is clipped silently.
TEST(Line, RoundsHalvesAwayFromZeroCoversBothEndsAndClipsSilently) {
    Canvas c;
    c.painter.line(0, 0, 3, 1, ink);
    const Points shallow{{0, 0}, {1, 0}, {2, 1}, {3, 1}};
    EXPECT_EQ(painted(c.tile), shallow);
    Canvas back;
    back.painter.line(3, 1, 0, 0, ink);
    EXPECT_EQ(painted(back.tile).size(), 4u);
    EXPECT_TRUE(painted(back.tile).count({3, 1}) && painted(back.tile).count({0, 0}));
    Canvas small(4);
    small.painter.line(-3, 1, 6, 1, ink);
    EXPECT_EQ(painted(small.tile), (Points{{0, 1}, {1, 1}, {2, 1}, {3, 1}}));
}

TEST(Painter, ClipsToTheSelectionMask) {
    Canvas c(8);
    Tile mask(8, 8);
    mask.fill(Color(0, 0, 0));
    for (int x = 0; x < 4; ++x) mask.set_pixel(x, 3, white);
    mask.set_pixel(5, 3, Color(255, 255, 254));  // not quite white: unselected
    c.painter.set_mask(&mask);
    c.painter.set_clip(true);
    c.painter.line(0, 3, 7, 3, ink);
    EXPECT_EQ(painted(c.tile), (Points{{0, 3}, {1, 3}, {2, 3}, {3, 3}}));
    c.painter.set_clip(false);
    c.painter.plot(7, 7, ink);
    EXPECT_EQ(c.tile.get_pixel(7, 7), ink);
}

TEST(Rectangle, OutlineHasFourSidesAndFilledUsesTheInsideColourWithin) {
    Canvas c;
    c.painter.rectangle_outline(5, 4, 1, 1, ink);
    const Points p = painted(c.tile);
    EXPECT_EQ(p.size(), 14u);  // 5 x 4 border
    EXPECT_TRUE(p.count({1, 1}) && p.count({5, 4}) && p.count({1, 4}) && p.count({5, 1}));
    Canvas f;
    const Color inside(1, 2, 3);
    f.painter.rectangle_filled(4, 4, 1, 1, ink, inside);
    EXPECT_EQ(painted(f.tile, inside), (Points{{2, 2}, {3, 2}, {2, 3}, {3, 3}}));
    EXPECT_EQ(painted(f.tile).size(), 12u);
}

TEST(Ellipse, OutlineIsSymmetricAndReachesItsRadii) {
    Canvas c;
    c.painter.ellipse_outline(8, 8, 5, 3, ink);
    const Points p = painted(c.tile);
    for (const auto& [x, y] : p) {
        EXPECT_TRUE(p.count({16 - x, y}));
        EXPECT_TRUE(p.count({x, 16 - y}));
    }
    EXPECT_TRUE(p.count({3, 8}) && p.count({13, 8}) && p.count({8, 5}) && p.count({8, 11}));
    EXPECT_FALSE(p.count({8, 8}));
    Canvas line;
    line.painter.ellipse_outline(8, 8, 0, 3, ink);  // no width: a vertical line
    EXPECT_EQ(painted(line.tile), (Points{{8, 5}, {8, 6}, {8, 7}, {8, 8}, {8, 9}, {8, 10}, {8, 11}}));
}

TEST(Ellipse, FilledHasNoHolesAndKeepsTheOutline) {
    Canvas c;
    const Color inside(1, 2, 3);
    c.painter.ellipse_filled(8, 8, 5, 4, ink, inside);
    EXPECT_EQ(c.tile.get_pixel(8, 8), inside);
    // Every row between the outline's ends is covered without gaps.
    for (int y = 4; y <= 12; ++y) {
        int first = -1, last = -1;
        for (int x = 0; x < 16; ++x)
            if (!(c.tile.get_pixel(x, y) == paper)) {
                if (first < 0) first = x;
                last = x;
            }
        ASSERT_GE(first, 0) << "row " << y;
        for (int x = first; x <= last; ++x) EXPECT_FALSE(c.tile.get_pixel(x, y) == paper) << x << "," << y;
    }
    Canvas outline;
    outline.painter.ellipse_outline(8, 8, 5, 4, ink);
    EXPECT_EQ(painted(c.tile), painted(outline.tile));
}
