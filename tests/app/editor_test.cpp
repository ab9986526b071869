// The main editor driven through its real event routing and modal loops.

#include "app/prompt_dialogs.h"
#include "app/tileset_tabs.h"
#include "app/tool_bar.h"
#include "platform/picture_file.h"
#include "support/editor_fixture.h"
#include "ui/dialog.h"


using EditorTest = Editor_Fixture;

TEST_F(EditorTest, KeysFollowTheModifierOrderAndModifiersAloneDoNothing) {
    answer_files_with("", file_cancelled);
    // Ctrl+Shift+S reads as Shift+S, which is bound to nothing: no save dialog.
    push_key(SDLK_S, SDL_Keymod(SDL_KMOD_CTRL | SDL_KMOD_SHIFT));
    push_key(SDLK_LCTRL, SDL_KMOD_CTRL);
    pump();
    EXPECT_EQ(asked.count, 0);
    // Ctrl+S saves, and an unnamed tileset asks for a name.
    push_key(SDLK_S, SDL_KMOD_CTRL);
    pump();
    EXPECT_EQ(asked.count, 1);
    EXPECT_EQ(asked.last_kind, file_save_tileset);
}

TEST_F(EditorTest, EscapeOrTheWindowsCloseRequestThenYesQuitsAndCancelKeepsRunning) {
    Event_Script script;
    for (const auto& ask : {std::function<void()>([] { push_key(SDLK_ESCAPE); }), std::function<void()>(push_quit)}) {
        script.then([] { push_key(SDLK_ESCAPE); });  // the prompt's Escape cancels it
        ask();
        pump();
        EXPECT_FALSE(g_editor->quit_requested());
    }

    script.then([] { push_text_key('y'); });
    push_key(SDLK_ESCAPE);
    pump();
    EXPECT_TRUE(g_editor->quit_requested());
}

TEST_F(EditorTest, CtrlRightDragPansAndAQuitDuringThePanOnlyEndsIt) {
    Canvas_View& c = g_editor->canvas();
    const SDL_Point start = c.origin();
    Event_Script script;
    script.then([] { push_motion(0, 0, 0, 1, 0); }).then([] { push_motion(407, 297, 0, 7, -3); }).then([] {
        push_quit();
    });
    push_key_down(SDLK_LCTRL, SDL_KMOD_CTRL);  // held: no key-up yet
    pump();
    push_button(400, 300, true, SDL_BUTTON_RIGHT);
    pump();
    EXPECT_FALSE(g_editor->quit_requested());
    EXPECT_EQ(c.origin().x, start.x + 7);
    EXPECT_EQ(c.origin().y, start.y - 3);
    // The editor knows where the pointer is, not how far it moved.
    EXPECT_EQ(g_editor->pointer().x, 407.f);
    EXPECT_EQ(g_editor->pointer().y, 297.f);
}

TEST_F(EditorTest, SaveAfterLoadAsksForANameAndSavesUnderTheForcedExtension) {
    Temp_Dir dir;
    answer_files_with((dir.path / "tiles.bmp").string());
    g_editor->execute(command_add_new_tile);
    g_editor->execute(command_save);
    const std::string saved = (dir.path / "tiles.wst").string();
    ASSERT_TRUE(std::filesystem::exists(saved));
    EXPECT_EQ(std::filesystem::file_size(saved), 11u + 2 * 24 * 24 * 4);
    EXPECT_EQ(g_editor->current()->path().full, saved);
    EXPECT_FALSE(g_editor->current()->is_modified());

    // A named, unmodified tileset: "Save" asks nothing and writes nothing.
    asked = {};
    g_editor->execute(command_save);
    EXPECT_EQ(asked.count, 0);

    const std::string copy = (dir.path / "copy.wst").string();
    std::filesystem::copy_file(saved, copy);
    answer_files_with(copy);
    g_editor->execute(command_load);
    ASSERT_EQ(g_editor->tilesets().count(), 2);
    EXPECT_EQ(g_editor->current()->store().tile_count(), 2);
    EXPECT_FALSE(g_editor->current()->is_named());
    answer_files_with(copy, file_cancelled);
    g_editor->execute(command_save);
    EXPECT_EQ(asked.count, 1);
    EXPECT_EQ(asked.last_kind, file_save_tileset);
}

TEST_F(EditorTest, TabsMakeTheirTilesetCurrentAndCloseFollowsTheListRules) {
    Editor& e = *g_editor;
    ASSERT_TRUE(e.tilesets().new_tileset(16, 16));
    ASSERT_TRUE(e.tilesets().new_tileset(32, 32));
    Tileset* first = &e.tilesets().at(0);
    const Rectangle tab = e.tabs().tab_area(e.tilesets(), 0);
    push_click(tab.x + 4, tab.y + 4);
    pump();
    EXPECT_EQ(e.current(), first);
    EXPECT_EQ(e.canvas().tile()->width(), 24);

    e.tilesets().make_current(e.tilesets().at(1));
    e.execute(command_close);  // unmodified: no question
    ASSERT_EQ(e.tilesets().count(), 2);
    EXPECT_EQ(e.current()->path().full, "untitled3.wst");  // the one that followed
    EXPECT_EQ(e.canvas().tile()->width(), 32);

    // Six tabs and more: a long name is cut, the modified mark never.
    while (e.tilesets().count() < 8) ASSERT_TRUE(e.tilesets().new_tileset(16, 16));
    e.execute(command_add_new_tile);
    const int last = e.tilesets().count() - 1;
    const Rectangle r = e.tabs().tab_area(e.tilesets(), last);
    const std::string label = Tileset_Tabs::tab_label(e.current()->display_name(), r.width - 2 * Tileset_Tabs::padding);
    EXPECT_EQ(e.current()->display_name(), "untitled9*");
    EXPECT_LT(label.size(), e.current()->display_name().size());
    EXPECT_EQ(label.back(), '*') << label;
}

