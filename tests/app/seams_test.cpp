// Where two parts of the editor meet: the tile list and the undo history,
// the floating image and Save, the map and its file, the tabs.

#include <sys/stat.h>

#include <fstream>

#include "app/application.h"
#include "app/map_files.h"
#include "app/tool_options.h"
#include "app/undo_control.h"
#include "model/color/palette.h"
#include "model/tileset/tileset_file.h"
#include "model/map/map_file.h"
#include "app/selection/selection_tools.h"
#include "support/editor_fixture.h"

namespace fs = std::filesystem;

namespace {
const Color blue(0, 0, 255);
const Color red(255, 0, 0);
const Color green(0, 255, 0);

std::vector<Color> colours(const Tile_Store& store) {
    std::vector<Color> out;
    for (const auto& tile : store.all()) out.push_back(tile->get_pixel(0, 0));
    return out;
}
}  // namespace

class SeamsTest : public Editor_Fixture {
protected:
    Tileset& tileset() { return *g_editor->current(); }
    Tile_Store& store() { return tileset().store(); }
    // Tiles of the given colours, the first one current.
    void make_tiles(std::initializer_list<Color> list) {
        bool first = true;
        for (const Color c : list) {
            if (!first) store().add_tile();
            store().current_tile()->fill(c);
            store().current_tile()->update_texture();
            first = false;
        }
        store().go_to(0);
        tileset().history().restart(store());
        g_editor->canvas().set_tile(store().current_tile());
    }
    void save_as(const fs::path& path) {
        answer_files_with(path.string());
        run(command_save_as);
    }
    Temp_Dir dir;
};

TEST_F(SeamsTest, UndoAndRedoOfTheTileListGiveBackTheTilesInOrderWithTheirMapCells) {
    make_tiles({blue, red, green});
    const std::vector<Color> start = colours(store());

    // The cells that named a deleted tile come back with it, also after a
    // redo; a cell painted anew while the tile was away keeps its tile.
    Map_Editor& map = tileset().map();
    map.place(0, 0, 1);
    map.place(3, 2, 1);
    map.place(4, 4, 2);
    store().go_to(1);
    g_editor->canvas().set_tile(store().current_tile());
    run(command_delete_tile);
    EXPECT_EQ(map.map().at(0, 0), Tile_Map::empty);
    EXPECT_EQ(map.map().at(4, 4), 1);
    map.place(3, 2, 0);
    run(command_undo);
    EXPECT_EQ(colours(store()), start);
    EXPECT_EQ(map.map().at(0, 0), 1);
    EXPECT_EQ(map.map().at(3, 2), 0);
    EXPECT_EQ(map.map().at(4, 4), 2);
    run(command_redo);
    run(command_undo);
    EXPECT_EQ(map.map().at(0, 0), 1);
    // A layer removed, and a terrain set marked, before the tile was deleted
    // bring the tile's cells and corners back with it.
    Terrain_Set set;
    set.add_terrain(), set.add_terrain();
    set.set_corners(1, {1, 1, 2, 2});
    ASSERT_TRUE(map.set_terrain(set));
    ASSERT_TRUE(map.add_layer());
    map.place(5, 5, 1);
    ASSERT_TRUE(map.remove_layer());
    ASSERT_TRUE(map.remove_terrain(1));
    EXPECT_EQ(map.terrain().corners(1), (Terrain_Set::Corners{0, 0, 1, 1}));
    run(command_delete_tile);
    run(command_undo);
    ASSERT_TRUE(map.undo());
    EXPECT_TRUE(map.terrain() == set) << "the removal undone, the tile's corners back";
    ASSERT_TRUE(map.undo());
    EXPECT_EQ(map.map().at(5, 5), 1);
    ASSERT_TRUE(map.undo());
    ASSERT_TRUE(map.undo());
    EXPECT_TRUE(map.terrain().is_empty()) << "marking the set was a step too";

    // With one tile, delete clears it and redo clears it again.
    ASSERT_TRUE(g_editor->tilesets().new_tileset(8, 8));
    make_tiles({red});
    run(command_delete_tile);
    run(command_undo);
    EXPECT_EQ(colours(store()), std::vector<Color>{red});
    run(command_redo);
    EXPECT_EQ(colours(store()), std::vector<Color>{Color(0, 0, 0, 0)});
}

