#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "model/tileset/undo_node.h"

class Tile_Store;
class Tile_Selection;

// A tileset's short list of states, oldest first, with the position of the
// state shown. Undo steps back and restores the earlier state; redo steps
// forward. The oldest record is the floor: it is never undone.
class Undo_History {
public:
    static constexpr int32_t default_capacity = 18;

    explicit Undo_History(int32_t capacity = default_capacity);
    ~Undo_History();
    Undo_History(const Undo_History&) = delete;
    Undo_History& operator=(const Undo_History&) = delete;

    // Records the state after command. A command with an inverse records a
    // copy of the current tile under its inverse; image and selection
    // commands under their own number, with the selection mask when the
    // selection counts; "Work selection" records the floating area. True when
    // the command changed the tile's image. No selection: nothing selected.
    bool record(int command, Tile_Store& store, const Tile_Selection* selection);
    // record, only for a command that has an inverse; false otherwise.
    bool record_if_inverse(int command, Tile_Store& store, const Tile_Selection* selection);
    // A record made by its command itself (a change of the tile list, a
    // floating image put down or carried away); content_change says whether
    // it changed what the tileset holds.
    void push(std::unique_ptr<Undo_Node> record, bool content_change = true);
    // Names the contents in the state shown: equal stamps, equal contents
    // (as far as the history knows; a saved tileset keeps the stamp of its
    // save to tell whether it was changed since).
    uint64_t content_stamp() const;
    // The first record of a tileset: its current tile, no mask.
    void start(Tile_Store& store);
    void restart(Tile_Store& store);
    void clear();

    // Steps back (or forward) and applies the record reached: the tile, its
    // place in the list, the selection and the floating image come back.
    bool undo(Tile_Store& store, Tile_Selection& selection);
    bool redo(Tile_Store& store, Tile_Selection& selection);
    // The command of the step undo would take back, or redo make again; -1 for none.
    int32_t command_to_undo() const;
    int32_t command_to_redo() const;

    int32_t capacity() const { return maximum; }
    int count() const { return int(records.size()); }
    // The index of the record shown, -1 when the history is empty.
    int position() const { return current; }
    const Undo_Node& at(int index) const { return *records[size_t(index)]; }

private:
    // The current tile shows the pixels of the state shown, nothing floating.
    bool shows_same_pixels(Tile_Store& store) const;

    int32_t maximum;
    int current = -1;
    // The stamp of an empty history; a new one after every clear, since the
    // tileset changed in a way no record holds (its tiles were resized).
    uint64_t cleared_stamp;
    std::vector<std::unique_ptr<Undo_Node>> records;
};
