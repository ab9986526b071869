#include "app/strokes/dropper_stroke.h"

#include "app/canvas_view.h"
#include "app/editor.h"
#include "app/strokes/stroke_context.h"

void Dropper_Stroke::begin(Canvas_View& view, Cell& start, int button) {
    (void)start;
    (void)button;
    context.prepare(view);
    took = false;
}

void Dropper_Stroke::apply(Canvas_View& view, Cell from, Cell to, int button) {
    (void)from;
    const Tile* tile = view.tile();
    if (!tile || tile->is_outside(to.x, to.y)) return;
    const Color c = tile->get_pixel(to.x, to.y);
    context.take_color(button == Editor::button_right ? 1 : 0, c);
    context.readout(Readout::location, to.x, to.y);
    context.readout(Readout::color, int(c.word() & 0xffffff), c.alpha);
    took = true;
}

void Dropper_Stroke::finish(Canvas_View& view, Cell start, Cell end, int button, bool dragged) {
    (void)view;
    (void)start;
    (void)end;
    (void)button;
    (void)dragged;
    if (took && context.settings.select_previous_tool && context.select_previous_tool) context.select_previous_tool();
}
