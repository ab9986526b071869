#pragma once

#include "model/color/color.h"

class Painter;
class Tile;

// Stamps an image brush through the painter, so a selection clips it. The
// brush's transparent pixels are left out; the others are written whole, in
// the brush's own colours or in one flat colour. "Brush" mode places the
// image with its top-left corner at the given cell; "Pattern" mode repeats it
// from the tile's corner, so that stamps side by side join seamlessly.
class Brush_Stamp {
public:
    enum Mode : int { mode_brush = 0, mode_pattern = 1 };

    Brush_Stamp(const Tile& image, int mode) : image(image), mode(mode) {}
    // Every stamped pixel takes this colour instead of the brush's own.
    void set_flat_color(Color c) {
        flat = c;
        use_flat = true;
    }

    // The brush pixel that lies under the pointer: the middle, rounding up
    // and left, as the pen's brushes are centred, unless a pad brush brings
    // its own. A hotspot outside the image keeps the middle.
    int hot_x() const;
    int hot_y() const;
    void set_hotspot(int x, int y) {
        hot = {x, y};
    }

    void stamp(Painter& painter, int left, int top) const;
    // The brush at every point of the line between two corners, so a quick
    // drag leaves no gaps.
    void stamp_line(Painter& painter, int x1, int y1, int x2, int y2) const;

private:
    const Tile& image;
    int mode;
    Color flat{};
    bool use_flat = false;
    struct { int x, y; } hot{-1, -1};
};
