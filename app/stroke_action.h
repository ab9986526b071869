#pragma once

class Canvas_View;

// A tile cell under the pointer; may lie outside the tile.
struct Cell {
    int x = 0;
    int y = 0;
    bool operator==(const Cell&) const = default;
};

// What a press on the canvas does while the button is held. The canvas view
// runs the loop; an action says how it wants to be run and does the pixel work.
class Stroke_Action {
public:
    virtual ~Stroke_Action() = default;

    // Shape actions redraw from the tile as it was at the press on every move.
    virtual bool works_from_backup() const { return false; }
    virtual bool hides_cursor() const { return true; }
    virtual bool keeps_pointer_on_tile() const { return true; }
    virtual bool draws_while_dragging() const { return true; }
    // Scrolling moves its start cell along, so each move applies one step.
    virtual bool start_follows_pointer() const { return false; }

    virtual void begin(Canvas_View& view, Cell& start, int button) {
        (void)view;
        (void)start;
        (void)button;
    }
    virtual void apply(Canvas_View& view, Cell from, Cell to, int button) = 0;
    // For actions that decide themselves whether the press was a step.
    virtual bool completed() const { return false; }
    virtual void finish(Canvas_View& view, Cell start, Cell end, int button, bool dragged) {
        (void)view;
        (void)start;
        (void)end;
        (void)button;
        (void)dragged;
    }
};
