// Corner terrains: which combinations have tiles, and painting them on a map.
#include "model/map/map_editor.h"

#include <gtest/gtest.h>

#include <set>

namespace {
using Corners = Terrain_Set::Corners;
constexpr uint8_t G = 1, W = 2;  // grass, water
}  // namespace

TEST(Terrain, CoverageCountsTheDrawnCombinationsAndListsTheMissingOnes) {
    Terrain_Set set;
    ASSERT_TRUE(set.add_terrain() && set.add_terrain());
    EXPECT_EQ(set.combination_count(), 16);
    EXPECT_EQ(set.drawn_count(), 0);
    EXPECT_EQ(set.missing().size(), 16u);
    set.set_corners(0, {G, G, G, G});
    set.set_corners(3, {G, G, G, G});  // a second tile of a drawn combination
    set.set_corners(5, {W, G, G, W});
    set.set_corners(7, {W, 0, G, W});  // not all corners marked: counts for nothing
    EXPECT_EQ(set.drawn_count(), 2);
    const std::vector<Corners> missing = set.missing();
    EXPECT_EQ(missing.size(), 14u);
    EXPECT_EQ(missing.front(), (Corners{G, G, G, W}));
    EXPECT_EQ(std::set<Corners>(missing.begin(), missing.end()).count(Corners{W, G, G, W}), 0u);
    for (int i = 0; i < 16; ++i)
        set.set_corners(10 + i, {uint8_t(i / 8 + 1), uint8_t(i / 4 % 2 + 1), uint8_t(i / 2 % 2 + 1), uint8_t(i % 2 + 1)});
    EXPECT_EQ(set.drawn_count(), 16);
    EXPECT_TRUE(set.missing().empty());
    // Tiles come and go: the marks follow their tiles; a removed terrain's corners empty.
    set.tile_removed(0);
    EXPECT_EQ(set.corners(4), (Corners{W, G, G, W}));
    set.tiles_swapped(4, 2);
    EXPECT_EQ(set.corners(2), (Corners{W, G, G, W}));
    set.remove_terrain(G);
    EXPECT_EQ(set.corners(2), (Corners{1, 0, 0, 1}));
    EXPECT_EQ(set.combination_count(), 1);
}

TEST(Terrain, PaintingACornerGivesMatchingTilesAndLeavesMissingOnesMarked) {
    Map_Editor m(24, 24);
    Terrain_Set set;
    set.add_terrain(), set.add_terrain();
    set.set_corners(0, {G, G, G, G});
    set.set_corners(1, {G, G, G, G});
    set.set_corners(2, {G, G, W, G});
    m.set_terrain(set);
    m.fill(0, 0, 0);
    // Water at the corner between cells (4,4), (5,4), (4,5) and (5,5).
    m.paint_terrain(5, 5, W);
    EXPECT_TRUE(m.end_stroke());
    EXPECT_EQ(m.map().at(4, 4), 2);
    EXPECT_EQ(m.wanted(5, 4), (Corners{G, G, G, W}));
    EXPECT_EQ(m.map().at(5, 4), Tile_Map::empty);
    EXPECT_TRUE(m.is_missing(5, 4) && m.is_missing(4, 5) && m.is_missing(5, 5) && !m.is_missing(4, 4));
    // Both all-grass tiles are used, each cell keeping its choice when painted again.
    for (int x = 10; x <= 20; ++x) m.paint_terrain(x, 10, G), m.paint_terrain(x, 11, G);
    m.end_stroke();
    std::set<int> used;
    for (int x = 10; x < 20; ++x) used.insert(m.map().at(x, 10));
    EXPECT_EQ(used, (std::set<int>{0, 1}));
    const int chosen = m.map().at(12, 12);
    m.paint_terrain(12, 12, G), m.paint_terrain(13, 13, G);
    m.end_stroke();
    EXPECT_EQ(m.map().at(12, 12), chosen);

    // The missing tile drawn and marked: its cell takes it, as a step of its own.
    set.set_corners(3, {G, G, G, W});
    EXPECT_TRUE(m.set_terrain(set));
    EXPECT_EQ(m.map().at(5, 4), 3);
    EXPECT_FALSE(m.is_missing(5, 4));
    ASSERT_TRUE(m.undo());
    EXPECT_EQ(m.map().at(5, 4), Tile_Map::empty);
    ASSERT_TRUE(m.undo());  // the stroke at 12,12 changed corners only
    ASSERT_TRUE(m.undo());  // the grass rows
    ASSERT_TRUE(m.undo());
    EXPECT_NE(m.map().at(4, 4), 2);
    EXPECT_EQ(m.terrain_corners().at(5, 5), Tile_Map::empty);
}