TEST_F(SeamsTest, SaveWritesAFloatingImageWhereItIsSeenAndTabsKeepTheirTiles) {
    make_tiles({blue, red});
    Canvas_View& view = g_editor->canvas();
    // A red 2 x 2 at the top-left of the blue tile, lifted and moved to (10, 10).
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 2; ++x) {
            store().current_tile()->set_pixel(x, y, red);
            view.tile_selection().mask()->set_pixel(x, y, Color(255, 255, 255));
        }
    view.tile_selection().set_active(true);
    ASSERT_TRUE(g_editor->selection().float_selection(true));
    view.tile_selection().move_float(10, 10);
    g_editor->undo().record(command_work_selection);
    ASSERT_TRUE(tileset().is_modified());
    const fs::path path = dir.path / "moved.wst";
    save_as(path);
    EXPECT_FALSE(tileset().is_modified());
    EXPECT_TRUE(view.tile_selection().float_pending()) << "the image still floats, ready to move";
    const std::unique_ptr<Tile_Store> saved = Tileset_File::read(path.string());
    ASSERT_NE(saved, nullptr);
    EXPECT_EQ(saved->tile_at(0)->get_pixel(10, 10), red);
    EXPECT_EQ(saved->tile_at(0)->get_pixel(0, 0), Color(0, 0, 0, 0)) << "lifted from there";

    // Persistent: the image goes to another tab and lands on the tile shown
    // there, which is the one left current in that tab, not the first.
    g_tool_options->set_selection_mode(Selection_Tools::persistent);
    Tileset& first = tileset();
    ASSERT_TRUE(g_editor->tilesets().new_tileset(24, 24));
    Tileset& second = tileset();
    second.store().add_tile();
    g_editor->tilesets().make_current(first);
    g_editor->tilesets().make_current(second);
    EXPECT_EQ(second.store().current_index(), 1);
    EXPECT_EQ(view.tile(), second.store().tile_at(1));
    ASSERT_TRUE(view.tile_selection().float_pending());
    run(command_deselect);
    EXPECT_EQ(second.store().tile_at(1)->get_pixel(10, 10), red);
    // Each tab's history holds its side: undo in the first brings the image back there.
    g_editor->tilesets().make_current(first);
    run(command_undo);
    EXPECT_TRUE(view.tile_selection().float_pending());
}

// A map file written by other map tools keeps everything this editor does
// not edit; a file changed on disk, or a foreign one, is replaced only after
// a yes, and while the map is unsaved the tileset stays marked modified.
TEST_F(SeamsTest, TheMapFileKeepsWhatOtherToolsWroteAndIsNeverLostOrRemoved) {
    const fs::path wst = dir.path / "level.1.wst";
    const fs::path tmx = dir.path / "level.1.tmx";
    const std::string objects =
        "  <objectgroup id=\"3\" name=\"Spawns\" opacity=\"0.5\" offsetx=\"4\" tintcolor=\"#ff0000\">\n"
        "   <object id=\"1\" x=\"8\" y=\"16\"><properties><property name=\"kind\" value=\"bat &amp; ball\"/>"
        "</properties></object>\n  </objectgroup>\n";
    const std::string foreign =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<map version=\"1.10\" tiledversion=\"1.11.0\" orientation=\"orthogonal\" renderorder=\"right-down\" "
        "width=\"5\" height=\"4\" tilewidth=\"24\" tileheight=\"24\" infinite=\"0\" nextlayerid=\"5\" "
        "nextobjectid=\"2\">\n <properties>\n  <property name=\"music\" value=\"cave.ogg\"/>\n </properties>\n"
        " <tileset firstgid=\"3\" source=\"terrain.tsx\"/>\n"
        " <layer id=\"1\" name=\"Ground\" width=\"5\" height=\"4\" opacity=\"0.8\">\n  <data encoding=\"csv\">\n"
        "3,4,0,0,0,\n0,0,0,0,0,\n0,0,0,0,0,\n0,0,0,0,4\n</data>\n </layer>\n" +
        objects + " <imagelayer id=\"4\" name=\"Sky\"><image source=\"sky.png\"/></imagelayer>\n</map>\n";
    make_tiles({blue, red});
    Tileset_File::write(store(), wst.string());
    std::ofstream(tmx, std::ios::binary) << foreign;
    ASSERT_TRUE(g_editor->tilesets().open_file(wst.string()));
    load_map(tileset());
    Tileset& t = tileset();
    EXPECT_FALSE(t.is_modified());
    EXPECT_EQ(t.map().map().at(1, 0), 1);
    EXPECT_EQ(t.map().map().at(4, 3), 1);

    // Saving the tiles alone leaves the map file and the sheet name alone.
    t.set_path(wst.string());
    t.set_modified();
    run(command_save);
    EXPECT_EQ(read_text(tmx.string()), foreign);
    EXPECT_FALSE(fs::exists(dir.path / "level.1.bmp")) << "the map draws from terrain.tsx, not the sheet";

    // A painted cell is written into the tile layer; the rest stays as it was.
    t.map().place(2, 1, 0);
    EXPECT_TRUE(t.is_modified());
    run(command_save);
    const std::string after = read_text(tmx.string());
    EXPECT_NE(after.find(objects), std::string::npos) << after;
    EXPECT_NE(after.find("<imagelayer id=\"4\" name=\"Sky\"><image source=\"sky.png\"/></imagelayer>"),
              std::string::npos);
    EXPECT_NE(after.find("<property name=\"music\" value=\"cave.ogg\"/>"), std::string::npos);
    EXPECT_NE(after.find("opacity=\"0.8\""), std::string::npos);
    EXPECT_NE(after.find("0,0,3,0,0"), std::string::npos) << "counted from the tileset's firstgid: " << after;
    EXPECT_FALSE(t.is_modified());

    // Changed by another tool: the question; no keeps the file and the mark.
    std::ofstream(tmx, std::ios::binary | std::ios::app) << "<!-- edited elsewhere -->\n";
    const std::string edited = read_text(tmx.string());
    t.map().place(3, 1, 0);
    Event_Script script;
    script.then([] { push_key(SDLK_ESCAPE); });
    g_editor->run_command(command_save);
    EXPECT_EQ(script.left(), 0u) << "no question was asked";
    EXPECT_EQ(read_text(tmx.string()), edited);
    EXPECT_TRUE(t.is_modified()) << "the map is not saved: Quit and Close must warn";
    script.then([] { push_key(SDLK_Y); });
    g_editor->run_command(command_save);
    EXPECT_NE(read_text(tmx.string()).find("<!-- edited elsewhere -->"), std::string::npos);
    EXPECT_FALSE(t.is_modified());

    // An emptied map is written empty, never removed; a new size keeps the cells that fit.
    for (int x = 0; x < 5; ++x)
        for (int y = 0; y < 4; ++y) t.map().place(x, y, Tile_Map::empty);
    run(command_save);
    ASSERT_TRUE(fs::exists(tmx));
    t.map().place(1, 1, 1);
    EXPECT_EQ(t.resize_tiles(12, 12), 0);
    EXPECT_EQ(t.map().map().at(1, 1), 1);
    run(command_save);
    ASSERT_TRUE(fs::exists(tmx));
    Map_Editor back(12, 12);
    EXPECT_TRUE(Map_File::read(tmx.string(), back, 12, 12, 2).whole);
    EXPECT_EQ(back.map().at(1, 1), 1);
}

