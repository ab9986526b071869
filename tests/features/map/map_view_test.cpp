// The map editor's window driven through its own loop, as the editor opens it.
#include "features/map/map_view.h"

#include "platform/picture_file.h"
#include "support/editor_fixture.h"

namespace {
const Color grass(40, 160, 60);
const Color stone(150, 150, 160);
const Color seam_red(255, 0, 0);
const Color empty_cell(64, 64, 64);
const Color grid_grey(128, 128, 128);
}  // namespace

class MapViewTest : public Editor_Fixture {
protected:
    Tileset& tileset() { return *g_editor->current(); }
    Tile_Store& store() { return tileset().store(); }

    // Three 24-pixel tiles: grass, stone and a third left black.
    void SetUp() override {
        Editor_Fixture::SetUp();
        store().add_tile();
        store().add_tile();
        paint(0, grass);
        paint(1, stone);
    }
    void paint(int tile, Color c) {
        store().tile_at(tile)->fill(c);
        store().tile_at(tile)->update_texture();
    }

    // Where the window's view stands: every view of a map of this size does.
    Map_View probe() { return Map_View(tileset().map(), store(), "probe"); }
};

TEST_F(MapViewTest, PaintFillPickSeamsAndUndoThroughTheEditorsCommand) {
    ASSERT_EQ(store().current_index(), 2);
    Map_View view(tileset().map(), store(), "probe");
    const Rectangle p = view.picture();
    EXPECT_EQ(view.zoom(), 1) << "20 x 20 cells of 24 pixels fill 480 of the 560 pixels";
    EXPECT_EQ(p.width, 480);
    auto cell = [&](int x, int y) { return centre(view.cell_area(x, y)); };
    auto chooser_tile = [&](int i) {
        const Rectangle c = view.chooser();
        return SDL_Point{c.x + i * Map_View::chooser_cell + 16, c.y + 16};
    };

    Event_Script script;
    Color in_fill;
    Color on_seam;
    Color beside_seam;
    Color after_undo;
    script.then([&] {
        // Stone, dragged along the first row from cell 0 to cell 3.
        push_click(chooser_tile(1).x, chooser_tile(1).y);
        push_button(cell(0, 0).x, cell(0, 0).y, true);
        push_motion(cell(2, 0).x, cell(2, 0).y, SDL_BUTTON_LMASK);
        push_motion(cell(3, 0).x, cell(3, 0).y, SDL_BUTTON_LMASK);
        push_button(cell(3, 0).x, cell(3, 0).y, false);
        // Grass poured over everything still empty, then the seam checker.
        push_click(chooser_tile(0).x, chooser_tile(0).y);
        push_click(view.button(Map_View::button_fill));
        push_click(cell(7, 9).x, cell(7, 9).y);
        push_key(SDLK_S);
    });
    script.then([&] {
        in_fill = read_pixel(cell(1, 5).x, cell(1, 5).y);
        // The edge between stone (3, 0) and grass (4, 0), and a pixel off it.
        on_seam = read_pixel(p.x + 4 * 24, p.y + 12);
        beside_seam = read_pixel(p.x + 4 * 24 + 3, p.y + 12);
        // The right button picks the stone under the pointer; Ctrl+Z takes the fill back.
        push_click(cell(1, 0).x, cell(1, 0).y, SDL_BUTTON_RIGHT);
        push_key(SDLK_Z, SDL_KMOD_CTRL);
    });
    script.then([&] {
        after_undo = read_pixel(cell(1, 5).x, cell(1, 5).y);
        push_key(SDLK_ESCAPE);
    });
    EXPECT_EQ(g_editor->execute(command_map_editor), command_select_tile);
    EXPECT_FALSE(script.ran_out());
    EXPECT_EQ(Backdrop::depth(), 0);

    EXPECT_EQ(in_fill, grass);
    EXPECT_EQ(on_seam, seam_red);
    EXPECT_EQ(beside_seam, grass);
    EXPECT_EQ(after_undo, empty_cell);
    const Tile_Map& map = tileset().map().map();
    for (int x = 0; x < 4; ++x) EXPECT_EQ(map.at(x, 0), 1) << "cell " << x << " of the drag";
    EXPECT_EQ(map.at(4, 0), Tile_Map::empty);
    EXPECT_EQ(map.at(7, 9), Tile_Map::empty);
    EXPECT_EQ(store().current_index(), 1) << "the picked tile comes back current";
    EXPECT_TRUE(tileset().is_modified());

    // Ctrl+R, the main window's redo key, in a new session redoes the fill:
    // the history stays with the map. Closing the program's window closes the
    // map window and asks at once whether to quit.
    Event_Script again;
    again.then([] {
        push_key(SDLK_R, SDL_KMOD_CTRL);
        push_close_request();
    }).then([] { push_key(SDLK_Y); });
    EXPECT_EQ(g_editor->execute(command_map_editor), -1) << "nothing picked: nothing to record";
    EXPECT_EQ(map.at(7, 9), 0);
    pump();
    EXPECT_TRUE(g_editor->quit_requested());
}

