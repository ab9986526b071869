#include "model/tileset/tileset.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(FilePath, NameStopsAtTheFirstDotAfterTheLastSeparator) {
    File_Path p;
    p.set("/home/me/art.v2/forest.tiles.wst");
    EXPECT_EQ(p.full, "/home/me/art.v2/forest.tiles.wst");
    EXPECT_EQ(p.name, "forest");
    EXPECT_EQ(p.extension, "tiles.wst");
    p.set("C:\\work\\cave.wst");
    EXPECT_EQ(p.name, "cave");
    EXPECT_EQ(p.extension, "wst");
    p.set("plain");
    EXPECT_EQ(p.name, "plain");
    EXPECT_EQ(p.extension, "");
    p.set("dir/");
    EXPECT_EQ(p.name, "");
}

TEST(TilesetFlags, NewTilesetIsUnmodifiedUnnamedAndEmpty) {
    Tileset t("untitled1.wst", 24, 16);
    EXPECT_FALSE(t.is_modified());
    EXPECT_FALSE(t.is_named());
    EXPECT_EQ(t.store().tile_count(), 0);
    EXPECT_EQ(t.store().tile_width(), 24u);
    EXPECT_EQ(t.store().tile_height(), 16u);
    EXPECT_EQ(t.store().maximum_count(), 256);
    EXPECT_EQ(t.display_name(), "untitled1");
}

TEST(TilesetFlags, ModifiedShowsAStarAndRefreshesTheNameOnlyOnChange) {
    Tileset t("untitled1.wst", 24, 24);
    int changes = 0;
    t.name_changed = [&] { ++changes; };
    t.set_modified();
    EXPECT_EQ(t.display_name(), "untitled1*");
    t.set_modified();
    EXPECT_EQ(changes, 1);
    t.clear_modified();
    EXPECT_EQ(t.display_name(), "untitled1");
    EXPECT_EQ(changes, 2);
    t.clear_modified();
    EXPECT_EQ(changes, 3);
}

TEST(TilesetFlags, SetPathNamesTheTileset) {
    Tileset t("untitled1.wst", 24, 24);
    t.set_path("/tmp/forest.wst");
    EXPECT_TRUE(t.is_named());
    EXPECT_EQ(t.path().full, "/tmp/forest.wst");
    EXPECT_EQ(t.display_name(), "forest");
}

TEST(TilesetFlags, ReadTilesAreTakenOver) {
    auto tiles = std::make_unique<Tile_Store>(8, 9, 256);
    tiles->add_tile();
    Tileset t("loaded.wst", std::move(tiles));
    EXPECT_EQ(t.store().tile_width(), 8u);
    EXPECT_EQ(t.store().tile_count(), 1);
    EXPECT_FALSE(t.is_named());
}

TEST(TilesetStatistics, TextReportsTilesSizesAndFileSize) {
    Tileset t("/tmp/two.wst", 24, 24);
    t.store().add_tile();
    t.store().add_tile();
    EXPECT_EQ(t.statistics_text(),
              "Tile memory\r Tiles: 2 x 2304 = 4608 bytes\r Size: 24 x 24 pixels\r File size: "
              "4619 bytes\r\rFilename:\r/tmp/two.wst");
}

TEST(TilesetResize, EveryTileTakesTheNewSize) {
    Tileset t("a.wst", 24, 24);
    t.store().add_tile();
    t.store().add_tile();
    t.resize_tiles(12, 30);
    EXPECT_EQ(t.store().tile_width(), 12u);
    EXPECT_EQ(t.store().tile_at(1)->height(), 30);
    EXPECT_EQ(t.store().current_index(), 0);
}

}  // namespace
