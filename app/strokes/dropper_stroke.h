#pragma once

#include "app/stroke_action.h"

class Stroke_Context;

// "Dropper": the pixel under the pointer becomes the first tool colour with
// the left button and the second with the right, following the pointer while
// the button is held. With "Select previous tool" the tool used before the
// dropper returns once the colour is taken.
class Dropper_Stroke : public Stroke_Action {
public:
    explicit Dropper_Stroke(Stroke_Context& context) : context(context) {}

    bool hides_cursor() const override { return false; }
    void begin(Canvas_View& view, Cell& start, int button) override;
    void apply(Canvas_View& view, Cell from, Cell to, int button) override;
    void finish(Canvas_View& view, Cell start, Cell end, int button, bool dragged) override;

private:
    Stroke_Context& context;
    bool took = false;
};
