#pragma once

#include <deque>
#include <memory>

#include "model/core/rectangle.h"

class Tile;

// The selected pixels' bounding box as an image, the unselected ones
// transparent; none when nothing is selected. What "Copy" keeps, and what a
// brush taken from the selection is made of.
std::unique_ptr<Tile> selected_pixels(const Tile& tile, const Tile& mask);

// Where a copied image lands on a tile: the image to float (a copy, or the
// image resampled to the tile's size) and its top-left corner.
struct Placement {
    std::unique_ptr<Tile> image;
    int x = 0;
    int y = 0;
};

// An image placed on a tile of the given size by the clone style: centred (a
// larger image overhangs evenly), at the top-left corner, or scaled to the
// tile's size, pixel by nearest pixel.
Placement place_image(const Tile& image, int tile_width, int tile_height, int style);

// The images copied from the canvas. The newest is the current one that
// "Paste" floats; the older ones stay as "Previous copies" and any of them can
// be made current again. The buffer belongs to no tileset, so a copy from one
// tileset pastes into another of any tile size.
class Copy_Buffer {
public:
    static constexpr int kept = 12;

    enum Clone_Style : int { centre = 0, top_left = 1, resize = 2 };

    Copy_Buffer();
    ~Copy_Buffer();
    Copy_Buffer(const Copy_Buffer&) = delete;
    Copy_Buffer& operator=(const Copy_Buffer&) = delete;

    // The selected pixels' bounding box, the unselected ones transparent.
    // False, and nothing kept, when nothing is selected.
    bool copy(const Tile& tile, const Tile& mask);
    // An image kept as it is, such as a floating image copied again, with the
    // place it stood on a tile of the given size.
    void keep(const Tile& image, int x, int y, int tile_width, int tile_height);

    bool empty() const { return images.empty(); }
    // The current image, or none.
    const Tile* current() const;
    int count() const { return int(images.size()); }
    // 0 is the current image, 1 the one before it, and so on.
    const Tile* at(int index) const;
    // Makes an older copy current again; false for an index out of range.
    bool make_current(int index);

    // The current image placed by the clone style (place_image); no placement
    // when the buffer is empty.
    Placement place(int tile_width, int tile_height, int style) const;
    // Where the current image was taken from: its place (x, y) on a tile of
    // the size (width, height); empty when the buffer is.
    Rectangle source() const { return images.empty() ? Rectangle{} : images.front().from; }
    int source_tile_width() const { return images.empty() ? 0 : images.front().tile_width; }
    int source_tile_height() const { return images.empty() ? 0 : images.front().tile_height; }
    // Bumped by every change, so a view of the buffer knows when to redraw.
    int generation() const { return changes; }

private:
    struct Entry {
        std::unique_ptr<Tile> image;
        Rectangle from;
        int tile_width = 0;
        int tile_height = 0;
    };
    void push(Entry entry);

    std::deque<Entry> images;
    int changes = 0;
};

// The editor's copy buffer, set while the selection tools exist, for the pane that shows it.
extern Copy_Buffer* g_copy_buffer;
