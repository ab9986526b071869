#include "model/tile/tile_store.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/fake_tile_texture.h"

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

TEST(TileStoreAdding, AddAppendsAndMakesTheNewTileCurrent) {
    Tile_Store store(8, 6, 256);
    EXPECT_EQ(store.tile_count(), 0);
    EXPECT_EQ(store.current_tile(), nullptr);
    ASSERT_TRUE(store.add_tile());
    ASSERT_TRUE(store.add_tile());
    EXPECT_EQ(store.tile_count(), 2);
    EXPECT_EQ(store.current_index(), 1);
    EXPECT_TRUE(store.is_last());
    EXPECT_EQ(store.current_tile(), store.tile_at(1));
    EXPECT_EQ(store.current_tile()->width(), 8);
    EXPECT_EQ(store.current_tile()->height(), 6);
}

TEST(TileStoreAdding, AFullStoreRefusesAddInsertAndInsertCopy) {
    Tile_Store store(6, 6, 256);
    for (int i = 0; i < 256; ++i) ASSERT_TRUE(store.add_tile());
    EXPECT_TRUE(store.is_full());
    Tile source(6, 6);
    EXPECT_FALSE(store.add_tile());
    EXPECT_FALSE(store.insert_tile());
    EXPECT_FALSE(store.insert_copy(source));
    store.go_to(10);
    EXPECT_FALSE(store.insert_tile());
    EXPECT_FALSE(store.insert_copy(source));
    EXPECT_EQ(store.tile_count(), 256);
    EXPECT_EQ(store.current_index(), 10);
}

TEST(TileStoreAdding, InsertPutsABlankTileBeforeTheCurrentOneAndKeepsTheIndex) {
    Tile_Store store(4, 4, 256);
    add_marked(store, 3);
    store.go_to(1);
    ASSERT_TRUE(store.insert_tile());
    EXPECT_EQ(store.current_index(), 1);
    EXPECT_EQ(marks(store), (std::vector<int>{1, 0, 2, 3}));
    EXPECT_EQ(store.current_tile()->get_pixel(0, 0), Color());
}

TEST(TileStoreAdding, InsertCopyAtTheLastTileAppends) {
    Fake_Texture_Scope textures;
    Tile_Store store(4, 4, 256);
    add_marked(store, 2);
    Tile source(4, 4);
    source.set_pixel(0, 0, Color(77, 0, 0));
    ASSERT_TRUE(store.insert_copy(source));
    EXPECT_EQ(marks(store), (std::vector<int>{1, 2, 77}));
    EXPECT_EQ(store.current_index(), 2);
    EXPECT_TRUE(texture_is_current(*store.current_tile()));
}

TEST(TileStoreAdding, InsertCopyElsewherePlacesTheCopyRightAfterTheCurrentTile) {
    Tile_Store store(4, 4, 256);
    add_marked(store, 3);
    store.go_to(0);
    Tile source(4, 4);
    source.set_pixel(0, 0, Color(77, 0, 0));
    ASSERT_TRUE(store.insert_copy(source));
    EXPECT_EQ(marks(store), (std::vector<int>{1, 77, 2, 3}));
    EXPECT_EQ(store.current_index(), 1);
    EXPECT_EQ(current_mark(store), 77);
}

TEST(TileStoreAdding, InsertCopyOfTheCurrentTileDuplicatesIt) {
    Tile_Store store(4, 4, 256);
    add_marked(store, 3);
    store.go_to(1);
    ASSERT_TRUE(store.insert_copy(*store.current_tile()));
    EXPECT_EQ(marks(store), (std::vector<int>{1, 2, 2, 3}));
}

TEST(TileStoreAdding, InsertCopyOfAnotherSizeIsResampledAndShown) {
    Fake_Texture_Scope textures;
    Tile_Store store(8, 8, 256);
    add_marked(store, 1);
    Tile source(4, 4);
    source.fill(Color(0, 0, 0, 0));
    ASSERT_TRUE(store.insert_copy(source));
    Tile& copy = *store.current_tile();
    EXPECT_EQ(copy.width(), 8);
    EXPECT_EQ(copy.get_pixel(7, 7).alpha, 255);
    EXPECT_TRUE(texture_is_current(copy));
}

TEST(TileStoreMoving, NextAndPreviousStopAtTheEnds) {
    Tile_Store store(4, 4, 256);
    add_marked(store, 3);
    store.go_to(0);
    EXPECT_FALSE(store.previous());
    EXPECT_EQ(store.current_index(), 0);
    EXPECT_TRUE(store.next());
    EXPECT_TRUE(store.next());
    EXPECT_FALSE(store.next());
    EXPECT_EQ(store.current_index(), 2);
    EXPECT_EQ(current_mark(store), 3);
    EXPECT_TRUE(store.previous());
    EXPECT_EQ(current_mark(store), 2);
}

TEST(TileStoreMoving, GoToStopsAtTheLastTile) {
    Tile_Store store(4, 4, 256);
    add_marked(store, 4);
    store.go_to(2);
    EXPECT_EQ(store.current_index(), 2);
    EXPECT_EQ(current_mark(store), 3);
    store.go_to(99);
    EXPECT_EQ(store.current_index(), 3);
    store.go_to(-5);
    EXPECT_EQ(store.current_index(), 0);
    EXPECT_EQ(current_mark(store), 1);
}