TEST_F(MapViewTest, CellsShowTheirTilesCurrentPixelsWithGridAndEraser) {
    tileset().map().place(0, 0, 0);
    tileset().map().place(1, 0, 1);
    tileset().map().mark_saved();  // as read from its file
    const Map_View view = probe();
    const Rectangle p = view.picture();
    const SDL_Point first = centre(view.cell_area(0, 0));
    const SDL_Point second = centre(view.cell_area(1, 0));

    // A step finds the frame presented before it: each run's first step only
    // moves the pointer away, so the second sees the view.
    auto look = [] { push_motion(4, 4); };
    Event_Script script;
    script.then(look);
    Color before, grid_line, no_grid;
    script.then([&] {
        before = read_pixel(second.x, second.y);
        no_grid = read_pixel(p.x + 24, p.y + 30);
        push_key(SDLK_G);
    });
    script.then([&] {
        grid_line = read_pixel(p.x + 24, p.y + 30);
        push_key(SDLK_ESCAPE);
    });
    EXPECT_EQ(g_editor->execute(command_map_editor), -1);
    EXPECT_EQ(std::vector<Color>({before, no_grid, grid_line}), std::vector<Color>({stone, empty_cell, grid_grey}));
    EXPECT_FALSE(tileset().is_modified()) << "looking changes nothing";

    // Stone is repainted in the editor; the map shows it when it opens again.
    const Color moss(20, 90, 40);
    paint(1, moss);
    Color repainted;
    Color erased;
    script.then(look);
    script.then([&] {
        repainted = read_pixel(second.x, second.y);
        push_click(view.button(Map_View::button_eraser));
        push_click(first.x, first.y);
    });
    script.then([&] {
        erased = read_pixel(first.x, first.y);
        push_click(view.button(Map_View::button_close));
    });
    EXPECT_EQ(g_editor->execute(command_map_editor), -1);
    EXPECT_FALSE(script.ran_out());
    EXPECT_EQ(repainted, moss);
    EXPECT_EQ(erased, empty_cell);
    EXPECT_EQ(tileset().map().map().at(0, 0), Tile_Map::empty);
    EXPECT_TRUE(tileset().is_modified());
}

TEST_F(MapViewTest, TheTerrainToolMarksCornersPaintsThemAndShowsWhatIsMissing) {
    const Map_View view = probe();
    const Rectangle p = view.picture();
    auto quarter = [&](int tile, int qx, int qy) {
        const Rectangle c = view.chooser();
        return SDL_Point{c.x + tile * Map_View::chooser_cell + 8 + 16 * qx, c.y + 8 + 16 * qy};
    };
    auto click = [](SDL_Point at) { push_click(at.x, at.y); };
    // The corner between cells (4, 4) and (5, 5): a drag there paints it.
    auto paint_corner = [&] {
        push_button(p.x + 5 * 24 + 2, p.y + 5 * 24 - 3, true);
        push_button(p.x + 5 * 24 + 2, p.y + 5 * 24 - 3, false);
    };
    Color missing_frame;
    Event_Script script;
    script.then([&] {
        push_key(SDLK_T);  // the first terrain set starts with two terrains
        for (int q = 0; q < 4; ++q) click(quarter(0, q % 2, q / 2));  // stone: grass all round
        paint_corner();
        click(centre(view.terrain_swatch(2)));
        paint_corner();
    });
    script.then([&] { push_motion(4, 4); });
    script.then([&] {
        missing_frame = read_pixel(view.cell_area(5, 5).x, view.cell_area(5, 5).y);
        click(quarter(1, 1, 1));  // stone's bottom right: water
        click(centre(view.terrain_swatch(1)));
        for (int q = 0; q < 3; ++q) click(quarter(1, q % 2, q / 2));  // its other corners: grass
        push_key(SDLK_P), push_key(SDLK_R);  // stone a quarter turned, painted at (0, 0)
        click(quarter(1, 0, 0));
        push_click(centre(view.cell_area(0, 0)).x, centre(view.cell_area(0, 0)).y);
        push_key(SDLK_I);  // the map's image, as a PNG
        // "+" adds a third terrain; the right button on its swatch takes it away.
        push_key(SDLK_T);
        click(centre(view.terrain_swatch(3)));
        push_click(centre(view.terrain_swatch(3)).x, centre(view.terrain_swatch(3)).y, SDL_BUTTON_RIGHT);
        push_key(SDLK_ESCAPE);
    });
    Temp_Dir dir;
    answer_files_with((dir.path / "shore.bmp").string());
    EXPECT_EQ(g_editor->execute(command_map_editor), command_select_tile);  // stone was chosen
    EXPECT_FALSE(script.ran_out());
    Map_Editor& m = tileset().map();
    EXPECT_EQ(m.terrain().terrain_count(), 2);
    ASSERT_TRUE(m.undo());
    EXPECT_EQ(m.terrain().terrain_count(), 3) << "the removal was a step";
    ASSERT_TRUE(m.redo());
    EXPECT_TRUE(missing_frame.red > 200 && missing_frame.green < 60 && missing_frame.blue > 200)
        << "a missing cell is framed in magenta";
    EXPECT_EQ(m.terrain().corners(1), (Terrain_Set::Corners{1, 1, 2, 1}));
    EXPECT_EQ(m.map().at(4, 4), 1) << "the combination drawn fills the cell left for it";
    EXPECT_TRUE(m.is_missing(5, 5) && !m.is_missing(4, 4));
    EXPECT_EQ(m.terrain().drawn_count(), 2);
    EXPECT_EQ(m.map().at(0, 0) * 10 + m.map().turn_at(0, 0), 10 + turn::quarter_turned(turn::none));
    EXPECT_TRUE(tileset().is_modified());
    Picture image;
    ASSERT_EQ(picture_file::read((dir.path / "shore.png").string(), image), "");
    EXPECT_EQ(image.at(4 * 24 + 12, 4 * 24 + 12), stone);
    EXPECT_EQ(image.at(5 * 24 + 12, 5 * 24 + 12).alpha, 0) << "a missing cell is empty in the image";
}

