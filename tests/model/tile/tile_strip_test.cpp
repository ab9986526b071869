// The tile strip's paging and hit testing, without a display.
#include "model/tile/tile_strip.h"

#include <gtest/gtest.h>

#include "model/tile/tile_store.h"

namespace {
struct Strip : ::testing::Test {
    Tile_Store store{8, 8, 256};
    Tile_Strip strip{store};

    void fill(int count) {
        for (int i = 0; i < count; ++i) store.add_tile();
        store.go_to(0);
        strip.set_position(4, 636);
    }
};
}  // namespace

TEST_F(Strip, HasFiftyOneCellsOfTwentyFourPixels) {
    fill(1);
    EXPECT_EQ(strip.cell_count(), 51);
    EXPECT_EQ(strip.area(), (Rectangle{4, 636, 51 * 24, 24}));
}

TEST_F(Strip, NextPageFromTheStartOfSixtyTilesKeepsFiveOfOverlap) {
    fill(60);
    strip.next_page();
    EXPECT_EQ(strip.first(), 46);
    // Every tile from 46 on is in view: paging on would only empty cells.
    EXPECT_FALSE(strip.can_page_forward());
    strip.next_page();
    EXPECT_EQ(strip.first(), 46);
    strip.previous_page();
    EXPECT_EQ(strip.first(), 0);
    strip.previous_page();
    EXPECT_EQ(strip.first(), 0);
    EXPECT_FALSE(strip.can_page_back());
}

TEST_F(Strip, PagingOverManyTilesStepsByFortySix) {
    fill(200);
    strip.next_page();
    strip.next_page();
    EXPECT_EQ(strip.first(), 92);
    strip.previous_page();
    EXPECT_EQ(strip.first(), 46);
}

TEST_F(Strip, TileAtMapsCellsAndRefusesRightOfTheLastTile) {
    fill(10);
    EXPECT_EQ(strip.tile_at(4, 636), 0);
    EXPECT_EQ(strip.tile_at(4 + 23, 659), 0);
    EXPECT_EQ(strip.tile_at(4 + 24, 640), 1);
    EXPECT_EQ(strip.tile_at(4 + 9 * 24 + 12, 648), 9);
    // A partly filled strip: the cell after the last tile selects nothing.
    EXPECT_EQ(strip.tile_at(4 + 10 * 24 + 1, 648), -1);
    EXPECT_EQ(strip.tile_at(4 + 50 * 24 + 1, 648), -1);
    // Outside the strip, also on its right and bottom edges.
    EXPECT_EQ(strip.tile_at(3, 648), -1);
    EXPECT_EQ(strip.tile_at(10, 660), -1);
    EXPECT_EQ(strip.tile_at(4 + 51 * 24, 648), -1);
}

TEST_F(Strip, TileAtCountsFromFirst) {
    fill(60);
    strip.next_page();
    EXPECT_EQ(strip.tile_at(4, 640), 46);
    EXPECT_EQ(strip.tile_at(4 + 13 * 24, 640), 59);
    EXPECT_EQ(strip.tile_at(4 + 14 * 24, 640), -1);
    EXPECT_EQ(strip.cell_x(47), 4 + 24);
}

TEST_F(Strip, MakeCurrentVisibleScrollsBothWays) {
    fill(120);
    store.go_to(100);
    strip.make_current_visible();
    // Forward: the current tile lands in the last cell.
    EXPECT_EQ(strip.first(), 50);
    EXPECT_TRUE(strip.is_shown(100));
    store.go_to(20);
    strip.make_current_visible();
    // Backward: the current tile lands in the first cell.
    EXPECT_EQ(strip.first(), 20);
    // Already in view: nothing moves.
    store.go_to(60);
    strip.make_current_visible();
    EXPECT_EQ(strip.first(), 20);
}

TEST_F(Strip, RewindAndForwardMoveTheStore) {
    fill(70);
    store.go_to(30);
    strip.forward();
    EXPECT_EQ(store.current_index(), 69);
    strip.make_current_visible();
    EXPECT_EQ(strip.first(), 19);
    strip.rewind();
    EXPECT_EQ(store.current_index(), 0);
    strip.make_current_visible();
    EXPECT_EQ(strip.first(), 0);
}

TEST_F(Strip, DeletedTilesNeverLeaveTheStripEmpty) {
    fill(60);
    strip.next_page();
    ASSERT_EQ(strip.first(), 46);
    store.go_to(59);
    for (int i = 0; i < 20; ++i) store.delete_tile();
    ASSERT_EQ(store.tile_count(), 40);
    strip.make_current_visible();
    EXPECT_EQ(strip.first(), 39);
    EXPECT_TRUE(strip.is_shown(39));
}
