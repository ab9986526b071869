// The paths on which a user could lose work: a cancelled file dialog, a
// refused command, a click that changes nothing and a fatal read error.

#include "app/recovery.h"
#include "app/tool_options.h"
#include "model/tileset/tileset_file.h"
#include "model/map/map_file.h"
#include "app/undo_control.h"
#include "support/editor_fixture.h"

namespace fs = std::filesystem;

namespace {
using History_State = std::pair<int, int>;  // records, position
History_State history_of(Tileset& t) { return {t.history().count(), t.history().position()}; }

// Files other than the data folder that appeared in a directory.
int stray_files(const fs::path& dir) {
    int n = 0;
    for (const auto& entry : fs::directory_iterator(dir))
        if (entry.path().filename() != "data") ++n;
    return n;
}
}  // namespace

class NothingLostTest : public Editor_Fixture {
protected:
    // A press and release on the canvas with the current tool.
    static void click_canvas(SDL_Point p) {
        Event_Script script;
        script.then([p] { push_button(p.x, p.y, false); });
        push_button(p.x, p.y, true);
        pump();
    }
};

TEST_F(NothingLostTest, AnEmptyAnswerFromAFileDialogIsACancel) {
    const char* const none[] = {nullptr};
    const char* const empty[] = {"", nullptr};
    const char* const chosen[] = {"/home/a/tiles.wst", nullptr};
    EXPECT_EQ(file_dialog_answer(nullptr), file_error);
    EXPECT_EQ(file_dialog_answer(none), file_cancelled);
    EXPECT_EQ(file_dialog_answer(empty), file_cancelled);
    EXPECT_EQ(file_dialog_answer(chosen), file_chosen);

    answer_files_with("");  // as SDL reports Escape in some native save dialogs
    g_editor->run_command(command_add_new_tile);
    Tileset& t = *g_editor->current();
    ASSERT_TRUE(t.is_modified());
    push_key(SDLK_S, SDL_KMOD_CTRL);
    pump();
    g_editor->run_command(command_save_as);
    Event_Script script;
    script.then([] { push_key(SDLK_RETURN); });  // past the export preview to the file dialog
    g_editor->run_command(command_export);
    EXPECT_EQ(script.left(), 0u);

    EXPECT_EQ(stray_files(work_dir), 0) << "a cancelled dialog wrote a file";
    EXPECT_TRUE(t.is_modified());
    EXPECT_FALSE(t.is_named());
    EXPECT_EQ(t.path().name, "untitled1");
    EXPECT_TRUE(g_editor->tilesets().any_modified());  // Quit and Close still warn
}

TEST_F(NothingLostTest, RefusedCommandsRecordNothingAndSayWhy) {
    Tileset& t = *g_editor->current();
    Tile_Store& store = t.store();
    while (!store.is_full()) store.add_tile();
    store.go_to(7);
    store.current_tile()->set_pixel(1, 1, Color(9, 9, 9));
    g_editor->canvas().set_tile(store.current_tile());
    const History_State before = history_of(t);
    expect_refused(command_add_new_tile);
    expect_refused(command_insert_new_tile);
    store.go_to(255);
    expect_refused(command_next_tile);
    g_editor->run_command(command_append_tile);  // does nothing, so records nothing
    EXPECT_EQ(history_of(t), before);
    EXPECT_FALSE(t.is_modified());
    // Undo has nothing of them to take back: no real tile is lost.
    push_key(SDLK_Z, SDL_KMOD_CTRL);
    pump();
    EXPECT_EQ(store.tile_count(), 256);
    EXPECT_EQ(store.tile_at(7)->get_pixel(1, 1), Color(9, 9, 9));

    // Rotating a tile that is not square is refused the same way.
    ASSERT_TRUE(g_editor->tilesets().new_tileset(8, 16));
    expect_refused(command_rotate);
    EXPECT_FALSE(g_editor->current()->is_modified());
}