TEST_F(MapViewTest, TheLayerListAddsHidesRenamesAndTheMapShowsTheVisibleLayersTogether) {
    Map_Editor& map = tileset().map();
    map.place(0, 0, 0);
    const Map_View view = probe();
    const SDL_Point cell = centre(view.cell_area(0, 0));
    const Rectangle stone_in_chooser{view.chooser().x + Map_View::chooser_cell, view.chooser().y, 32, 32};
    auto double_click = [](SDL_Point at) {
        for (const bool down : {true, false}) {
            SDL_Event e{};
            e.type = down ? SDL_EVENT_MOUSE_BUTTON_DOWN : SDL_EVENT_MOUSE_BUTTON_UP;
            e.button.button = SDL_BUTTON_LEFT;
            e.button.down = down;
            e.button.clicks = 2;
            e.button.x = float(at.x), e.button.y = float(at.y);
            SDL_PushEvent(&e);
        }
    };
    Event_Script script;
    Color stone_on_top, with_top_hidden, after_undo;
    script.then([&] {
        push_click(view.button(Map_View::button_layer_add));
        push_click(stone_in_chooser);
        push_click(cell.x, cell.y);
    });
    script.then([&] {
        stone_on_top = read_pixel(cell.x, cell.y);
        // The new layer is the top row of the list.
        push_click(centre(view.layer_eye(1)).x, centre(view.layer_eye(1)).y);
    });
    script.then([&] {
        with_top_hidden = read_pixel(cell.x, cell.y);
        double_click(centre(view.layer_row(1)));
        push_key(SDLK_R, SDL_KMOD_SHIFT);  // replaces the name shown
        for (const SDL_Keycode k : {SDLK_O, SDLK_C, SDLK_K, SDLK_P}) push_key(k);  // p types, not the pen tool
        push_key(SDLK_RETURN);
        push_click(view.button(Map_View::button_layer_lower));
        push_click(view.button(Map_View::button_undo));
    });
    script.then([&] {
        after_undo = read_pixel(cell.x, cell.y);
        push_key(SDLK_ESCAPE);
    });
    g_editor->execute(command_map_editor);
    EXPECT_FALSE(script.ran_out());
    EXPECT_EQ(std::vector<Color>({stone_on_top, with_top_hidden, after_undo}),
              std::vector<Color>({stone, grass, grass}));
    ASSERT_EQ(map.layer_count(), 2);
    EXPECT_EQ(map.layer(1).name, "Rockp") << "the lowering was undone, the renaming stays";
    EXPECT_FALSE(map.layer(1).visible);
    EXPECT_EQ(map.layer(1).cells.at(0, 0), 1);
    EXPECT_EQ(map.layer(0).cells.at(0, 0), 0);
}
