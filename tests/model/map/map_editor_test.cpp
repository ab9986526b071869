// The map's cells and history following the tile list, and its edits.
#include "model/map/map_editor.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "model/tileset/tileset.h"

namespace {

// The cells of the first row, left to right.
std::vector<int> first_row(const Map_Editor& m, int n) {
    std::vector<int> row;
    for (int x = 0; x < n; ++x) row.push_back(m.map().at(x, 0));
    return row;
}

TEST(MapEditor, CellsAndHistoryFollowDeleteInsertAndSwapOfTiles) {
    Tileset t("forest.wst", 24, 24);
    for (int i = 0; i < 4; ++i) t.store().add_tile();
    Map_Editor& m = t.map();
    ASSERT_EQ(m.map().columns(), 20);
    ASSERT_EQ(m.map().rows(), 20);
    m.begin_stroke();
    for (int x = 0; x < 4; ++x) m.paint(x, 0, x);
    m.end_stroke();
    // A later edit the history must keep naming the same tile: tile 3 in cell (5, 0).
    m.begin_stroke();
    m.paint(5, 0, 3);
    m.end_stroke();

    t.store().go_to(1);
    ASSERT_TRUE(t.store().delete_tile());
    EXPECT_EQ(first_row(m, 6), (std::vector<int>{0, -1, 1, 2, -1, 2}));

    t.store().go_to(0);
    ASSERT_TRUE(t.store().insert_tile());  // before tile 0: every index moves up
    EXPECT_EQ(first_row(m, 6), (std::vector<int>{1, -1, 2, 3, -1, 3}));

    ASSERT_TRUE(t.store().swap_tiles(1, 3));
    EXPECT_EQ(first_row(m, 6), (std::vector<int>{3, -1, 2, 1, -1, 1}));

    // The history names the tile that was painted, wherever it went.
    ASSERT_TRUE(m.undo());
    EXPECT_EQ(m.map().at(5, 0), Tile_Map::empty);
    ASSERT_TRUE(m.redo());
    EXPECT_EQ(m.map().at(5, 0), 1);
    ASSERT_TRUE(m.undo());
    ASSERT_TRUE(m.undo());
    EXPECT_TRUE(m.map().is_blank());
    ASSERT_TRUE(m.redo());
    EXPECT_EQ(first_row(m, 6), (std::vector<int>{3, -1, 2, 1, -1, -1}));

    // Deleting the only tile clears it and keeps it, so its cells stay.
    Tileset single("one.wst", 24, 24);
    single.store().add_tile();
    single.map().place(2, 2, 0);
    EXPECT_FALSE(single.store().delete_tile());
    EXPECT_EQ(single.map().map().at(2, 2), 0);
}

TEST(MapEditor, ANewTileSizeMakesANewMapOfItsCellCountKeepingTheCellsThatFit) {
    Tileset t("forest.wst", 24, 24);
    t.store().add_tile();
    t.map().place(1, 1, 0);
    t.map().begin_stroke();
    t.map().paint(2, 2, 0);
    t.map().end_stroke();
    t.map().own_file = "forest.tmx";
    Terrain_Set set;
    set.add_terrain();
    set.set_corners(0, {1, 1, 1, 1});
    t.map().set_terrain(set);
    EXPECT_EQ(t.resize_tiles(6, 32), 0);
    EXPECT_TRUE(t.map().terrain() == set) << "the same tiles keep their terrains";
    EXPECT_EQ(t.map().map().columns(), 80);
    EXPECT_EQ(t.map().map().rows(), 15);
    EXPECT_EQ(t.map().map().at(1, 1), 0);
    EXPECT_EQ(t.map().map().at(2, 2), 0);
    EXPECT_FALSE(t.map().is_saved()) << "the map file must be written for the new size";
    EXPECT_FALSE(t.map().undo()) << "the old map's history went with it";
    EXPECT_EQ(t.map().own_file, "forest.tmx") << "the file beside the tileset is still this tileset's";
    // Larger tiles, fewer cells: what no longer fits is counted, and the old
    // file keeps it until the user agrees to replace it.
    t.map().place(70, 1, 0);
    EXPECT_EQ(t.resize_tiles(24, 24), 1);
    EXPECT_EQ(t.map().map().at(1, 1), 0);
    EXPECT_TRUE(t.map().own_file.empty());

    // And the new map follows the store as the old one did.
    t.map().place(0, 0, 0);
    t.store().go_to(0);
    t.store().insert_tile();
    EXPECT_EQ(t.map().map().at(0, 0), 1);
    // Sizes that do not divide 480 leave the rest out.
    Tileset odd("odd.wst", 64, 7);
    EXPECT_EQ(odd.map().map().columns(), 7);
    EXPECT_EQ(odd.map().map().rows(), 68);
}

TEST(MapEditor, FillTakesTheJoinedCellsAndUndoesAsOneStep) {
    Map_Editor m(48, 48);  // 10 x 10 cells
    // A wall of tile 1 down column 4 splits the map; (4, 9) is left open.
    m.begin_stroke();
    m.paint_line(4, 0, 4, 8, 1);
    EXPECT_TRUE(m.end_stroke());
    EXPECT_EQ(m.history().count(), 1u) << "a stroke is one step";

    EXPECT_TRUE(m.fill(0, 0, 2));
    int twos = 0;
    for (int c = 0; c < m.map().cell_count(); ++c) twos += m.map().at(c) == 2;
    EXPECT_EQ(twos, 100 - 9) << "through the gap below the wall, not across it";
    EXPECT_EQ(m.map().at(4, 3), 1);
    EXPECT_FALSE(m.fill(9, 9, 2)) << "filling with what is there changes nothing";
    EXPECT_EQ(m.history().count(), 2u);

    // Filling the wall replaces only the wall; erasing fills with empty.
    EXPECT_TRUE(m.fill(4, 0, 3));
    EXPECT_EQ(m.map().at(4, 8), 3);
    EXPECT_EQ(m.map().at(4, 9), 2);
    EXPECT_TRUE(m.fill(4, 2, Tile_Map::empty));
    EXPECT_EQ(m.map().at(4, 5), Tile_Map::empty);

    ASSERT_TRUE(m.undo());
    ASSERT_TRUE(m.undo());
    EXPECT_EQ(m.map().at(4, 5), 1);
    ASSERT_TRUE(m.undo());
    EXPECT_EQ(m.map().at(0, 0), Tile_Map::empty);
    EXPECT_EQ(m.map().at(9, 9), Tile_Map::empty);
    EXPECT_EQ(m.map().at(4, 8), 1);
    ASSERT_TRUE(m.redo());
    EXPECT_EQ(m.map().at(9, 9), 2);
    // A new edit drops the steps that could be redone.
    m.begin_stroke();
    m.paint(0, 0, 5);
    m.paint(0, 0, 6);
    m.end_stroke();
    EXPECT_FALSE(m.redo());
    ASSERT_TRUE(m.undo());
    EXPECT_EQ(m.map().at(0, 0), 2) << "a cell painted twice in a stroke undoes to what it held before";
}

}  // namespace

