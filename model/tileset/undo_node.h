#pragma once

#include <cstdint>
#include <memory>

class Tile;
class Tile_Store;
class Tile_Selection;

// A copy of a tile with its own texture, as records keep them.
std::unique_ptr<Tile> copy_of(const Tile& source);

// One state of a tileset in its undo history. Applying a record brings the
// tile, the selection and the floating image back; its undo and redo commands
// only name what the user did (a tool's command chooses that tool again).
class Undo_Node {
public:
    // The redo command is the command table's inverse of the undo command.
    Undo_Node(int32_t command, int32_t tile_index);
    virtual ~Undo_Node() = default;
    Undo_Node(const Undo_Node&) = delete;
    Undo_Node& operator=(const Undo_Node&) = delete;

    // Brings the tileset and the selection back to this record's state.
    virtual void apply(Tile_Store& store, Tile_Selection& selection) const = 0;
    // The record's picture with its top-left corner at (x, y).
    virtual void draw(int x, int y) const = 0;
    // A record that holds its change itself (a change of the tile list) takes
    // it back before the record before it is applied, and makes it again
    // before it is applied itself; no command runs for it.
    virtual bool holds_change() const { return false; }
    virtual void revert(Tile_Store&) const {}
    virtual void reapply(Tile_Store&) const {}

    int32_t undo_command() const { return undo; }
    int32_t redo_command() const { return redo; }
    int32_t tile_index() const { return index; }
    // Names the tileset's contents in this state: records that change no
    // pixel and no tile (a change of tile, a selection) carry the stamp of the
    // record before them. The history sets it.
    uint64_t content_stamp() const { return content; }
    void set_content_stamp(uint64_t stamp) { content = stamp; }

protected:
    // Goes to the record's tile when another one is current.
    void go_to_tile(Tile_Store& store) const;

    int32_t undo;
    int32_t redo;
    int32_t index;
    uint64_t content = 0;
};

// A copy of one tile as it was after a change, of the selection mask when
// there was one, and of the floating image when one was pending: applying it
// brings all three back, so a floating image never outlives the state it
// belonged to.
class ImageUndoNode : public Undo_Node {
public:
    ImageUndoNode(int32_t command, int32_t tile_index, const Tile& tile, const Tile* mask,
                  const Tile* floating = nullptr, int floating_x = 0, int floating_y = 0);
    ~ImageUndoNode() override;

    void apply(Tile_Store& store, Tile_Selection& selection) const override;
    // With a mask, the unselected pixels are shown faded.
    void draw(int x, int y) const override;

    const Tile& tile() const { return *image; }
    const Tile* mask() const { return selection.get(); }
    const Tile* floating_area() const { return floating.get(); }

    int32_t x = 0;
    int32_t y = 0;

protected:
    Tile* floating_tile() const { return floating.get(); }

private:
    std::unique_ptr<Tile> image;
    std::unique_ptr<Tile> selection;
    std::unique_ptr<Tile> floating;
    int area_x;
    int area_y;
};

// A move of the floating pasted area: the area and where it stood, with the
// tile beneath it (a lift leaves a hole there that undo must fill again).
// It names no command: undo and redo run nothing for it.
class PasteUndoNode : public ImageUndoNode {
public:
    PasteUndoNode(int32_t tile_index, const Tile& tile, const Tile* mask, const Tile& area, int x, int y);
    ~PasteUndoNode() override;

    // The floating area alone.
    void draw(int x, int y) const override;

    const Tile& area() const { return *floating_area(); }
};
