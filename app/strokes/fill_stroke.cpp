#include "app/strokes/fill_stroke.h"

#include "app/canvas_view.h"
#include "app/strokes/stroke_context.h"

void Fill_Stroke::begin(Canvas_View& view, Cell& start, int button) {
    (void)start;
    (void)button;
    context.prepare(view);
}

void Fill_Stroke::apply(Canvas_View& view, Cell from, Cell to, int button) {
    (void)from;
    Tile* tile = view.tile();
    if (!tile || tile->is_outside(to.x, to.y)) return;
    context.painter.fill(context.grid, to.x, to.y, context.primary(button), *tile, *tile, false);
    tile->update_texture();
}
