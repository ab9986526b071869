#include "app/strokes/stamp_stroke.h"

#include "app/canvas_view.h"
#include "app/editor.h"
#include "app/strokes/stroke_context.h"
#include "model/paint/brush_stamp.h"

void Stamp_Stroke::begin(Canvas_View& view, Cell& start, int button) {
    (void)button;
    context.prepare(view);
    hot_x = 0;
    hot_y = 0;
    if (const Tile* image = context.settings.stamp) {
        Brush_Stamp stamp(*image, context.settings.stamp_mode);
        stamp.set_hotspot(context.settings.stamp_hot_x, context.settings.stamp_hot_y);
        hot_x = stamp.hot_x();
        hot_y = stamp.hot_y();
    }
    start.x -= hot_x;
    start.y -= hot_y;
    last = start;
    first = true;
}

void Stamp_Stroke::apply(Canvas_View& view, Cell from, Cell to, int button) {
    (void)from;
    Tile* tile = view.tile();
    if (!tile) return;
    // The press comes with its corner; later cells are the pointer's.
    const Cell corner = first ? to : Cell{to.x - hot_x, to.y - hot_y};
    first = false;
    if (const Tile* image = context.settings.stamp) {
        Brush_Stamp stamp(*image, context.settings.stamp_mode);
        if (button == Editor::button_right) stamp.set_flat_color(context.primary(button));
        stamp.stamp_line(context.painter, last.x, last.y, corner.x, corner.y);
    } else {
        // Without an image the stamp is one pixel in the button's tool colour.
        context.painter.line(last.x, last.y, corner.x, corner.y, context.primary(button));
    }
    last = corner;
    tile->update_texture();
    context.readout(Readout::location, corner.x + hot_x, corner.y + hot_y);
}
