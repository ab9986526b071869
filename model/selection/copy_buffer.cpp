#include "model/selection/copy_buffer.h"

#include "model/tile/tile.h"
#include "model/selection/mask_ops.h"

Copy_Buffer* g_copy_buffer = nullptr;

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

std::unique_ptr<Tile> selected_pixels(const Tile& tile, const Tile& mask) {
    if (!tile.same_size(mask)) return nullptr;
    const Rectangle box = mask_ops::bounds(mask);
    if (box.empty()) return nullptr;
    auto image = std::make_unique<Tile>(box.width, box.height);
    for (int y = 0; y < box.height; ++y)
        for (int x = 0; x < box.width; ++x) {
            const bool inside = mask_ops::is_selected(mask, box.x + x, box.y + y);
            image->set_pixel(x, y, inside ? tile.get_pixel(box.x + x, box.y + y) : Color(0, 0, 0, 0));
        }
    image->update_texture();
    return image;
}

bool Copy_Buffer::copy(const Tile& tile, const Tile& mask) {
    auto image = selected_pixels(tile, mask);
    if (!image) return false;
    push(Entry{std::move(image), mask_ops::bounds(mask), tile.width(), tile.height()});
    return true;
}

void Copy_Buffer::keep(const Tile& image, int x, int y, int tile_width, int tile_height) {
    push(Entry{copy_of(image), Rectangle{x, y, image.width(), image.height()}, tile_width, tile_height});
}

void Copy_Buffer::push(Entry entry) {
    images.push_front(std::move(entry));
    if (int(images.size()) > kept) images.pop_back();
    ++changes;
}

const Tile* Copy_Buffer::current() const { return images.empty() ? nullptr : images.front().image.get(); }

const Tile* Copy_Buffer::at(int index) const {
    return index >= 0 && index < int(images.size()) ? images[size_t(index)].image.get() : nullptr;
}

bool Copy_Buffer::make_current(int index) {
    if (index < 0 || index >= int(images.size())) return false;
    auto chosen = std::move(images[size_t(index)]);
    images.erase(images.begin() + index);
    images.push_front(std::move(chosen));
    ++changes;
    return true;
}

Placement Copy_Buffer::place(int tile_width, int tile_height, int style) const {
    const Tile* image = current();
    return image ? place_image(*image, tile_width, tile_height, style) : Placement{};
}

Placement place_image(const Tile& source, int tile_width, int tile_height, int style) {
    Placement p;
    const Tile* image = &source;
    // Nearest neighbour: a pixel artist's image keeps its own colours and its
    // transparency, where blending would invent colours and fill the holes.
    if (style == Copy_Buffer::resize && !(image->width() == tile_width && image->height() == tile_height)) {
        p.image = std::make_unique<Tile>(tile_width, tile_height);
        for (int y = 0; y < tile_height; ++y)
            for (int x = 0; x < tile_width; ++x)
                p.image->set_pixel(x, y, image->get_pixel(x * image->width() / tile_width,
                                                          y * image->height() / tile_height));
        p.image->update_texture();
        return p;
    }
    p.image = copy_of(*image);
    if (style == Copy_Buffer::centre) {
        p.x = (tile_width - image->width()) / 2;
        p.y = (tile_height - image->height()) / 2;
    }
    return p;
}
