#include "model/tile/tile_store.h"

#include <gtest/gtest.h>

#include <vector>


namespace {

// Tile i of the store gets red i at its top-left pixel, to tell tiles apart.
void add_marked(Tile_Store& store, int count) {
    for (int i = 0; i < count; ++i) {
        store.add_tile();
        store.current_tile()->set_pixel(0, 0, Color(uint8_t(i + 1), 0, 0));
    }
}

std::vector<int> marks(const Tile_Store& store) {
    std::vector<int> result;
    for (const auto& tile : store.all()) result.push_back(tile->get_pixel(0, 0).red);
    return result;
}

int current_mark(Tile_Store& store) { return store.current_tile()->get_pixel(0, 0).red; }

TEST(TileStore, AddInsertAndInsertCopyPlaceTilesAndAFullStoreRefusesThem) {
    Tile_Store store(4, 4, 256);
    add_marked(store, 3);
    EXPECT_EQ(store.current_index(), 2);
    store.go_to(1);
    ASSERT_TRUE(store.insert_tile());  // a blank tile before the current one
    EXPECT_EQ(marks(store), (std::vector<int>{1, 0, 2, 3}));
    EXPECT_EQ(store.current_index(), 1);
    Tile source(4, 4);
    source.set_pixel(0, 0, Color(77, 0, 0));
    store.go_to(0);
    ASSERT_TRUE(store.insert_copy(source));  // a copy right after the current one
    EXPECT_EQ(marks(store), (std::vector<int>{1, 77, 0, 2, 3}));
    EXPECT_EQ(current_mark(store), 77);
    store.go_to(4);
    ASSERT_TRUE(store.insert_copy(*store.current_tile()));  // at the last tile it appends
    EXPECT_EQ(marks(store), (std::vector<int>{1, 77, 0, 2, 3, 3}));
    EXPECT_EQ(store.current_index(), 5);

    Tile small(2, 2);
    small.fill(Color(0, 0, 0, 0));
    ASSERT_TRUE(store.insert_copy(small));  // resampled to the store's size, opaque
    EXPECT_EQ(store.current_tile()->width(), 4);
    EXPECT_EQ(store.current_tile()->get_pixel(3, 3).alpha, 255);

    Tile_Store full(6, 6, 256);
    for (int i = 0; i < 256; ++i) ASSERT_TRUE(full.add_tile());
    full.go_to(10);
    EXPECT_FALSE(full.add_tile());
    EXPECT_FALSE(full.insert_tile());
    EXPECT_FALSE(full.insert_copy(source));
    EXPECT_EQ(full.tile_count(), 256);
    EXPECT_EQ(full.current_index(), 10);
}

TEST(TileStore, MovingStopsAtTheEndsAndDeletingKeepsAPlace) {
    Tile_Store store(4, 4, 256);
    add_marked(store, 4);
    store.go_to(0);
    EXPECT_FALSE(store.previous());
    EXPECT_TRUE(store.next());
    store.go_to(99);
    EXPECT_EQ(store.current_index(), 3);
    EXPECT_FALSE(store.next());
    store.go_to(-5);
    EXPECT_EQ(current_mark(store), 1);

    store.go_to(1);
    EXPECT_TRUE(store.delete_tile());  // the following tile takes the place
    EXPECT_EQ(marks(store), (std::vector<int>{1, 3, 4}));
    EXPECT_EQ(current_mark(store), 3);
    store.go_to(2);
    EXPECT_TRUE(store.delete_tile());  // deleting the last makes the new last current
    EXPECT_EQ(current_mark(store), 3);
    EXPECT_TRUE(store.is_last());

    Tile_Store one(4, 4, 256);
    add_marked(one, 1);
    EXPECT_FALSE(one.delete_tile());  // the only tile is cleared, not removed
    ASSERT_EQ(one.tile_count(), 1);
    for (int i = 0; i < 16; ++i) EXPECT_EQ(one.tile_at(0)->pixels()[i], Color(0, 0, 0, 0));
}

}  // namespace
