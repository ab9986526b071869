// The map kept beside its tileset: written on save, read back on load, and a
// map file this tileset did not read whole never replaced without asking.
#include "app/map_files.h"

#include <fstream>

#include "app/command_line.h"
#include "model/tile/sheet.h"
#include "platform/picture_file.h"

#include "model/tileset/tileset_file.h"
#include "model/map/map_file.h"
#include "support/editor_fixture.h"

class MapFilesTest : public Editor_Fixture {
protected:
    Tileset& tileset() { return *g_editor->current(); }
    // The tileset as a user's save leaves it: the .wst, then its map.
    void save(Tileset& t, bool map_saved = true) {
        ASSERT_GE(Tileset_File::write(t.store(), t.path().full), 0);
        EXPECT_EQ(save_map(t), map_saved);
    }
    Tileset& load(const std::string& path) {
        EXPECT_TRUE(g_editor->tilesets().open_file(path));
        load_map(tileset());
        return tileset();
    }
    Temp_Dir dir;
};

TEST_F(MapFilesTest, TheMapComesBackWithItsTilesetAndABlankMapWritesNothing) {
    const std::string wst = (dir.path / "forest.wst").string();
    const std::string tmx = (dir.path / "forest.tmx").string();
    const std::string bmp = (dir.path / "forest.bmp").string();
    tileset().set_path(wst);
    save(tileset());
    EXPECT_FALSE(std::filesystem::exists(tmx));
    EXPECT_FALSE(std::filesystem::exists(bmp));

    tileset().store().add_tile();
    tileset().store().tile_at(1)->fill(Color(10, 200, 30));
    tileset().map().place(0, 0, 1);
    tileset().map().place(19, 19, 0);
    Event_Script script;  // no steps: a message or question would run it out
    save(tileset());
    ASSERT_TRUE(std::filesystem::exists(tmx) && std::filesystem::exists(bmp));

    // Saved again after a change: its own file is replaced without a question.
    tileset().map().place(5, 5, 1);
    save(tileset());
    EXPECT_FALSE(script.ran_out());

    Tileset& loaded = load(wst);
    EXPECT_NE(&loaded, nullptr);
    EXPECT_FALSE(script.ran_out()) << "a whole map loads without a message";
    EXPECT_EQ(loaded.map().map().at(5, 5), 1);
    EXPECT_EQ(loaded.map().own_file, tmx);
}

TEST_F(MapFilesTest, ADamagedMapIsReportedAndReplacedOnlyWhenTheUserAgrees) {
    const std::string wst = (dir.path / "cave.wst").string();
    const std::string tmx = (dir.path / "cave.tmx").string();
    tileset().set_path(wst);
    tileset().map().place(2, 3, 0);
    save(tileset());
    // Cut short by a crash of some other program.
    const std::string whole = read_text(tmx);
    const std::string damaged = whole.substr(0, whole.size() - 40);
    std::ofstream(tmx, std::ios::binary) << damaged;

    Event_Script script;
    script.then([] { push_key(SDLK_RETURN); });  // the report
    Tileset& loaded = load(wst);
    EXPECT_EQ(script.left(), 0u) << "the report was shown";
    EXPECT_TRUE(loaded.map().map().is_blank());

    loaded.map().place(1, 1, 0);
    script.then([] { push_key(SDLK_ESCAPE); });  // keep the file
    save(loaded, false);
    EXPECT_EQ(read_text(tmx), damaged);
    script.then([] { push_key('y'); });  // replace it
    save(loaded);
    EXPECT_FALSE(script.ran_out());
    EXPECT_NE(read_text(tmx), damaged);
    Map_Editor back(24, 24);
    const Map_File::Reading r = Map_File::read(tmx, back, 24, 24, 1);
    EXPECT_TRUE(r.whole) << r.problems;
    EXPECT_EQ(back.map().at(1, 1), 0);
    // From now on it is this map's file.
    loaded.map().place(4, 4, 0);
    save(loaded);
    EXPECT_FALSE(script.ran_out());
}

TEST_F(MapFilesTest, FilesNamedOnTheCommandLineOpenInTabsInPlaceOfTheFirstTileset) {
    const std::string a = (dir.path / "a.wst").string(), b = (dir.path / "b.wst").string();
    tileset().store().tile_at(0)->set_pixel(3, 4, Color(10, 20, 30, 40));
    ASSERT_GE(Tileset_File::write(tileset().store(), a), 0);
    ASSERT_GE(Tileset_File::write(tileset().store(), b), 0);
    ASSERT_TRUE(picture_file::write((dir.path / "s.png").string(), sheet::compose(tileset().store()),
                                    safe_file::Links::refuse));
    Command_Line given;
    given.tilesets = {a, b, a};
    given.sheet = (dir.path / "s.png").string();
    given.tile_width = given.tile_height = 24;
    g_editor->open_given(given);
    ASSERT_EQ(g_editor->tilesets().count(), 3);
    EXPECT_EQ(g_editor->tilesets().at(0).display_name(), "a");
    Tileset& cut = g_editor->tilesets().at(2);
    EXPECT_EQ(&cut, g_editor->current());
    EXPECT_STREQ(SDL_GetWindowTitle(g_main_window->window()), "Mosswick 0.88 - s");
    EXPECT_FALSE(cut.is_named());
    EXPECT_EQ(cut.store().tile_at(0)->get_pixel(3, 4), Color(10, 20, 30, 40));

    // A sheet that cannot be cut says why; nothing else changes.
    given.tilesets.clear();
    given.tile_width = 25;
    Event_Script script;
    script.then([] { push_key(SDLK_RETURN); });
    g_editor->open_given(given);
    EXPECT_EQ(script.left(), 0u);
    EXPECT_EQ(g_editor->tilesets().count(), 3);
}
