#pragma once

#include <SDL3/SDL.h>

#include <memory>

#include "ui/pane.h"
#include "model/core/rectangle.h"

class Texture;
class Tile_Store;

// "Tiles in real size": the tiles at one screen pixel per tile pixel, laid
// out row by row without gaps in a 512 x 512 picture, as many as fit. A left
// click on a tile chooses it; Escape, Return, "y", "Ok", a quit or a close
// request close the view. The current tile is framed, the one under the
// pointer outlined.
class Real_Size_View {
public:
    static constexpr int picture_size = 512;
    static constexpr int frame_width = 522;
    static constexpr int frame_height = 583;

    explicit Real_Size_View(const Tile_Store& store);
    ~Real_Size_View();
    Real_Size_View(const Real_Size_View&) = delete;
    Real_Size_View& operator=(const Real_Size_View&) = delete;

    // The modal loop; the tile chosen last, or the current one when none was.
    int run();

    // The tile under a window point, -1 for none.
    int hit(float x, float y) const;
    // Where a tile stands in the window; empty for a tile the picture cannot hold.
    Rectangle tile_area(int index) const;
    Rectangle picture() const;
    Rectangle ok_button() const;
    Rectangle frame() const { return pane.outer_area(); }
    Backdrop::Area modal_area() const { return pane.modal_area(); }
    int shown_count() const;

    void draw();

private:
    bool handle(const SDL_Event& event);
    void compose();

    const Tile_Store& store;
    Pane pane;
    int across;
    int down;
    int chosen;
    int hovered = -1;
    std::unique_ptr<Texture> image;
};

// The view run on the store; the index of the tile chosen.
int show_real_size(const Tile_Store& store);
