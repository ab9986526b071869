#pragma once

#include <SDL3/SDL.h>

#include <memory>

#include "app/stroke_action.h"

class Selection_Tools;
class Tile;

// How a selector changes the selection: a plain left press replaces it, Shift
// with the left button adds to it, the right button takes away from it.
enum class Select_Op { replace, add, remove };
Select_Op select_op(int button, bool shift);

// "Rectangle selector" and "Circle selector": the figure from the press (a
// corner, or the centre) to the pointer, drawn in the second overlay while
// dragging and applied to the selection at the release. A plain click
// without a drag deselects; Shift+click adds the cell, a right click removes it.
class Shape_Select_Stroke : public Stroke_Action {
public:
    Shape_Select_Stroke(Selection_Tools& tools, bool ellipse) : tools(tools), ellipse(ellipse) {}

    bool hides_cursor() const override { return false; }
    void begin(Canvas_View& view, Cell& start, int button) override;
    void apply(Canvas_View& view, Cell from, Cell to, int button) override;
    void finish(Canvas_View& view, Cell start, Cell end, int button, bool dragged) override;

private:
    void paint(Tile& mask, Cell from, Cell to, bool add) const;

    Selection_Tools& tools;
    bool ellipse;
    Select_Op op = Select_Op::replace;
};

// "Brush selector": the current brush paints the selection along the
// pointer's path; the left button adds, the right button takes away.
class Brush_Select_Stroke : public Stroke_Action {
public:
    explicit Brush_Select_Stroke(Selection_Tools& tools) : tools(tools) {}

    bool start_follows_pointer() const override { return true; }
    void begin(Canvas_View& view, Cell& start, int button) override;
    void apply(Canvas_View& view, Cell from, Cell to, int button) override;

private:
    Selection_Tools& tools;
};

// "Wand selector": the 4-connected area of the clicked colour, by the flood
// fill's rules, at the press only.
class Wand_Stroke : public Stroke_Action {
public:
    explicit Wand_Stroke(Selection_Tools& tools) : tools(tools) {}

    bool hides_cursor() const override { return false; }
    bool keeps_pointer_on_tile() const override { return false; }
    bool draws_while_dragging() const override { return false; }
    void begin(Canvas_View& view, Cell& start, int button) override;
    void apply(Canvas_View& view, Cell from, Cell to, int button) override;

private:
    Selection_Tools& tools;
    bool shift = false;
};

// "Work selection": a drag on the selection lifts its pixels into the
// floating image (in the "Fixed" mode a copy, leaving them in place) and
// moves it; a drag on the floating image moves it. A press anywhere else
// clones: the floating image is stamped where it stands (a selection is
// copied) and the image follows the pointer from there.
class Work_Stroke : public Stroke_Action {
public:
    explicit Work_Stroke(Selection_Tools& tools) : tools(tools) {}

    bool hides_cursor() const override { return false; }
    bool keeps_pointer_on_tile() const override { return false; }
    void begin(Canvas_View& view, Cell& start, int button) override;
    void apply(Canvas_View& view, Cell from, Cell to, int button) override;
    // Whether the press moved, lifted or cloned anything: only then it is a step.
    bool completed() const override { return moving; }

private:
    Selection_Tools& tools;
    bool moving = false;
    int grab_x = 0;
    int grab_y = 0;
};

// "Scroll": the tile (or the floating image, when one is pending) follows
// the pointer step by step, pixels wrapping around; a selection moves with
// its pixels. The "Offset" read-out shows the way since the press.
class Scroll_Stroke : public Stroke_Action {
public:
    explicit Scroll_Stroke(Selection_Tools& tools) : tools(tools) {}

    bool keeps_pointer_on_tile() const override { return false; }
    bool start_follows_pointer() const override { return true; }
    void begin(Canvas_View& view, Cell& start, int button) override;
    void apply(Canvas_View& view, Cell from, Cell to, int button) override;

private:
    Selection_Tools& tools;
    int total_x = 0;
    int total_y = 0;
};

// "Freehand rotate": the tile, or the selection with its mask, turned about
// its centre by the angle the pointer has turned about it since the press.
// Every move starts again from the pixels as they were at the press.
class Rotate_Stroke : public Stroke_Action {
public:
    explicit Rotate_Stroke(Selection_Tools& tools);
    ~Rotate_Stroke() override;

    bool works_from_backup() const override { return true; }
    void begin(Canvas_View& view, Cell& start, int button) override;
    void apply(Canvas_View& view, Cell from, Cell to, int button) override;
    void finish(Canvas_View& view, Cell start, Cell end, int button, bool dragged) override;

private:
    double angle_to(SDL_FPoint p) const;

    Selection_Tools& tools;
    std::unique_ptr<Tile> source;
    std::unique_ptr<Tile> source_mask;
    double centre_x = 0;
    double centre_y = 0;
    double start_angle = 0;
};
