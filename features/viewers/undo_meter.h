#pragma once

#include "ui/pane.h"

class Undo_History;

// The small pane that shows how full the current tileset's undo history is:
// one bar per record, the record shown in orange, the others green, and the
// free slots up to the history's capacity as empty bars.
class Undo_Meter : public Pane {
public:
    static constexpr int body_width = 194;
    static constexpr int body_height = 26;
    static constexpr int bar_width = 9;
    static constexpr int bar_step = 10;
    static constexpr Color current_bar{240, 100, 40};
    static constexpr Color record_bar{0, 240, 0};

    Undo_Meter(int x, int y);

    // The history to show; none shows only empty slots of the default capacity.
    void show(const Undo_History* history) { shown = history; }
    void draw() override;
    // Where bar i stands (for tests and hit checks).
    Rectangle bar(int i) const;

private:
    const Undo_History* shown = nullptr;
};
