#pragma once

#include <SDL3/SDL.h>

#include <memory>

#include "ui/pane.h"
#include "model/core/rectangle.h"

class Texture;
class Tile;

// "Repeated tile view": one tile repeated row by row over the alpha-grid
// checkerboard, as large as the window allows, so that a seam between
// neighbours is plain to see. Small tiles are magnified by a whole factor.
// Any key, a mouse button, a quit or a close request closes it.
class Repeated_View {
public:
    // A repeated tile covers at least this many screen pixels on its longer side.
    static constexpr int least_extent = 64;
    // Kept free between the view's frame and the window's edges.
    static constexpr int window_margin = 16;

    // The checkerboard's cells are given in tile pixels.
    Repeated_View(const Tile& tile, int checker_width, int checker_height);
    ~Repeated_View();
    Repeated_View(const Repeated_View&) = delete;
    Repeated_View& operator=(const Repeated_View&) = delete;

    void run();

    // The whole factor for a tile of that size.
    static int zoom_for(int tile_width, int tile_height);
    int zoom() const { return factor; }
    int across() const { return count_x; }
    int down() const { return count_y; }
    // Where the repeated picture stands in the window.
    Rectangle picture() const;
    Rectangle frame() const { return pane.outer_area(); }
    Backdrop::Area modal_area() const { return pane.modal_area(); }

    void draw();

private:
    void compose(const Tile& tile, int checker_width, int checker_height);

    int factor;
    int count_x;
    int count_y;
    Pane pane;
    std::unique_ptr<Texture> image;
};

void show_repeated_view(const Tile& tile, int checker_width, int checker_height);
