#include "model/tileset/undo_node.h"

#include "model/core/commands.h"
#include "model/tile/tile.h"
#include "model/tile/tile_store.h"
#include "model/selection/tile_selection.h"

std::unique_ptr<Tile> copy_of(const Tile& source) {
    auto copy = std::make_unique<Tile>(source.width(), source.height());
    source.copy_into(*copy);
    copy->update_texture();
    return copy;
}

Undo_Node::Undo_Node(int32_t command, int32_t tile_index)
    : undo(command),
      redo(command >= 0 && command < command_count ? commands::inverse(command) : -1),
      index(tile_index) {}

void Undo_Node::go_to_tile(Tile_Store& store) const {
    if (store.current_index() != index) store.go_to(index);
}

ImageUndoNode::ImageUndoNode(int32_t command, int32_t tile_index, const Tile& tile, const Tile* mask,
                             const Tile* floating_image, int floating_x, int floating_y)
    : Undo_Node(command, tile_index),
      image(copy_of(tile)),
      selection(mask ? copy_of(*mask) : nullptr),
      floating(floating_image ? copy_of(*floating_image) : nullptr),
      area_x(floating_x),
      area_y(floating_y) {}

ImageUndoNode::~ImageUndoNode() = default;

void ImageUndoNode::apply(Tile_Store& store, Tile_Selection& marks) const {
    go_to_tile(store);
    Tile* current = store.current_tile();
    // The history is emptied whenever the tile size changes, so the sizes match.
    if (current) image->copy_into(*current);
    marks.follow_tile(current);
    marks.restore_mask(selection.get());
    marks.replace_float(floating.get(), area_x, area_y);
}

void ImageUndoNode::draw(int at_x, int at_y) const {
    if (!selection) {
        image->draw(at_x, at_y);
        return;
    }
    Tile shown(selection->width(), selection->height());
    for (int py = 0; py < shown.height(); ++py)
        for (int px = 0; px < shown.width(); ++px) {
            Color c = image->get_pixel(px, py);
            if (!selection->is_white(px, py)) c.alpha = uint8_t(c.alpha / 3);
            shown.set_pixel(px, py, c);
        }
    shown.update_texture();
    shown.draw(at_x, at_y);
}

PasteUndoNode::PasteUndoNode(int32_t tile_index, const Tile& tile, const Tile* mask, const Tile& area, int x, int y)
    : ImageUndoNode(-1, tile_index, tile, mask, &area, x, y) {}

PasteUndoNode::~PasteUndoNode() = default;

void PasteUndoNode::draw(int at_x, int at_y) const { floating_tile()->draw(at_x, at_y); }
