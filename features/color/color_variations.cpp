#include "features/color/color_variations.h"

#include <algorithm>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "model/color/variations.h"

Color_Variations::Color_Variations(int x, int y, int columns, int rows, int cell_width, int cell_height)
    : Pane(Rectangle{x, y, columns * cell_width + 10, rows * cell_height + 10}, "Variations"),
      columns(columns),
      rows(rows),
      cell_width(cell_width),
      cell_height(cell_height),
      cells(size_t(columns * rows), Color()) {}

void Color_Variations::rebuild(Color c, Color fallback) { build_variations(c, fallback, cells.data(), columns, rows); }

Rectangle Color_Variations::cell_area(int i) const {
    return Rectangle{client.x + (i % columns) * cell_width, client.y + (i / columns) * cell_height, cell_width,
                     cell_height};
}

void Color_Variations::draw() {
    Pane::draw();
    Main_Window& w = *g_main_window;
    for (int i = 0; i < columns * rows; ++i) w.fill_rect(cell_area(i), cells[size_t(i)]);
}

Color Color_Variations::color_at(int x, int y) const {
    const int column = std::clamp((x - client.x) / cell_width, 0, columns - 1);
    const int row = std::clamp((y - client.y) / cell_height, 0, rows - 1);
    return cells[size_t(columns * row + column)];
}
