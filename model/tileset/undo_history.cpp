#include "model/tileset/undo_history.h"

#include <algorithm>

#include "model/core/commands.h"
#include "model/tileset/undo_node.h"
#include "model/tile/tile_store.h"
#include "model/selection/tile_selection.h"

namespace {
// Unique across tilesets, so no two states of any history share a stamp by chance.
uint64_t next_stamp = 0;
}  // namespace

Undo_History::Undo_History(int32_t capacity) : maximum(capacity), cleared_stamp(++next_stamp) {}

uint64_t Undo_History::content_stamp() const {
    return current >= 0 ? records[size_t(current)]->content_stamp() : cleared_stamp;
}

Undo_History::~Undo_History() = default;

bool Undo_History::record(int command, Tile_Store& store, const Tile_Selection* selection) {
    if (command < 0 || command >= command_count) return false;
    const Tile* tile = store.current_tile();
    if (!tile) return false;
    const int index = store.current_index();
    const int group = commands::group(command);
    const int inverse = commands::inverse(command);
    const Tile* area = selection ? selection->floating_image() : nullptr;
    const int area_x = area ? selection->float_x() : 0;
    const int area_y = area ? selection->float_y() : 0;
    if (inverse >= 0) {
        // A floating image carried along to another tile is part of the state.
        // An image carried along to the other tile left its own: a change of contents.
        push(std::make_unique<ImageUndoNode>(inverse, index, *tile, nullptr, area, area_x, area_y),
             group == group_image || area != nullptr);
        return group == group_image;
    }
    if (command == command_work_selection) {
        if (!area) return false;
        const Tile* mask = selection->active() ? selection->mask() : nullptr;
        push(std::make_unique<PasteUndoNode>(index, *tile, mask, *area, area_x, area_y), true);
        return true;
    }
    if (group != group_image && group != group_selection) return false;
    const bool with_mask = selection && (group == group_selection || selection->active());
    const Tile* mask = with_mask ? selection->mask() : nullptr;
    // "Fill" and "Clear" are selection commands that change pixels. A step
    // that left every pixel of the tile as the state before it showed them
    // (a deselect with nothing floating) changes no contents.
    const bool content =
        (group == group_image || command == command_fill || command == command_clear) && !shows_same_pixels(store);
    push(std::make_unique<ImageUndoNode>(command, index, *tile, mask, area, area_x, area_y), content);
    return content;
}

bool Undo_History::shows_same_pixels(Tile_Store& store) const {
    if (current < 0) return false;
    const auto* shown = dynamic_cast<const ImageUndoNode*>(records[size_t(current)].get());
    const Tile* tile = store.current_tile();
    if (!shown || !tile || shown->tile_index() != store.current_index() || shown->floating_area()) return false;
    const Tile& before = shown->tile();
    return before.same_size(*tile) && std::equal(tile->pixels(), tile->pixels() + tile->pixel_count(), before.pixels());
}

bool Undo_History::record_if_inverse(int command, Tile_Store& store, const Tile_Selection* selection) {
    if (command < 0 || command >= command_count || commands::inverse(command) < 0) return false;
    return record(command, store, selection);
}

void Undo_History::start(Tile_Store& store) {
    const Tile* tile = store.current_tile();
    if (!tile) return;
    // The first record carries the "Flood fill" number, as it always has.
    push(std::make_unique<ImageUndoNode>(command_flood_fill, store.current_index(), *tile, nullptr), false);
}

// The contents did not change: the new first record keeps their stamp.
void Undo_History::restart(Tile_Store& store) {
    const uint64_t stamp = content_stamp();
    clear();
    cleared_stamp = stamp;
    start(store);
}

void Undo_History::clear() {
    records.clear();
    current = -1;
    cleared_stamp = ++next_stamp;
}

void Undo_History::push(std::unique_ptr<Undo_Node> record, bool content_change) {
    record->set_content_stamp(content_change ? ++next_stamp : content_stamp());
    // A new state after an undo drops the undone ones.
    if (current + 1 < count()) records.erase(records.begin() + (current + 1), records.end());
    records.push_back(std::move(record));
    if (count() > maximum) records.erase(records.begin());
    current = count() - 1;
}

bool Undo_History::undo(Tile_Store& store, Tile_Selection& selection) {
    if (current <= 0) return false;
    const Undo_Node& shown = *records[size_t(current)];
    // A change of the tile list is taken back from what its record holds;
    // every other change is undone by the earlier record's copy alone.
    if (shown.holds_change()) shown.revert(store);
    --current;
    records[size_t(current)]->apply(store, selection);
    return true;
}

bool Undo_History::redo(Tile_Store& store, Tile_Selection& selection) {
    if (current < 0 || current + 1 >= count()) return false;
    ++current;
    const Undo_Node& next = *records[size_t(current)];
    if (next.holds_change()) next.reapply(store);
    next.apply(store, selection);
    return true;
}

int32_t Undo_History::command_to_undo() const {
    return current > 0 ? records[size_t(current)]->undo_command() : -1;
}

int32_t Undo_History::command_to_redo() const {
    return current >= 0 && current + 1 < count() ? records[size_t(current + 1)]->redo_command() : -1;
}
