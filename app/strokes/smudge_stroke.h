#pragma once

#include "app/stroke_action.h"
#include "model/paint/smudge.h"

class Stroke_Context;

// "Smudge brush": the press takes up the colours under the brush, and every
// move drags them along the path from the previous pointer cell, mixing them
// into the pixels they pass over.
class Smudge_Stroke : public Stroke_Action {
public:
    explicit Smudge_Stroke(Stroke_Context& context) : context(context) {}

    bool start_follows_pointer() const override { return true; }
    void begin(Canvas_View& view, Cell& start, int button) override;
    void apply(Canvas_View& view, Cell from, Cell to, int button) override;

private:
    Stroke_Context& context;
    Smudge smudge;
    bool first = true;
};
