#pragma once

#include "ui/dialog_container.h"
#include "ui/pane.h"

// A pane that holds dialog rows: the frame of a modal dialog, or a small
// settings pane inside another panel.
class Dialog_Pane : public Pane {
public:
    Dialog_Pane(const Rectangle& area, const char* title) : Pane(area, title) {}

    // The pane, then every row's items.
    void draw() override;
    // Moves the pane and lays out all rows from two pixels above the client
    // area, then draws.
    void move_to(int x, int y) override;

    // Rows laid out from the client area without drawing.
    void layout_rows();
    // A press outside a modal loop: delivers the event, lays the rows out
    // again and returns true when something changed.
    bool press(int x, int y);

    Dialog_Container& container() { return rows; }
    const Dialog_Container& container() const { return rows; }

private:
    Dialog_Container rows;
};
