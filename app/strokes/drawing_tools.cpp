#include "app/strokes/drawing_tools.h"

#include "app/editor.h"

Drawing_Tools::Drawing_Tools(Editor& editor) {
    for (int kind = shape_line; kind <= shape_ellipse_both; ++kind) {
        shapes[kind] = std::make_unique<Shape_Stroke>(shared, Shape_Kind(kind));
        editor.set_stroke_action(kind, shapes[kind].get());
    }
    editor.set_stroke_action(7, &stamp);
    editor.set_stroke_action(8, &pen);
    editor.set_stroke_action(9, &colorize);
    editor.set_stroke_action(10, &lightness);
    editor.set_stroke_action(11, &dropper);
    editor.set_stroke_action(12, &fill);
    editor.set_stroke_action(13, &smudge);
}

const Tool_Settings& Drawing_Tools::refresh() {
    if (shared.gather) shared.settings = shared.gather();
    return shared.settings;
}
