#pragma once

#include "app/stroke_action.h"
#include "model/color/color.h"

class Stroke_Context;
class Tile;

// The tools that work with the brush along the pointer's path: every move
// covers the line from the previous pointer cell to the new one, so a fast
// stroke leaves no gaps, and every covered pixel inside the selection is
// touched once per move.
class Brush_Stroke : public Stroke_Action {
public:
    explicit Brush_Stroke(Stroke_Context& context) : context(context) {}

    bool start_follows_pointer() const override { return true; }
    void begin(Canvas_View& view, Cell& start, int button) override;
    void apply(Canvas_View& view, Cell from, Cell to, int button) override;

protected:
    // The right button's "Dropper" mode: the pixel under the pointer becomes
    // the left tool colour and nothing is painted.
    bool picks_color(int button) const;
    virtual void touch(Canvas_View& view, Tile& tile, int x, int y, int button) = 0;

    Stroke_Context& context;
};

// "Pen": the brush in the left tool colour; the right button paints in the
// right colour, from the saved copy ("History") or picks ("Dropper").
class Pen_Stroke : public Brush_Stroke {
public:
    using Brush_Stroke::Brush_Stroke;

protected:
    void touch(Canvas_View& view, Tile& tile, int x, int y, int button) override;
};

// "Colorize pen": like the pen, but the pixels keep their brightness and take
// the hue of the tool colour ("Linear" keeps each pixel's length as a colour
// vector, "Luma" its value).
class Colorize_Stroke : public Brush_Stroke {
public:
    using Brush_Stroke::Brush_Stroke;

protected:
    void touch(Canvas_View& view, Tile& tile, int x, int y, int button) override;
};
