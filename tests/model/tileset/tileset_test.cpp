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
    p.set("plain");
    EXPECT_EQ(p.name, "plain");
    EXPECT_EQ(p.extension, "");
    p.set("dir/");
    EXPECT_EQ(p.name, "");
}

TEST(TilesetStatistics, TextReportsTilesSizesAndFileSize) {
    Tileset t("/tmp/two.wst", 24, 24);
    t.store().add_tile();
    t.store().add_tile();
    EXPECT_EQ(t.statistics_text(),
              "Tile memory\r Tiles: 2 x 2304 = 4608 bytes\r Size: 24 x 24 pixels\r File size: "
              "4619 bytes\r\rFilename:\r/tmp/two.wst");
}

}  // namespace