TEST(TileStoreMoving, AnEmptyStoreGoesNowhere) {
    Tile_Store store(4, 4, 256);
    EXPECT_FALSE(store.next());
    EXPECT_FALSE(store.previous());
    store.go_to(3);
    EXPECT_EQ(store.current_tile(), nullptr);
    EXPECT_FALSE(store.delete_tile());
    EXPECT_EQ(store.pixel_of_current(0, 0), Color(0, 0, 0, 0));
}

TEST(TileStoreDeleting, TheOnlyTileIsClearedNotRemoved) {
    Fake_Texture_Scope textures;
    Tile_Store store(4, 4, 256);
    add_marked(store, 1);
    EXPECT_FALSE(store.delete_tile());
    ASSERT_EQ(store.tile_count(), 1);
    for (int i = 0; i < 16; ++i) EXPECT_EQ(store.tile_at(0)->pixels()[i], Color(0, 0, 0, 0));
    EXPECT_EQ(Fake_Texture_Scope::of(*store.tile_at(0)).updates, 0);
}

TEST(TileStoreDeleting, TheFollowingTileTakesTheIndex) {
    Tile_Store store(4, 4, 256);
    add_marked(store, 3);
    store.go_to(1);
    EXPECT_TRUE(store.delete_tile());
    EXPECT_EQ(marks(store), (std::vector<int>{1, 3}));
    EXPECT_EQ(store.current_index(), 1);
    EXPECT_EQ(current_mark(store), 3);
}

TEST(TileStoreDeleting, DeletingTheLastMakesTheNewLastCurrent) {
    Tile_Store store(4, 4, 256);
    add_marked(store, 3);
    EXPECT_TRUE(store.delete_tile());
    EXPECT_EQ(store.current_index(), 1);
    EXPECT_EQ(current_mark(store), 2);
    EXPECT_TRUE(store.is_last());
}

TEST(TileStoreSwapping, SwapExchangesTwoTilesAndKeepsTheCurrentPlace) {
    Tile_Store store(4, 4, 256);
    add_marked(store, 4);
    store.go_to(1);
    EXPECT_TRUE(store.swap_tiles(1, 3));
    EXPECT_EQ(marks(store), (std::vector<int>{1, 4, 3, 2}));
    EXPECT_EQ(store.current_index(), 1);
    EXPECT_EQ(current_mark(store), 4);
    EXPECT_TRUE(store.swap_tiles(3, 0));
    EXPECT_EQ(marks(store), (std::vector<int>{2, 4, 3, 1}));
    // Refused: nothing moves.
    EXPECT_FALSE(store.swap_tiles(2, 2));
    EXPECT_FALSE(store.swap_tiles(0, 4));
    EXPECT_FALSE(store.swap_tiles(-1, 0));
    EXPECT_EQ(marks(store), (std::vector<int>{2, 4, 3, 1}));
    EXPECT_EQ(current_mark(store), 4);
}

TEST(TileStoreSizes, ByteCounts) {
    Tile_Store store(24, 24, 256);
    add_marked(store, 3);
    EXPECT_EQ(store.tile_bytes(), 24u * 24 * 4);
    EXPECT_EQ(store.total_bytes(), 3u * 24 * 24 * 4);
    EXPECT_EQ(store.pixel_of_current(0, 0), Color(3, 0, 0));
}

TEST(TileStoreSizes, ResizeReplacesEveryTileAndRewinds) {
    Fake_Texture_Scope textures;
    Tile_Store store(24, 24, 256);
    add_marked(store, 3);
    for (const auto& tile : store.all()) tile->fill(Color(0, 0, 0, 0));
    store.resize(48, 48);
    EXPECT_EQ(store.tile_width(), 48u);
    EXPECT_EQ(store.tile_height(), 48u);
    EXPECT_EQ(store.current_index(), 0);
    EXPECT_EQ(store.current_tile(), store.tile_at(0));
    store.resize(24, 24);
    for (const auto& tile : store.all()) {
        EXPECT_EQ(tile->width(), 24);
        EXPECT_TRUE(texture_is_current(*tile));
        for (int i = 0; i < tile->pixel_count(); ++i) EXPECT_EQ(tile->pixels()[i].alpha, 255);
    }
}

TEST(TileStoreSizes, ClearEmptiesTheList) {
    Tile_Store store(4, 4, 256);
    add_marked(store, 3);
    store.clear();
    EXPECT_EQ(store.tile_count(), 0);
    EXPECT_EQ(store.current_tile(), nullptr);
    EXPECT_TRUE(store.add_tile());
    EXPECT_EQ(store.current_index(), 0);
}

TEST(TileStoreSizes, AppendIgnoresTheMaximum) {
    Tile_Store store(2, 2, 1);
    store.append(std::make_unique<Tile>(2, 2));
    store.append(std::make_unique<Tile>(2, 2));
    EXPECT_EQ(store.tile_count(), 2);
    EXPECT_EQ(store.current_index(), 0);
    EXPECT_EQ(store.current_tile(), store.tile_at(0));
}

}  // namespace
