#pragma once

#include <vector>

#include "ui/pane.h"

// A grid of variations of one colour (see build_variations), labelled "Variations".
class Color_Variations : public Pane {
public:
    Color_Variations(int x, int y, int columns, int rows, int cell_width, int cell_height);

    void rebuild(Color c, Color fallback);
    void draw() override;
    // Callers ask only for points inside the pane.
    Color color_at(int x, int y) const;
    Color cell(int i) const { return cells[size_t(i)]; }
    Rectangle cell_area(int i) const;

private:
    int columns;
    int rows;
    int cell_width;
    int cell_height;
    std::vector<Color> cells;
};
