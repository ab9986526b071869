#pragma once

#include "app/stroke_action.h"
#include "model/paint/painter.h"

class Stroke_Context;

// "Line", "Rectangle" and "Circle": the figure from the press to the pointer,
// redrawn from the tile as it was at the press on every move, with its size
// shown in the tool options pane.
class Shape_Stroke : public Stroke_Action {
public:
    Shape_Stroke(Stroke_Context& context, Shape_Kind kind) : context(context), kind(kind) {}

    bool works_from_backup() const override { return true; }
    void begin(Canvas_View& view, Cell& start, int button) override;
    void apply(Canvas_View& view, Cell from, Cell to, int button) override;

private:
    void show_readouts(Cell from, Cell to);

    Stroke_Context& context;
    Shape_Kind kind;
};