TEST_F(EditorTest, NewTilesetDialogKeepsItsValuesAndCanResizeInstead) {
    Dialog& dialog = g_prompt_dialogs->new_tileset();
    auto click_item = [&dialog](uint32_t id) { push_click(dialog.find(id)->area); };
    Event_Script script;
    script.then([&] {
              click_item(0);  // width "Less" twice
              click_item(0);
          })
        .then([] { push_key(SDLK_RETURN); });
    g_editor->execute(command_new);
    ASSERT_EQ(g_editor->tilesets().count(), 2);
    EXPECT_EQ(g_editor->current()->path().full, "untitled2.wst");
    EXPECT_EQ(g_editor->canvas().tile()->width(), 22);
    EXPECT_EQ(g_editor->canvas().tile()->height(), 24);

    // The second time the dialog offers 22 again; "Keep and resize" resizes
    // the current tileset instead of making a new one.
    int offered = 0;
    script.then([&] {
              offered = dialog.value_of(Prompt_Dialogs::width_id);
              click_item(0);
              click_item(Prompt_Dialogs::keep_id);
          })
        .then([] { push_key(SDLK_RETURN); });
    g_editor->execute(command_new);
    EXPECT_EQ(offered, 22);
    EXPECT_EQ(g_editor->tilesets().count(), 2);
    EXPECT_EQ(g_editor->canvas().tile()->width(), 21);
    EXPECT_EQ(g_editor->current()->store().tile_width(), 21u);
    EXPECT_FALSE(script.ran_out());
}

TEST_F(EditorTest, ExportWritesASixteenBySixteenSheetAfterThePreview) {
    Temp_Dir dir;
    answer_files_with((dir.path / "sheet.png").string());
    Tile_Store& store = g_editor->current()->store();
    store.current_tile()->fill(Color(10, 200, 30));
    store.add_tile();
    store.current_tile()->fill(Color(0, 0, 0, 0));
    store.current_tile()->set_pixel(5, 6, Color(250, 1, 2));

    Event_Script script;
    script.then([] { push_key(SDLK_ESCAPE); });  // the preview's Escape stops the export
    g_editor->execute(command_export);
    EXPECT_EQ(asked.count, 0);

    script.then([] { push_key(SDLK_RETURN); });
    g_editor->execute(command_export);
    EXPECT_EQ(asked.last_kind, file_save_bmp);
    Picture sheet;
    ASSERT_EQ(picture_file::read((dir.path / "sheet.bmp").string(), sheet), "");
    EXPECT_EQ(sheet.width, 16 * 24);
    EXPECT_EQ(sheet.height, 16 * 24);
    EXPECT_EQ(sheet.at(3, 3), Color(10, 200, 30));
    EXPECT_EQ(sheet.at(24 + 5, 6), Color(250, 1, 2));
    EXPECT_EQ(sheet.at(15 * 24 + 1, 15 * 24 + 1), Color(0, 0, 0));  // an empty slot holds a blank tile
}

TEST_F(EditorTest, ThePositionReadoutFollowsThePointerOverTheTileOnly) {
    const SDL_Point p = cell_centre(3, 17);
    push_motion(p.x, p.y);
    pump();
    const Position_Readout& readout = g_editor->position();
    ASSERT_TRUE(readout.visible());
    EXPECT_EQ(readout.pixel_x(), 3);
    EXPECT_EQ(readout.pixel_y(), 17);
    EXPECT_EQ(readout.tile_index(), 0);

    // Inside the canvas but beside the tile, and outside the canvas: hidden.
    push_motion(g_editor->canvas().origin().x - 5, p.y);
    pump();
    EXPECT_FALSE(readout.visible());
    push_motion(p.x, p.y);
    push_motion(1000, 600);
    pump();
    EXPECT_FALSE(readout.visible());

    // During a stroke and after its release the read-out follows the pointer.
    const SDL_Point q = cell_centre(9, 4);
    Event_Script script;
    script.then([q] { push_motion(q.x, q.y, SDL_BUTTON_LMASK); }).then([q] { push_button(q.x, q.y, false); });
    push_button(p.x, p.y, true);
    pump();
    ASSERT_TRUE(readout.visible());
    EXPECT_EQ(std::make_pair(readout.pixel_x(), readout.pixel_y()), std::make_pair(9, 4));
}