namespace {
TEST(MapEditor, HistoryDropsItsOldestStepsToStayBounded) {
    // One-pixel tiles: 480 x 480 cells, each fill a quarter of a million.
    Map_Editor tiny(1, 1);
    for (int i = 0; i < 24; ++i) ASSERT_TRUE(tiny.fill(0, 0, i % 2));
    const size_t kept = tiny.history().count();
    EXPECT_GT(kept, 1u);
    EXPECT_LT(kept, 24u);
    EXPECT_LE(tiny.history().cells_kept(), Map_History::most_cells);
    for (size_t i = 0; i < kept; ++i) ASSERT_TRUE(tiny.undo());
    EXPECT_FALSE(tiny.undo());
    EXPECT_EQ(tiny.map().at(7, 7), int(24 - kept) % 2 == 0 ? 1 : 0) << "back to the oldest step kept";
    // Redo is dropped by a new step, and its cells no longer count.
    ASSERT_TRUE(tiny.fill(0, 0, 5));
    EXPECT_EQ(tiny.history().cells_kept(), size_t(480 * 480));
}
}  // namespace

namespace {
std::vector<std::string> names(const Map_Editor& m) {
    std::vector<std::string> all;
    for (int i = 0; i < m.layer_count(); ++i) all.push_back(m.layer(i).name);
    return all;
}

TEST(MapEditor, EachChangeOfTheLayersIsAStepAndARemovedLayerComesBackWhole) {
    Map_Editor m(48, 48);
    m.place(0, 0, 1);
    m.mark_saved();
    ASSERT_TRUE(m.add_layer());
    EXPECT_EQ(m.current_layer(), 1);
    m.show_layer(1, false);
    m.begin_stroke();
    m.paint(2, 2, 5, turn::flip_v);
    m.end_stroke();
    EXPECT_TRUE(m.layer(1).visible) << "a layer painted on shows again";
    EXPECT_EQ(m.layer(0).cells.at(2, 2), Tile_Map::empty) << "the tools paint in the current layer";
    ASSERT_TRUE(m.rename_layer(1, "Trees"));
    ASSERT_TRUE(m.move_layer(1, 0));
    EXPECT_EQ(names(m), (std::vector<std::string>{"Trees", "Tiles"}));
    ASSERT_TRUE(m.remove_layer());
    EXPECT_FALSE(m.remove_layer()) << "the only layer stays";
    EXPECT_EQ(m.map().at(0, 0), 1);
    const size_t steps = m.history().count();
    m.show_layer(0, false);
    EXPECT_EQ(m.history().count(), steps) << "showing and hiding are no steps";
    m.show_layer(0, true);

    ASSERT_TRUE(m.undo());
    EXPECT_EQ(names(m), (std::vector<std::string>{"Trees", "Tiles"}));
    EXPECT_EQ(m.current_layer(), 0);
    EXPECT_EQ(m.map().at(2, 2), 5);
    EXPECT_EQ(m.map().turn_at(2, 2), turn::flip_v);
    ASSERT_TRUE(m.undo());
    ASSERT_TRUE(m.undo());
    EXPECT_EQ(names(m), (std::vector<std::string>{"Tiles", "Layer 2"}));
    ASSERT_TRUE(m.undo());
    EXPECT_EQ(m.layer(1).cells.at(2, 2), Tile_Map::empty);
    ASSERT_TRUE(m.undo());
    EXPECT_EQ(m.layer_count(), 1);
    for (int i = 0; i < 5; ++i) ASSERT_TRUE(m.redo());
    EXPECT_EQ(names(m), (std::vector<std::string>{"Tiles"}));
    ASSERT_TRUE(m.undo());
    EXPECT_EQ(m.layer(0).cells.at(2, 2), 5);
    EXPECT_FALSE(m.is_saved());
    // Layer names never repeat the default ones; a map has at most so many.
    while (m.add_layer()) {
    }
    EXPECT_EQ(m.layer_count(), Map_Editor::most_layers);
    const std::vector<std::string> all = names(m);
    EXPECT_EQ(std::set<std::string>(all.begin(), all.end()).size(), all.size()) << "no two layers share a name";
}
}  // namespace
