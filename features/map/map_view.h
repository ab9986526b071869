#pragma once

#include <SDL3/SDL.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "model/map/layer_stack.h"
#include "model/map/seam_check.h"
#include "model/tile/picture.h"
#include "ui/pane.h"
#include "model/core/rectangle.h"

class Map_Editor;
class Texture;
class Tile_Store;

// The map editor's window: the map at the largest whole zoom that fits, the
// tileset's tiles to choose from, and a row of buttons. The left button
// paints the chosen tile into cells (a drag paints a line of cells), fills
// or erases, by the tool; the right button picks the tile under the pointer.
// The terrain tool paints the chosen terrain at the corner nearest the
// pointer; with it, a click on a quarter of a tile in the chooser marks that
// corner of the tile with the terrain (the right button clears it), and the
// strip under the chooser chooses, adds and (right button) removes terrains
// and shows the corner combinations that have no tile yet, which the map
// marks where they are wanted.
// The column on the right lists the layers, top first: a click chooses the
// layer painted in, its box shows or hides it, a double click (or "Rename")
// renames it in place, and the buttons under the list add, delete, raise and
// lower. Page Up and Page Down choose the layer above or below.
// Escape, "Close", a quit or a close request close it. Keys: p paint, f fill,
// e eraser, t terrain, g grid, s seams, v the map in the editor's Preview
// (drawn live around the tile being drawn), i the map's image, x and y flip the
// painted tile across and upside down, r turns it a quarter clockwise (square
// tiles), Ctrl+Z undo, Ctrl+R (as in the main window) or Ctrl+Y redo. The
// right button picks a cell's tile with its turn.
class Map_View {
public:
    enum Tool { tool_paint, tool_fill, tool_eraser, tool_terrain };
    enum Button { button_paint, button_fill, button_eraser, button_terrain, button_grid, button_seams, button_preview,
                  button_undo, button_redo, button_image, button_close, button_layer_add, button_layer_remove,
                  button_layer_raise, button_layer_lower, button_layer_rename, button_count };
    static constexpr int map_room = 560;
    static constexpr int layer_column = 120;
    static constexpr int layer_row_height = 20;
    static constexpr int chooser_columns = 16;
    static constexpr int chooser_cell = 32;
    static constexpr int chooser_size = chooser_columns * chooser_cell;

    Map_View(Map_Editor& editor, const Tile_Store& store, const std::string& name);
    ~Map_View();
    Map_View(const Map_View&) = delete;
    Map_View& operator=(const Map_View&) = delete;

    struct Outcome {
        int chosen;    // the tile last chosen or picked, -1 for none
        bool changed;  // the map was edited
    };
    Outcome run();
    // "Image" hands the map as the game would show it to this, which asks
    // where to write it.
    std::function<void(const Picture&)> save_image;

    int zoom() const { return factor; }
    Rectangle picture() const;
    Rectangle chooser() const;
    Rectangle button(int which) const;
    Rectangle frame() const { return pane.outer_area(); }
    Backdrop::Area modal_area() const { return pane.modal_area(); }
    // The cell under a window point; false outside the map.
    bool cell_at(float x, float y, int& column, int& row) const;
    Rectangle cell_area(int column, int row) const;
    // The tile under a window point in the chooser, -1 for none.
    int chooser_hit(float x, float y) const;
    // The strip under the chooser: a swatch for each terrain, then the "+"
    // that adds one, then the missing combinations.
    Rectangle terrain_swatch(int terrain) const;
    Rectangle missing_area() const;
    int current_terrain() const { return terrain; }
    // How the painted tile is turned (turn::none to turn::diagonal bits).
    int brush() const { return brush_turn; }
    // The row of a layer in the list (the top layer first) and its box that
    // shows or hides it.
    Rectangle layer_row(int layer) const;
    Rectangle layer_eye(int layer) const;
    // The layer whose name is being typed, -1 for none.
    int renaming_layer() const { return renaming; }
    // The cells whose corner combination has no tile (checked when the map changed).
    const std::vector<int>& missing_cells();
    int chosen_tile() const { return chosen; }
    Tool tool() const { return current_tool; }
    bool grid_shown() const { return grid; }
    bool seams_shown() const { return seams; }
    // The seams of the map as it stands (checked when the map changed).
    const std::vector<Seam>& seam_list();

    // False when the event closes the view.
    bool handle(const SDL_Event& event);
    void draw();

private:
    void press(float x, float y, Uint8 mouse_button);
    void motion(float x, float y);
    void push_button(int which);
    void choose(int tile);
    void compose_map();
    void compose_chooser();
    void draw_buttons();
    void compose_picture();
    // The visible layers, gathered again when the map changed.
    const Layer_Stack& visible_layers();
    void draw_status();
    void draw_terrain();
    void terrain_press(float x, float y, Uint8 mouse_button);
    void paint_terrain_at(float x, float y);
    bool layer_press(float x, float y, Uint8 mouse_button, int clicks);
    void type_name(const SDL_KeyboardEvent& key);
    void draw_layers();

    Map_Editor& editor;
    const Tile_Store& store;
    Pane pane;
    int factor;
    int chosen;
    bool picked = false;
    Tool current_tool = tool_paint;
    bool grid = false;
    bool seams = false;
    bool stroking = false;
    // The program's window was closed while this one was open: the main
    // window is told once this one is gone.
    bool close_asked = false;
    int last_column = -1;
    int last_row = -1;
    int hover_column = -1;
    int hover_row = -1;
    uint64_t start_generation;
    uint64_t composed_generation = ~uint64_t(0);
    uint64_t checked_generation = ~uint64_t(0);
    // What each cell of the map picture shows (Layer_Stack::key).
    std::vector<uint64_t> composed_cells;
    std::vector<Color> map_pixels;
    // The map with the grid, the seams and the missing cells marked on it:
    // marked when they change, not at every repaint.
    std::vector<Color> marked_pixels;
    std::vector<Color> shown_pixels;
    bool cells_composed = false;
    uint64_t marked_generation = ~uint64_t(0);
    bool marked_grid = false;
    bool marked_seams = false;
    std::unique_ptr<Texture> map_image;
    std::unique_ptr<Texture> chooser_image;
    Seam_Check checker;
    Layer_Stack layers;
    uint64_t stacked_generation = ~uint64_t(0);
    int terrain = 1;
    int brush_turn = 0;
    int last_corner_x = -1;
    int last_corner_y = -1;
    uint64_t missing_generation = ~uint64_t(0);
    std::vector<int> missing;
    int renaming = -1;
    std::string typed_name;
    // The name shown is the old one, selected: the first key typed replaces it.
    bool name_selected = false;
};

// The view run on a tileset's map; what the user chose and whether the map changed.
Map_View::Outcome show_map_editor(Map_Editor& editor, const Tile_Store& store, const std::string& name,
                                  std::function<void(const Picture&)> save_image = {});
