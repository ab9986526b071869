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

TEST_F(Strip, PagesKeepFiveTilesOfOverlapAndNeverShowOnlyEmptyCells) {
    fill(60);
    strip.next_page();
    EXPECT_EQ(strip.first(), 46);
    EXPECT_FALSE(strip.can_page_forward());
    strip.next_page();
    EXPECT_EQ(strip.first(), 46);
    EXPECT_EQ(strip.tile_at(4, 640), 46);
    EXPECT_EQ(strip.tile_at(4 + 13 * 24, 640), 59);
    EXPECT_EQ(strip.tile_at(4 + 14 * 24, 640), -1);
    // Deleting tiles under a paged strip brings the last ones back into view.
    store.go_to(59);
    for (int i = 0; i < 20; ++i) store.delete_tile();
    strip.make_current_visible();
    EXPECT_EQ(strip.first(), 39);
    strip.previous_page();
    strip.previous_page();
    EXPECT_EQ(strip.first(), 0);
    EXPECT_FALSE(strip.can_page_back());
}
