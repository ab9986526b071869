#pragma once

#include <SDL3/SDL.h>

#include <functional>
#include <memory>
#include <vector>

#include "app/canvas_picture.h"
#include "app/stroke_action.h"
#include "model/color/color.h"
#include "model/tile/tile.h"
#include "model/core/rectangle.h"
#include "model/selection/tile_selection.h"

class Main_Window;

// The current tile magnified in the canvas area: the cells (drawn by its
// `Canvas_Picture`), the selection's dashed edges, the floating image's frame
// and the seam markers. The selection and the floating image belong to the
// document (`Tile_Selection`); the view keeps the zoom, the pan and the seam
// offsets, and runs strokes in a loop of its own.
class Canvas_View {
public:
    static constexpr int min_pixel_size = 3;
    static constexpr int max_pixel_size = 32;

    Canvas_View(const Rectangle& view, Color background, Tile_Selection& selection);
    ~Canvas_View();
    Canvas_View(const Canvas_View&) = delete;
    Canvas_View& operator=(const Canvas_View&) = delete;

    // Accepted only for 3..32.
    bool set_pixel_size(int s);
    int pixel_size() const { return cell_size; }
    // One step of the wheel; keeps the tile's centre where it was.
    bool zoom(int direction);
    void pan(int dx, int dy);
    void centre();
    void set_grid_contrast(int amount) { grid_contrast = amount; }
    // The checkerboard behind transparent pixels, in tile pixels per square.
    void set_checker_size(int width, int height);

    // Ends the seam offsets of the tile shown before, takes the new tile and
    // sizes the selection to it. A tile of another size is centred.
    void set_tile(Tile* tile);
    Tile* tile() const { return shown; }
    void save_copy();
    const Tile* saved_copy() const { return history.get(); }

    // Seam offsets: -1 is off, otherwise how far the tile is scrolled.
    int seam_offset_h() const { return seam_h; }
    int seam_offset_v() const { return seam_v; }
    void set_seam_offsets(int horizontal, int vertical);
    void end_seams();

    // The selection and floating image drawn over the tile.
    Tile_Selection& tile_selection() { return marks; }
    const Tile_Selection& tile_selection() const { return marks; }
    // A copy of the tile as the user sees it drawn: with the floating image
    // put down and without the seam offset. None when that is the tile itself.
    std::unique_ptr<Tile> tile_as_shown() const;

    bool contains(float x, float y) const { return view.contains(x, y); }
    Cell cell_at(float x, float y) const;
    // Where the pointer stood at the last event of the stroke, in tile pixels
    // with fractions (the cell's corner is whole): finer than its cell, for
    // the tools that measure angles.
    SDL_FPoint stroke_point() const { return stroke_pointer; }
    const Rectangle& view_rect() const { return view; }
    SDL_Point origin() const { return SDL_Point{origin_x, origin_y}; }
    int extent_width() const { return extent_w; }
    int extent_height() const { return extent_h; }

    void draw(Main_Window& window);

    // The stroke: runs the action from the press until the button is released
    // or a quit arrives, repainting after every event. Returns the last cell.
    Cell press(Stroke_Action& action, int button, float x, float y);

    // Repaints the whole window with present; set by the editor.
    std::function<void()> repaint;
    // The tool bar's seam button for an offset that was ended (true: horizontal).
    std::function<void(bool horizontal)> seam_released;
    // Where the pointer went during a stroke and where it was released, so
    // the brush outline and the read-out follow it; set by the editor.
    std::function<void(float x, float y)> pointer_moved;

private:
    SDL_FPoint stroke_pointer{0, 0};
    Canvas_Picture::Frame frame() const;
    void draw_cell_marks(Main_Window& window, int tx, int ty, int px, int py);
    void draw_edges(Main_Window& window, const Tile& m, int tx, int ty, int px, int py, bool active);
    void keep_pointer_on_tile(float x, float y);
    void frame_float(Main_Window& window);
    void update_extent();

    Rectangle view;
    Color background;
    int cell_size = 10;
    Tile* shown = nullptr;
    int shown_w = 0;
    int shown_h = 0;
    std::unique_ptr<Tile> history;
    Tile_Selection& marks;
    int grid_contrast = 64;
    int checker_w = 6;
    int checker_h = 6;
    int seam_h = -1;
    int seam_v = -1;
    int origin_x = 0;
    int origin_y = 0;
    int extent_w = 0;
    int extent_h = 0;
    Canvas_Picture picture;
};
