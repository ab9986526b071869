#pragma once

#include "app/stroke_action.h"
#include "model/paint/adjust.h"

class Stroke_Context;

// "Lightness pen": while held, lightens or darkens the pixels under the brush
// in paced steps; each step covers the path since the last step, so pixels
// are not skipped when the pointer moves faster than the steps come.
class Lightness_Stroke : public Stroke_Action {
public:
    explicit Lightness_Stroke(Stroke_Context& context) : context(context) {}

    void begin(Canvas_View& view, Cell& start, int button) override;
    void apply(Canvas_View& view, Cell from, Cell to, int button) override;

private:
    Stroke_Context& context;
    adjust::Lightness_Pacer pacer;
    int interval = 0;
    bool first = true;
    Cell last;
};
