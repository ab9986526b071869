#include "app/strokes/drawing_tools.h"

#include "app/editor.h"

Drawing_Tools::Drawing_Tools(Editor& editor) {
    for (int kind = shape_line; kind <= shape_ellipse_both; ++kind)
        shapes[kind] = std::make_unique<Shape_Stroke>(shared, Shape_Kind(kind));
    editor.set_stroke(command_line, shapes[shape_line].get());
    // The figure types follow the shape kinds: outline, filled, both.
    for (int type = 0; type < Editor::stroke_variants; ++type) {
        editor.set_stroke(command_rectangle, shapes[shape_rectangle + type].get(), type);
        editor.set_stroke(command_circle, shapes[shape_ellipse + type].get(), type);
    }
    editor.set_stroke(command_stamp_brush, &stamp);
    editor.set_stroke(command_pen, &pen);
    editor.set_stroke(command_colorize_pen, &colorize);
    editor.set_stroke(command_lightness_pen, &lightness);
    editor.set_stroke(command_dropper, &dropper);
    editor.set_stroke(command_flood_fill, &fill);
    editor.set_stroke(command_smudge_brush, &smudge);
}

const Tool_Settings& Drawing_Tools::refresh() {
    if (shared.gather) shared.settings = shared.gather();
    return shared.settings;
}
