#include "model/tileset/undo_history.h"

#include "model/core/commands.h"
#include "model/tile/tile_store.h"
#include "model/tileset/undo_target.h"

namespace {
// Unique across tilesets, so no two states of any history share a stamp by chance.
uint64_t next_stamp = 0;
}  // namespace

Undo_History::Undo_History(int32_t capacity) : maximum(capacity), cleared_stamp(++next_stamp) {}

uint64_t Undo_History::content_stamp() const {
    return current >= 0 ? records[size_t(current)]->content_stamp() : cleared_stamp;
}

Undo_History::~Undo_History() = default;

bool Undo_History::record(int command, Tile_Store& store, const Undo_Target* target) {
    if (command < 0 || command >= command_count) return false;
    const Tile* tile = store.current_tile();
    if (!tile) return false;
    const int index = store.current_index();
    const int group = commands::group(command);
    const int inverse = commands::inverse(command);
    const Tile* area = target ? target->floating_area() : nullptr;
    const int area_x = area ? target->floating_x() : 0;
    const int area_y = area ? target->floating_y() : 0;
    if (inverse >= 0) {
        // A floating image carried along to another tile is part of the state.
        // An image carried along to the other tile left its own: a change of contents.
        push(std::make_unique<ImageUndoNode>(inverse, index, *tile, nullptr, area, area_x, area_y),
             group == group_image || area != nullptr);
        return group == group_image;
    }
    if (command == command_work_selection) {
        if (!area) return false;
        const Tile* mask = target->has_selection() ? target->selection_mask() : nullptr;
        push(std::make_unique<PasteUndoNode>(index, *tile, mask, *area, area_x, area_y), true);
        return true;
    }
    if (group != group_image && group != group_selection) return false;
    const bool with_mask = target && (group == group_selection || target->has_selection());
    const Tile* mask = with_mask ? target->selection_mask() : nullptr;
    // "Fill" and "Clear" are selection commands that change pixels.
    const bool content = group == group_image || command == command_fill || command == command_clear;
    push(std::make_unique<ImageUndoNode>(command, index, *tile, mask, area, area_x, area_y), content);
    return content;
}

bool Undo_History::record_if_inverse(int command, Tile_Store& store, const Undo_Target* target) {
    if (command < 0 || command >= command_count || commands::inverse(command) < 0) return false;
    return record(command, store, target);
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

bool Undo_History::undo(Tile_Store& store, Undo_Target& target) {
    if (current <= 0) return false;
    const Undo_Node& shown = *records[size_t(current)];
    // A change of the tile list is taken back from what its record holds.
    if (shown.holds_change())
        shown.revert(store);
    else if (shown.undo_command() >= 0)
        target.run_command(shown.undo_command());
    --current;
    records[size_t(current)]->apply(store, target);
    return true;
}

bool Undo_History::redo(Tile_Store& store, Undo_Target& target) {
    if (current < 0 || current + 1 >= count()) return false;
    ++current;
    const Undo_Node& next = *records[size_t(current)];
    if (next.holds_change())
        next.reapply(store);
    else if (next.redo_command() >= 0)
        target.run_command(next.redo_command());
    records[size_t(current)]->apply(store, target);
    return true;
}