TEST_F(SeamsTest, MapAndSheetAreWrittenSafelyAndNeverThroughALink) {
    make_tiles({blue});
    const fs::path wst = dir.path / "cave.wst";
    const fs::path elsewhere = dir.path / "other";
    fs::create_directory(elsewhere);
    std::ofstream(elsewhere / "keep.bmp") << "the user's picture";
    fs::create_symlink(elsewhere / "keep.bmp", dir.path / "cave.bmp");
    tileset().map().place(0, 0, 0);
    save_as(wst);
    EXPECT_EQ(read_text((elsewhere / "keep.bmp").string()), "the user's picture");
    EXPECT_FALSE(fs::exists(dir.path / "cave.tmx"));
    EXPECT_TRUE(tileset().is_modified()) << "the map was not saved";
    fs::remove(dir.path / "cave.bmp");

    // Every step of a write failing: the old files stay whole, nothing is left beside them.
    run(command_save);
    ASSERT_FALSE(tileset().is_modified());
    const std::string map_before = read_text((dir.path / "cave.tmx").string());
    const std::string tiles_before = read_text(wst.string());
    tileset().map().place(1, 0, 0);
    store().current_tile()->fill(red);
    tileset().set_modified();
    for (const safe_file::Step step :
         {safe_file::Step::create, safe_file::Step::write, safe_file::Step::sync, safe_file::Step::rename}) {
        safe_file::inject_fault(step);
        run(command_save);
        safe_file::inject_fault(safe_file::Step::none);
        EXPECT_EQ(read_text(wst.string()), tiles_before);
        EXPECT_EQ(read_text((dir.path / "cave.tmx").string()), map_before);
        EXPECT_TRUE(tileset().is_modified());
        int files = 0;
        for ([[maybe_unused]] const auto& entry : fs::directory_iterator(dir.path)) ++files;
        EXPECT_EQ(files, 4) << "cave.wst, cave.tmx, cave.bmp and the folder";
    }
    // A read-only map file is refused, not replaced: its mode stays.
    chmod((dir.path / "cave.tmx").c_str(), 0444);
    run(command_save);
    EXPECT_EQ(read_text((dir.path / "cave.tmx").string()), map_before);
    EXPECT_TRUE(tileset().is_modified());
    chmod((dir.path / "cave.tmx").c_str(), 0644);
}

TEST_F(SeamsTest, TheModifiedMarkFollowsTheHistoryBackToTheSavedState) {
    make_tiles({blue, red});
    save_as(dir.path / "marked.wst");
    ASSERT_FALSE(tileset().is_modified());
    run(command_add_new_tile);
    EXPECT_TRUE(tileset().is_modified());
    run(command_undo);
    EXPECT_FALSE(tileset().is_modified()) << "back to what was saved";
    EXPECT_STREQ(SDL_GetWindowTitle(g_main_window->window()), "Mosswick 0.88 - marked");
    run(command_redo);
    EXPECT_TRUE(tileset().is_modified());
    // Choosing another tile, selecting and deselecting change nothing that is
    // saved, nor does undoing them.
    run(command_undo);
    run(command_next_tile);
    g_editor->canvas().tile_selection().mask()->fill(Color(255, 255, 255));
    g_editor->canvas().tile_selection().set_active(true);
    g_editor->undo().record(command_rectangle_selector);
    run(command_deselect);
    EXPECT_FALSE(tileset().is_modified());
    run(command_undo);
    EXPECT_FALSE(tileset().is_modified());
}
