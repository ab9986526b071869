#include "selection/copy_buffer.h"

#include "document/tile.h"
#include "selection/mask_ops.h"

namespace {
std::unique_ptr<Tile> copy_of(const Tile& source) {
    auto copy = std::make_unique<Tile>(source.width(), source.height());
    std::copy(source.pixels(), source.pixels() + source.pixel_count(), copy->pixels());
    copy->update_texture();
    return copy;
}
}  // namespace

Copy_Buffer::Copy_Buffer() = default;
Copy_Buffer::~Copy_Buffer() = default;

bool Copy_Buffer::copy(const Tile& tile, const Tile& mask) {
    if (!tile.same_size(mask)) return false;
    const Rectangle box = mask_ops::bounds(mask);
    if (box.empty()) return false;
    auto image = std::make_unique<Tile>(box.width, box.height);
    for (int y = 0; y < box.height; ++y)
        for (int x = 0; x < box.width; ++x) {
            const bool inside = mask_ops::is_selected(mask, box.x + x, box.y + y);
            image->set_pixel(x, y, inside ? tile.get_pixel(box.x + x, box.y + y) : Color(0, 0, 0, 0));
        }
    image->update_texture();
    images.push_front(std::move(image));
    if (int(images.size()) > kept) images.pop_back();
    return true;
}

void Copy_Buffer::keep(const Tile& image) {
    images.push_front(copy_of(image));
    if (int(images.size()) > kept) images.pop_back();
}

const Tile* Copy_Buffer::current() const { return images.empty() ? nullptr : images.front().get(); }

const Tile* Copy_Buffer::at(int index) const {
    return index >= 0 && index < int(images.size()) ? images[size_t(index)].get() : nullptr;
}

bool Copy_Buffer::make_current(int index) {
    if (index < 0 || index >= int(images.size())) return false;
    auto chosen = std::move(images[size_t(index)]);
    images.erase(images.begin() + index);
    images.push_front(std::move(chosen));
    return true;
}

Placement Copy_Buffer::place(int tile_width, int tile_height, int style) const {
    Placement p;
    const Tile* image = current();
    if (!image) return p;
    // Nearest neighbour: a pixel artist's image keeps its own colours and its
    // transparency, where blending would invent colours and fill the holes.
    if (style == resize && !(image->width() == tile_width && image->height() == tile_height)) {
        p.image = std::make_unique<Tile>(tile_width, tile_height);
        for (int y = 0; y < tile_height; ++y)
            for (int x = 0; x < tile_width; ++x)
                p.image->set_pixel(x, y, image->get_pixel(x * image->width() / tile_width,
                                                          y * image->height() / tile_height));
        p.image->update_texture();
        return p;
    }
    p.image = copy_of(*image);
    if (style == centre) {
        p.x = (tile_width - image->width()) / 2;
        p.y = (tile_height - image->height()) / 2;
    }
    return p;
}
