#include "app/strokes/smudge_stroke.h"

#include "app/canvas_view.h"
#include "app/strokes/stroke_context.h"

void Smudge_Stroke::begin(Canvas_View& view, Cell& start, int button) {
    (void)start;
    (void)button;
    context.prepare(view);
    smudge.set_strength(context.settings.smudge_strength);
    first = true;
}

void Smudge_Stroke::apply(Canvas_View& view, Cell from, Cell to, int button) {
    (void)button;
    Tile* tile = view.tile();
    if (!tile) return;
    context.readout(Readout::location, to.x, to.y);
    if (first) {
        first = false;
        smudge.pick_up(context.painter, context.settings.brush, to.x, to.y);
        return;
    }
    smudge.drag(context.painter, context.settings.brush, from.x, from.y, to.x, to.y);
    tile->update_texture();
}
