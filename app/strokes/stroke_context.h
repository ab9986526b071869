#pragma once

#include <functional>

#include "app/strokes/tool_settings.h"
#include "model/paint/distance_grid.h"
#include "model/paint/footprint.h"
#include "model/paint/painter.h"

class Canvas_View;

// What every stroke shares: the painter, the fill's grid and the brush
// footprint (kept between strokes so drawing does not allocate), the settings
// of the press, and the ways back to the panes that own those settings.
class Stroke_Context {
public:
    // Takes the settings (from gather when connected) and points the painter
    // at the view's tile, clipped to its selection when there is one.
    void prepare(Canvas_View& view);
    // A colour picked from the tile becomes tool colour 0 (left) or 1 (right).
    void take_color(int index, Color c);
    void readout(Readout kind, int a, int b = 0) {
        if (show_readout) show_readout(kind, a, b);
    }
    // Tool colours for a button: the left button paints in the left colour
    // with the right one second, the right button the other way round.
    Color primary(int button) const;
    Color secondary(int button) const;

    Tool_Settings settings;
    Painter painter;
    Distance_Grid grid;
    Footprint footprint;

    // Connected by the editor to the panes; each may be left empty.
    std::function<Tool_Settings()> gather;
    std::function<void(int index, Color c)> set_tool_color;
    std::function<void()> select_previous_tool;
    std::function<void(Readout kind, int a, int b)> show_readout;
};
