#pragma once

#include <memory>
#include <vector>

#include "platform/texture.h"
#include "ui/pane.h"

// One page of the palette as a grid of colour cells, titled with the page's name.
class Palette_Area : public Pane {
public:
    // Cell sizes by code.
    static constexpr int cell_sizes[3] = {24, 18, 18};

    Palette_Area(int x, int y, int page, int cell_size_code, int columns, int rows);
    ~Palette_Area() override;

    void draw() override;
    // The cell under a window point; callers ask only for points inside the pane.
    int cell_at(int x, int y) const;
    Color color_at(int x, int y) const;
    // Stores the colour in the palette, which marks it changed.
    void set_cell(int index, Color c);
    void show_page(int new_page);
    int page() const { return shown_page; }
    int cell_size() const { return cell; }
    bool has_page() const;

private:
    void place_cells();
    bool compose_cells();

    int shown_page;
    int cell;
    int columns;
    int rows;
    std::vector<SDL_Point> cells;
    Rectangle scratch{};
    // The grid as one opaque image, rebuilt whenever the colours it shows
    // differ from those it was built from.
    std::unique_ptr<Texture> grid;
    std::vector<Color> grid_colors;
    std::vector<Color> grid_pixels;
    std::vector<Color> current;
};
