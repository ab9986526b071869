#include "model/tileset/tileset_list.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/tileset/tileset_file.h"
#include "support/scratch_dir.h"

namespace {

TEST(TilesetListClose, TheOnlyTilesetMakesWayForAFresh24x24One) {
    Tileset_List list;
    list.new_tileset(40, 40);
    ASSERT_TRUE(list.close_current());
    ASSERT_EQ(list.count(), 1);
    EXPECT_EQ(list.current()->path().full, "untitled2.wst");
    EXPECT_EQ(list.current()->store().tile_width(), 24u);
    EXPECT_EQ(list.current()->store().tile_count(), 1);
}

TEST(TilesetListClose, AModifiedTilesetIsClosedOnlyWhenConfirmed) {
    Tileset_List list;
    list.new_tileset(24, 24);
    list.new_tileset(24, 24);
    list.current()->set_modified();
    EXPECT_FALSE(list.close_current());
    EXPECT_EQ(list.count(), 2);
    int asked = 0;
    bool answer = false;
    list.confirm_close = [&] {
        ++asked;
        return answer;
    };
    EXPECT_FALSE(list.close_current());
    EXPECT_EQ(list.count(), 2);
    EXPECT_TRUE(list.current()->is_modified());
    answer = true;
    EXPECT_TRUE(list.close_current());
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(asked, 2);
    EXPECT_TRUE(list.close_current());
    EXPECT_EQ(asked, 2);
}

TEST(TilesetListOpenFile, ALoadedTilesetBecomesCurrentUnnamedAndUnmodifiedAndARefusedOneChangesNothing) {
    Scratch_Dir dir;
    const std::string path = dir.file("forest.wst");
    Tile_Store store(10, 12, 256);
    store.add_tile();
    store.add_tile();
    ASSERT_GT(Tileset_File::write(store, path), 0);
    write_bytes(dir.file("bad.wst"), {'B', 'A', 'D', 0, 0, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0});
    Tileset_List list;
    list.new_tileset(24, 24);
    EXPECT_FALSE(list.open_file(dir.file("bad.wst")));
    EXPECT_FALSE(list.open_file(dir.file("missing.wst")));
    EXPECT_EQ(list.count(), 1);
    ASSERT_TRUE(list.open_file(path));
    EXPECT_EQ(list.count(), 2);
    Tileset* t = list.current();
    EXPECT_EQ(t->path().full, path);
    EXPECT_EQ(t->display_name(), "forest");
    EXPECT_FALSE(t->is_named());
    EXPECT_FALSE(t->is_modified());
    EXPECT_EQ(t->store().tile_width(), 10u);
    EXPECT_EQ(t->store().current_index(), 0);
}

}  // namespace
