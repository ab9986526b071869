#include "app/strokes/stroke_context.h"

#include "app/canvas_view.h"
#include "app/editor.h"

void Stroke_Context::prepare(Canvas_View& view) {
    if (gather) settings = gather();
    painter.set_target(view.tile());
    painter.set_mask(view.tile_selection().mask());
    painter.set_clip(view.tile_selection().active());
}

void Stroke_Context::take_color(int index, Color c) {
    // Kept here too, so the next press paints with it even before the
    // colour panes answer the gather.
    (index == 0 ? settings.left_color : settings.right_color) = c;
    if (set_tool_color) set_tool_color(index, c);
}

Color Stroke_Context::primary(int button) const {
    return button == Editor::button_right ? settings.right_color : settings.left_color;
}

Color Stroke_Context::secondary(int button) const {
    return button == Editor::button_right ? settings.left_color : settings.right_color;
}
