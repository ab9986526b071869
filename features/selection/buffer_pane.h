#pragma once

#include "ui/pane.h"

class Copy_Buffer;

// The copy buffer on the selection page: "Copy buffer" shows the current
// image as large as it fits, "Previous copies" the older ones as
// thumbnails; a click on a thumbnail makes that copy current again.
class Buffer_Pane : public Pane {
public:
    static constexpr int width = 202;
    static constexpr int picture_size = 128;
    static constexpr int thumbnail_size = 44;
    static constexpr int thumbnail_step = 48;
    static constexpr int columns = 4;
    static constexpr int thumbnail_rows = 3;

    Buffer_Pane();

    // Places both panes from (x, y) downward; returns the next free y.
    int place(int x, int y);
    void draw() override;
    // True when the press lay on a thumbnail (it made that copy current).
    bool click(int x, int y);
    // The place of the copy shown at index 1, 2, ... (0 is the current one).
    Rectangle thumbnail(int index) const;

private:
    Copy_Buffer* buffer() const;

    Pane previous;
};
