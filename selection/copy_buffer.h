#pragma once

#include <deque>
#include <memory>

class Tile;

// Where a copied image lands on a tile: the image to float (a copy, or the
// image resampled to the tile's size) and its top-left corner.
struct Placement {
    std::unique_ptr<Tile> image;
    int x = 0;
    int y = 0;
};

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
    // An image kept as it is, such as a floating image copied again.
    void keep(const Tile& image);

    bool empty() const { return images.empty(); }
    // The current image, or none.
    const Tile* current() const;
    int count() const { return int(images.size()); }
    // 0 is the current image, 1 the one before it, and so on.
    const Tile* at(int index) const;
    // Makes an older copy current again; false for an index out of range.
    bool make_current(int index);

    // The current image placed on a tile of the given size by the clone style:
    // centred (a larger image overhangs evenly), at the top-left corner, or
    // scaled to the tile's size, pixel by nearest pixel. No placement when the
    // buffer is empty.
    Placement place(int tile_width, int tile_height, int style) const;

private:
    std::deque<std::unique_ptr<Tile>> images;
};
