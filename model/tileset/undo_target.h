#pragma once

class Tile;

// What the undo history needs from the editor around the tileset: the
// selection and the floating pasted area to copy into a record, and the way
// back when a record is applied. The editor implements it; tests use a fake.
class Undo_Target {
public:
    virtual ~Undo_Target() = default;

    // The selection mask, or none.
    virtual const Tile* selection_mask() const = 0;
    virtual bool has_selection() const = 0;
    // The floating pasted area, or none; its place on the tile.
    virtual const Tile* floating_area() const = 0;
    virtual int floating_x() const = 0;
    virtual int floating_y() const = 0;

    // A record's undo or redo command, through the editor's dispatch.
    virtual void run_command(int command) = 0;
    // The current tile was changed or replaced by applying a record.
    virtual void tile_changed() = 0;
    // The record's mask, or none: deselect.
    virtual void restore_selection(const Tile* mask) = 0;
    // The record's floating area at its place, or none: nothing floats.
    virtual void restore_floating_area(const Tile* area, int x, int y) = 0;
};