TEST_F(NothingLostTest, AStrokeThatChangesNothingRecordsNothing) {
    Tileset& t = *g_editor->current();
    const History_State before = history_of(t);
    // Beside the tile, and on a cell that already has the pen's colour.
    const Rectangle view = Editor::canvas_area;
    ASSERT_GT(g_editor->canvas().origin().x, view.x + 2) << "no room beside the tile";
    click_canvas(SDL_Point{view.x + 1, view.y + 1});
    ASSERT_EQ(g_editor->canvas().tile()->get_pixel(3, 3), g_tool_options->tool_color(0));
    click_canvas(cell_centre(3, 3));
    EXPECT_EQ(history_of(t), before);
    EXPECT_FALSE(t.is_modified());

    g_tool_options->color_tools().swap_colors();
    click_canvas(cell_centre(3, 3));
    EXPECT_EQ(t.history().count(), before.first + 1);
    EXPECT_TRUE(t.is_modified());
}

TEST_F(NothingLostTest, AFatalReadErrorKeepsTheUnsavedTilesetsFirst) {
    // Two tilesets with unsaved work, one saved and untouched.
    g_editor->run_command(command_add_new_tile);
    g_editor->current()->store().current_tile()->set_pixel(2, 3, Color(200, 10, 20));
    ASSERT_TRUE(g_editor->tilesets().new_tileset(16, 16));
    g_editor->run_command(command_mirror);
    ASSERT_TRUE(g_editor->tilesets().new_tileset(8, 8));
    ASSERT_FALSE(g_editor->current()->is_modified());
    // The recovery copies keep a floating image and the map's cells too.
    g_editor->tilesets().at(0).map().place(4, 5, 1);
    Tile dot(2, 2);
    dot.fill(Color(1, 2, 3));
    g_editor->canvas().tile_selection().paste(dot, 3, 3, g_editor->canvas().tile());
    g_editor->undo().record(command_work_selection);
    ASSERT_TRUE(g_editor->current()->is_modified());

    Tile_Store two(6, 6, 256);
    two.add_tile();
    two.add_tile();
    const std::string cut = (work_dir / "cut.wst").string();
    ASSERT_EQ(Tileset_File::write(two, cut), 11 + 2 * 6 * 6 * 4);
    fs::resize_file(cut, 11 + 6 * 6 * 4 + 5);
    answer_files_with(cut);
    // Exactly the block error and nothing else is printed.
    EXPECT_EXIT(
        {
            send_stdout_to_stderr();
            g_editor->run_command(command_load);
        },
        ::testing::ExitedWithCode(1), "^Error: Unable to load block from  .*cut\\.wst!\n$");

    const fs::path folder = work_dir / "data" / "recovery";
    EXPECT_EQ(fs::path(recovery::folder()), folder);
    const std::vector<std::string> kept = recovery::files_in(folder.string());
    ASSERT_EQ(kept.size(), 3u);
    EXPECT_EQ(kept[0].rfind("untitled1-", 0), 0u);
    EXPECT_EQ(kept[1].rfind("untitled2-", 0), 0u);
    const std::unique_ptr<Tile_Store> floating = Tileset_File::read((folder / kept[2]).string());
    ASSERT_TRUE(floating);
    EXPECT_EQ(floating->tile_at(0)->get_pixel(4, 4), Color(1, 2, 3));
    Map_Editor map(24, 24);
    EXPECT_TRUE(Map_File::read(Map_File::map_path((folder / kept[0]).string()), map, 24, 24, 2).whole);
    EXPECT_EQ(map.map().at(4, 5), 1);
    const std::unique_ptr<Tile_Store> first = Tileset_File::read((folder / kept[0]).string());
    ASSERT_TRUE(first);
    EXPECT_EQ(first->tile_count(), 2);
    EXPECT_EQ(first->tile_at(1)->get_pixel(2, 3), Color(200, 10, 20));
    const std::unique_ptr<Tile_Store> second = Tileset_File::read((folder / kept[1]).string());
    ASSERT_TRUE(second);
    EXPECT_EQ(second->tile_width(), 16u);

    // The next start says where they are.
    const std::string note = recovery::start_note(folder.string());
    EXPECT_NE(note.find(folder.string()), std::string::npos);
    EXPECT_NE(note.find(kept[0]), std::string::npos);
    EXPECT_EQ(recovery::start_note((work_dir / "nowhere").string()), "");
}
