#pragma once

#include <memory>

#include "app/strokes/brush_strokes.h"
#include "app/strokes/dropper_stroke.h"
#include "app/strokes/fill_stroke.h"
#include "app/strokes/lightness_stroke.h"
#include "app/strokes/shape_stroke.h"
#include "app/strokes/smudge_stroke.h"
#include "app/strokes/stamp_stroke.h"
#include "app/strokes/stroke_context.h"

class Editor;

// The painting tools' strokes, registered with the editor under their canvas
// actions: the line, rectangles and ellipses (0 to 6), the stamp brush (7),
// the pen (8), the colorize pen (9), the lightness pen (10), the dropper (11),
// the fill (12) and the smudge brush (13).
class Drawing_Tools {
public:
    explicit Drawing_Tools(Editor& editor);
    Drawing_Tools(const Drawing_Tools&) = delete;
    Drawing_Tools& operator=(const Drawing_Tools&) = delete;

    Stroke_Context& context() { return shared; }
    // The settings a press will use, gathered afresh.
    const Tool_Settings& refresh();

private:
    Stroke_Context shared;
    std::unique_ptr<Shape_Stroke> shapes[7];
    Pen_Stroke pen{shared};
    Colorize_Stroke colorize{shared};
    Lightness_Stroke lightness{shared};
    Dropper_Stroke dropper{shared};
    Fill_Stroke fill{shared};
    Stamp_Stroke stamp{shared};
    Smudge_Stroke smudge{shared};
};
