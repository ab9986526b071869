#include "app/strokes/shape_stroke.h"

#include <algorithm>
#include <cstdlib>

#include "app/canvas_view.h"
#include "app/strokes/stroke_context.h"

void Shape_Stroke::begin(Canvas_View& view, Cell& start, int button) {
    (void)start;
    (void)button;
    context.prepare(view);
}

void Shape_Stroke::apply(Canvas_View& view, Cell from, Cell to, int button) {
    Tile* tile = view.tile();
    if (!tile) return;
    context.painter.shape(kind, from.x, from.y, to.x, to.y, context.primary(button), context.secondary(button));
    tile->update_texture();
    show_readouts(from, to);
}

void Shape_Stroke::show_readouts(Cell from, Cell to) {
    const int dx = std::abs(to.x - from.x);
    const int dy = std::abs(to.y - from.y);
    context.readout(Readout::location, to.x, to.y);
    if (kind == shape_line)
        context.readout(Readout::length, std::max(dx, dy) + 1);
    else if (kind <= shape_rectangle_both)
        context.readout(Readout::size, dx + 1, dy + 1);
    else
        context.readout(Readout::radius, dx, dy);
}
