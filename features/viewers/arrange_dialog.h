#pragma once

#include <SDL3/SDL.h>

#include "ui/dialog.h"
#include "model/core/rectangle.h"

class Tile_Store;

// "Arrange/Select": every tile of a tileset in a grid of cells. The left
// button marks the primary tile, the right button the secondary one; Tab
// swaps the two (each marker stays on the tile it marked), Space makes the
// primary tile current and closes. Escape, Return, "y", "Ok", a quit or a
// close request close it as well.
class Arrange_Dialog {
public:
    // The editor's grid: 16 x 16 cells hold the most tiles a tileset can be
    // made with, and 32-pixel cells fit the big markers; the dialog then fits
    // the window with room to spare.
    static constexpr int default_columns = 16;
    static constexpr int default_rows = 16;
    static constexpr int default_cell = 32;
    // Inside the markers' frame a cell shows a picture of this many pixels.
    static constexpr int picture_inset = 4;

    Arrange_Dialog(int columns, int rows, int cell_width, int cell_height, Tile_Store& store);
    Arrange_Dialog(const Arrange_Dialog&) = delete;
    Arrange_Dialog& operator=(const Arrange_Dialog&) = delete;

    // The modal loop; true when at least one swap was made.
    bool run();

    // The tile under a window point, -1 for none (outside the grid or past
    // the last tile).
    int hit(float x, float y) const;
    Rectangle grid() const;
    Rectangle frame() const { return box.pane().outer_area(); }
    Backdrop::Area modal_area() const { return box.pane().modal_area(); }
    // Where a tile's picture stands inside its cell.
    Rectangle picture_of(int index) const;
    int primary_tile() const { return primary; }
    int secondary_tile() const { return secondary; }

    void draw();

private:
    // False when the event closes the dialog.
    bool handle(const SDL_Event& event);
    void press(float x, float y, int button);
    void draw_grid(const Rectangle& area);
    void draw_marker(int sprite, int index, const Rectangle& area);
    void draw_texts(const Rectangle& area);

    int columns;
    int rows;
    int cell_width;
    int cell_height;
    Tile_Store& store;
    int primary = 0;
    int secondary = 0;
    int start = 0;
    int hovered = -1;
    bool swapped = false;
    Dialog box;
    Dialog_Item* grid_item = nullptr;
};
