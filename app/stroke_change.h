#pragma once

#include <vector>

#include "model/color/color.h"

class Tile;

class Canvas_View;

// Tells whether a stroke changed anything: the tile's pixels, the selection
// mask, whether there is a selection, or the floating image's place. A stroke that changed nothing must not
// become an undo step or mark the tileset modified. The buffers are kept, so
// after the first stroke taking a snapshot allocates nothing.
class Stroke_Change {
public:
    void take(Canvas_View& view);
    bool changed(Canvas_View& view) const;

private:
    std::vector<Color> pixels;
    std::vector<Color> mask;
    bool selection = false;
    const Tile* floating = nullptr;
    int floating_x = 0;
    int floating_y = 0;
};
