#include "app/strokes/lightness_stroke.h"

#include <SDL3/SDL.h>

#include "app/canvas_view.h"
#include "app/editor.h"
#include "app/strokes/stroke_context.h"
#include "platform/event_source.h"

void Lightness_Stroke::begin(Canvas_View& view, Cell& start, int button) {
    (void)button;
    context.prepare(view);
    const Tool_Settings& s = context.settings;
    interval = adjust::Lightness_Pacer::interval(s.speed, s.size_compensation, s.brush_width);
    first = true;
    last = start;
}

void Lightness_Stroke::apply(Canvas_View& view, Cell from, Cell to, int button) {
    (void)from;
    Tile* tile = view.tile();
    if (!tile) return;
    // The press steps at once; later pointer events step when one is due.
    const uint64_t now = event_ticks();
    if (first) {
        first = false;
        pacer.reset(now);
    } else if (!pacer.due(now, interval)) {
        return;
    }
    const bool lighten = adjust::Lightness_Pacer::lightens(button, context.settings.button_order);
    Footprint& covered = context.footprint;
    covered.reset(tile->width(), tile->height());
    covered.stamp_line(context.settings.brush, last.x, last.y, to.x, to.y);
    last = to;
    const Painter& painter = context.painter;
    covered.for_each([&](int x, int y) {
        if (!painter.allows(x, y)) return;
        Color c = tile->get_pixel(x, y);
        adjust::Lightness_Pacer::step(c, lighten, context.settings.lightness_mode);
        tile->set_pixel(x, y, c);
    });
    tile->update_texture();
    context.readout(Readout::location, to.x, to.y);
}
