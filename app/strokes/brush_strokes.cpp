#include "app/strokes/brush_strokes.h"

#include "app/canvas_view.h"
#include "app/editor.h"
#include "app/strokes/stroke_context.h"
#include "model/color/color_forms.h"

void Brush_Stroke::begin(Canvas_View& view, Cell& start, int button) {
    (void)start;
    (void)button;
    context.prepare(view);
}

bool Brush_Stroke::picks_color(int button) const {
    return button == Editor::button_right && context.settings.right_button_mode == right_button_dropper;
}

void Brush_Stroke::apply(Canvas_View& view, Cell from, Cell to, int button) {
    Tile* tile = view.tile();
    if (!tile) return;
    context.readout(Readout::location, to.x, to.y);
    if (picks_color(button)) {
        if (!tile->is_outside(to.x, to.y)) context.take_color(0, tile->get_pixel(to.x, to.y));
        return;
    }
    Footprint& covered = context.footprint;
    covered.reset(tile->width(), tile->height());
    covered.stamp_line(context.settings.brush, from.x, from.y, to.x, to.y);
    const Painter& painter = context.painter;
    covered.for_each([&](int x, int y) {
        if (painter.allows(x, y)) touch(view, *tile, x, y, button);
    });
    tile->update_texture();
}

void Pen_Stroke::touch(Canvas_View& view, Tile& tile, int x, int y, int button) {
    if (button == Editor::button_right && context.settings.right_button_mode == right_button_history) {
        const Tile* saved = view.saved_copy();
        if (saved) tile.set_pixel(x, y, saved->get_pixel(x, y));
        return;
    }
    tile.set_pixel(x, y, context.primary(button));
}

void Colorize_Stroke::touch(Canvas_View& view, Tile& tile, int x, int y, int button) {
    if (button == Editor::button_right && context.settings.right_button_mode == right_button_history) {
        const Tile* saved = view.saved_copy();
        if (saved) tile.set_pixel(x, y, saved->get_pixel(x, y));
        return;
    }
    Color c = tile.get_pixel(x, y);
    if (context.settings.colorize_type == 0)
        colorize_keep_magnitude(c, context.primary(button));
    else
        colorize_keep_value(c, context.primary(button));
    tile.set_pixel(x, y, c);
}
