#pragma once

#include "model/color/color.h"

class Distance_Grid;
class Tile;

// The shapes a shape tool draws, from its tool and "Type" choice.
enum Shape_Kind : int {
    shape_line = 0,
    shape_rectangle = 1,
    shape_rectangle_filled = 2,
    shape_rectangle_both = 3,
    shape_ellipse = 4,
    shape_ellipse_filled = 5,
    shape_ellipse_both = 6,
};

// Every drawing algorithm writes through one painter, so that while a
// selection exists nothing outside it changes. The whole colour is written,
// alpha included: there is no blending. Points outside the tile are ignored.
class Painter {
public:
    void set_target(Tile* tile) { target = tile; }
    Tile* target_tile() const { return target; }
    // The selection mask: white (blue, green, red all 255) is selected.
    void set_mask(const Tile* selection) { mask = selection; }
    const Tile* mask_tile() const { return mask; }
    void set_clip(bool on) { clip = on; }
    bool clipping() const { return clip; }

    // False where clipping is on and the mask is not white.
    bool allows(int x, int y) const;
    void plot(int x, int y, Color c);

    void line(int x1, int y1, int x2, int y2, Color c);
    void rectangle_outline(int x1, int y1, int x2, int y2, Color c);
    void rectangle_filled(int x1, int y1, int x2, int y2, Color border, Color inside);
    void ellipse_outline(int cx, int cy, int rx, int ry, Color c);
    void ellipse_filled(int cx, int cy, int rx, int ry, Color border, Color inside);
    // A shape tool's figure from the press (anchor) to the pointer (current):
    // opposite corners for rectangles, centre and radii for ellipses.
    void shape(int kind, int ax, int ay, int cx, int cy, Color primary, Color secondary);

    // The 4-connected area of the seed's blue, green and red in source (alpha
    // compared only when asked), painted into source ("Flood fill") or into
    // destination when the selection is ignored ("Wand selector"), with
    // clipping off. The seed is always painted.
    void fill(Distance_Grid& grid, int x, int y, Color c, Tile& source, Tile& destination, bool ignore_selection,
              bool compare_alpha = false);

private:
    Tile* target = nullptr;
    const Tile* mask = nullptr;
    bool clip = false;
};
