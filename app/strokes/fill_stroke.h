#pragma once

#include "app/stroke_action.h"

class Stroke_Context;

// "Flood fill": the press fills the area of the pressed pixel's colour with
// the button's tool colour; dragging afterwards does nothing.
class Fill_Stroke : public Stroke_Action {
public:
    explicit Fill_Stroke(Stroke_Context& context) : context(context) {}

    bool hides_cursor() const override { return false; }
    bool keeps_pointer_on_tile() const override { return false; }
    bool draws_while_dragging() const override { return false; }
    void begin(Canvas_View& view, Cell& start, int button) override;
    void apply(Canvas_View& view, Cell from, Cell to, int button) override;

private:
    Stroke_Context& context;
};
