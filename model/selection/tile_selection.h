#pragma once

#include <memory>

class Tile;

// The selection on the tile being edited, as the document holds it: the mask
// (pixels whose blue, green and red are all 255 are selected), the mask being
// drawn by a selector, and a floating image that is not yet part of the tile.
// The image wraps: what passes one edge of the tile shows, and is stamped, at
// the other. Undo records copy it and put it back; the canvas only draws it.
class Tile_Selection {
public:
    Tile_Selection();
    ~Tile_Selection();
    Tile_Selection(const Tile_Selection&) = delete;
    Tile_Selection& operator=(const Tile_Selection&) = delete;

    // Follows the tile being edited: a tile of another size gets fresh masks
    // and nothing selected; a floating image keeps floating, cut to what fits.
    void follow_tile(const Tile* tile);

    Tile* mask() { return selected.get(); }
    const Tile* mask() const { return selected.get(); }
    bool active() const { return is_active; }
    void set_active(bool on) { is_active = on; }
    // Clears the mask only: a floating image keeps its outline.
    void clear();
    // The record's mask, or none: deselect. A mask of another size, or one
    // with nothing selected, leaves nothing selected.
    void restore_mask(const Tile* from);

    Tile* drawn_mask() { return drawn.get(); }
    const Tile* drawn_mask() const { return drawn.get(); }
    bool drawing() const { return is_drawing; }
    void set_drawing(bool on) { is_drawing = on; }

    bool float_pending() const { return pending; }
    // The pending floating image, or none, and its place on the tile.
    const Tile* floating_image() const { return pending ? floating.get() : nullptr; }
    int float_x() const { return at_x; }
    int float_y() const { return at_y; }
    // Puts the present image down onto the tile, then floats a copy of this one.
    void paste(const Tile& image, int x, int y, Tile* onto);
    // Stamps the floating image onto the tile; nothing floats afterwards.
    void commit(Tile* onto);
    // Undo puts an earlier image back (or none) without stamping the present one.
    void replace_float(const Tile* image, int x, int y);
    // The image's corner moves to (x, y), brought onto the tile.
    void move_float(int x, int y);
    // Whether the tile cell lies under an opaque pixel of the floating image.
    bool on_float(int x, int y) const;
    // A copy of the tile with the floating image put down; none when nothing floats.
    std::unique_ptr<Tile> put_down_copy(const Tile& tile) const;

private:
    void fit_float(int x, int y);

    int tile_w = 0;
    int tile_h = 0;
    std::unique_ptr<Tile> selected;
    std::unique_ptr<Tile> drawn;
    bool is_active = false;
    bool is_drawing = false;
    std::unique_ptr<Tile> floating;
    int at_x = 0;
    int at_y = 0;
    bool pending = false;
};
