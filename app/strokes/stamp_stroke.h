#pragma once

#include "app/stroke_action.h"

class Stroke_Context;

// "Stamp brush": the stamp's image in its own colours with the left button
// and in the right tool colour with the right, placed so that the image's
// middle lies under the pointer. Successive pointer positions are joined.
class Stamp_Stroke : public Stroke_Action {
public:
    explicit Stamp_Stroke(Stroke_Context& context) : context(context) {}

    // The press cell becomes the image's corner: the hotspot is taken off.
    void begin(Canvas_View& view, Cell& start, int button) override;
    void apply(Canvas_View& view, Cell from, Cell to, int button) override;

private:
    Stroke_Context& context;
    int hot_x = 0;
    int hot_y = 0;
    bool first = true;
    // The corner the image was last stamped at.
    Cell last;
};
