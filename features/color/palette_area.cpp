#include "features/color/palette_area.h"

#include <algorithm>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/ui_colors.h"
#include "model/color/palette.h"

namespace {
const char* page_title(int page) {
    return page >= 0 && page < g_palette->page_count() ? g_palette->name(page).c_str() : "";
}
}  // namespace

Palette_Area::Palette_Area(int x, int y, int page, int cell_size_code, int columns, int rows)
    : Pane(Rectangle{x, y, columns * cell_sizes[cell_size_code] + 10, rows * cell_sizes[cell_size_code] + 11},
           page_title(page)),
      shown_page(page),
      cell(cell_sizes[cell_size_code]),
      columns(columns),
      rows(rows) {
    place_cells();
}

Palette_Area::~Palette_Area() = default;

bool Palette_Area::has_page() const { return shown_page >= 0 && shown_page < g_palette->page_count(); }

// Colours past the grid keep the point (0, 0) and are drawn over the first cell.
void Palette_Area::place_cells() {
    cells.assign(has_page() ? size_t(g_palette->count(shown_page)) : 0, SDL_Point{0, 0});
    for (int i = 0; i < int(cells.size()) && i < columns * rows; ++i)
        cells[size_t(i)] = SDL_Point{(i % columns) * cell, (i / columns) * cell};
}

void Palette_Area::show_page(int new_page) {
    if (new_page == shown_page) return;
    shown_page = new_page;
    set_title(page_title(new_page));
    place_cells();
}

// Builds the grid image when every colour is opaque and the cells lie inside
// the client area; false leaves the cells to be filled one by one.
bool Palette_Area::compose_cells() {
    const int width = client.width;
    const int height = client.height - 1;
    if (width <= 0 || height <= 0) return false;
    current.clear();
    for (size_t i = 0; i < cells.size(); ++i) {
        const Color c = g_palette->color(shown_page, int(i));
        if (c.alpha != 255) return false;
        if (cells[i].x + cell > width || cells[i].y + cell > height) return false;
        current.push_back(c);
    }
    // The image depends only on the colours in order: the cells' places follow from their indices.
    if (grid && grid->width() == width && grid->height() == height && current == grid_colors) return true;
    grid_pixels.assign(size_t(width * height), ui_colors[ui_dark_grey]);
    for (size_t i = 0; i < current.size(); ++i)
        for (int y = cells[i].y; y < cells[i].y + cell; ++y)
            std::fill_n(grid_pixels.begin() + (y * width + cells[i].x), cell, current[i]);
    if (!grid || grid->width() != width || grid->height() != height) {
        grid.reset(Texture::from_pixels(g_main_window->renderer(), grid_pixels.data(), width, height));
        grid->set_opaque(true);
    } else {
        grid->update(grid_pixels.data());
    }
    grid_colors = current;
    return true;
}

void Palette_Area::draw() {
    Pane::draw();
    Main_Window& w = *g_main_window;
    if (compose_cells()) {
        grid->draw_at(client.x, client.y);
        return;
    }
    w.fill_rect(Rectangle{client.x, client.y, client.width, client.height - 1}, ui_colors[ui_dark_grey]);
    for (size_t i = 0; i < cells.size(); ++i) {
        scratch = Rectangle{client.x + cells[i].x, client.y + cells[i].y, cell, cell};
        w.fill_rect(scratch, g_palette->color(shown_page, int(i)));
    }
}

int Palette_Area::cell_at(int x, int y) const {
    int column = (x - client.x) / cell;
    int row = (y - client.y) / cell;
    if (column > columns - 1) column = columns - 1;
    if (row > rows - 1) row = rows - 1;
    return columns * row + column;
}

Color Palette_Area::color_at(int x, int y) const {
    const int i = cell_at(x, y);
    if (!has_page() || i < 0 || i >= int(cells.size())) return Color();
    return g_palette->color(shown_page, i);
}

void Palette_Area::set_cell(int index, Color c) {
    if (!has_page() || index < 0 || index >= int(cells.size())) return;
    g_palette->set_color(shown_page, index, c);
}
