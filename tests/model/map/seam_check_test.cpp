// The seam checker on tiles drawn by hand for it.
#include "model/map/seam_check.h"

#include <gtest/gtest.h>

#include "model/map/layer_stack.h"
#include "model/tile/tile_store.h"
#include "model/map/tile_map.h"

namespace {
const Color moss(40, 120, 60);
const Color bark(120, 80, 30);

// Stripes that wrap: column 0 equals column 5, row 0 equals row 5, so the
// tile meets itself on every side.
void draw_wrapping(Tile& t) {
    for (int y = 0; y < t.height(); ++y)
        for (int x = 0; x < t.width(); ++x) t.set_pixel(x, y, (x % 5 == 0 || y % 5 == 0) ? bark : moss);
}

TEST(SeamCheck, ATileThatWrapsHasNoSeamsAndOneBadEdgeGivesExactlyItsEdges) {
    Tile_Store store(6, 6, 256);
    store.add_tile();
    store.add_tile();
    draw_wrapping(*store.tile_at(0));
    draw_wrapping(*store.tile_at(1));
    // Tile 1 is tile 0 with a wrong pixel inside its right column, away from the corners.
    store.tile_at(1)->set_pixel(5, 2, Color(250, 250, 250));

    Tile_Map map(4, 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x) map.set(x, y, 0);
    Seam_Check check;
    EXPECT_TRUE(check.run(map, store).empty());

    // Tile 1 in the middle of the top row: only its right edge is a seam.
    map.set(1, 0, 1);
    EXPECT_EQ(check.run(map, store), (std::vector<Seam>{{1, 0, true}}));
    // Twice more, one of them with an empty cell to its right: no neighbour, no seam.
    map.set(2, 1, 1);
    map.set(1, 2, 1);
    map.set(2, 2, Tile_Map::empty);
    EXPECT_EQ(check.run(map, store), (std::vector<Seam>{{1, 0, true}, {2, 1, true}}));
    // Two of it side by side: its right column meets its own left column.
    map.set(2, 2, 1);
    EXPECT_EQ(check.run(map, store), (std::vector<Seam>{{1, 0, true}, {2, 1, true}, {1, 2, true}, {2, 2, true}}));
    // An index the store does not hold is no tile.
    map.set(3, 0, 7);
    EXPECT_EQ(check.run(map, store).size(), 4u);
    map.set(3, 0, 0);

    // The same fault in the bottom row, off the corners, makes the edge below a seam instead.
    store.tile_at(1)->set_pixel(5, 2, bark);
    store.tile_at(1)->set_pixel(3, 5, Color(250, 250, 250));
    EXPECT_EQ(check.run(map, store), (std::vector<Seam>{{1, 0, false}, {2, 1, false}}));
}

TEST(SeamCheck, PairsDifferByTheirWidestChannelAlphaIncludedButHiddenColourNever) {
    const Seam_Check check(10);
    EXPECT_FALSE(check.differ(Color(100, 100, 100), Color(110, 90, 100)));
    EXPECT_TRUE(check.differ(Color(100, 100, 100), Color(100, 100, 111)));
    EXPECT_TRUE(check.differ(Color(100, 100, 100, 255), Color(100, 100, 100, 200)));
    EXPECT_FALSE(check.differ(Color(255, 0, 0, 0), Color(0, 0, 255, 0)));
    EXPECT_TRUE(check.differ(Color(255, 0, 0, 0), Color(255, 0, 0, 40)));

    // In a map: a transparent tile next to a tile that is transparent only
    // in its touching column meets it whatever colours they hide.
    Tile_Store store(4, 4, 256);
    store.add_tile();
    store.add_tile();
    store.tile_at(0)->fill(Color(255, 0, 0, 0));
    store.tile_at(1)->fill(Color(20, 20, 20));
    for (int y = 0; y < 4; ++y) store.tile_at(1)->set_pixel(0, y, Color(0, 255, 0, 0));
    Tile_Map map(2, 1);
    map.set(0, 0, 0);
    map.set(1, 0, 1);
    EXPECT_TRUE(Seam_Check().run(map, store).empty());
    map.set(0, 0, 1);
    EXPECT_EQ(Seam_Check().run(map, store).size(), 1u) << "the opaque right column against the clear left one";

    // Layers drawn together: the clear column of the upper tile shows the
    // lower one through it, and an opaque upper tile hides what lies below.
    Tile_Map below(2, 1);
    below.set(0, 0, 1), below.set(1, 0, 1);
    Tile_Map above(2, 1);
    above.set(1, 0, 1);
    EXPECT_EQ(Seam_Check().run(Layer_Stack({&below, &above}, store), store).size(), 1u);
    store.tile_at(0)->fill(Color(20, 20, 20));
    above.set(0, 0, 0), above.set(1, 0, 0);
    EXPECT_TRUE(Seam_Check().run(Layer_Stack({&below, &above}, store), store).empty());
    // Two half-clear pixels: more seen than either, the upper one weighing more.
    const Color both = composited(Color(200, 0, 0, 128), Color(0, 0, 200, 128));
    EXPECT_NEAR(both.alpha, 128 + 128 * 127 / 255.0, 1);
    EXPECT_GT(both.blue, both.red);
    EXPECT_NEAR(both.red + both.blue, 200, 2);
}

}  // namespace
