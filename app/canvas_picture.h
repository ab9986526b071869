#pragma once

#include <SDL3/SDL.h>

#include <cstdint>
#include <vector>

#include "model/color/color.h"
#include "model/core/rectangle.h"

class Main_Window;
class Tile;
class Tile_Selection;

// The canvas's picture of the tile: every cell composed in memory (the
// checkerboard, the pixel blended over it, the grid in a contrast of the
// pixel's colour, the veil outside the selection) and sent to the screen as
// one texture in bands of tile rows, and the floating image as a magnified
// layer over it. It keeps what it composed and uploaded between repaints, so
// a repaint that changes nothing uploads nothing and a stroke uploads only
// the rows it changed.
class Canvas_Picture {
public:
    // What one repaint shows: the tile, its selection, and where and how large
    // the canvas draws it.
    struct Frame {
        const Tile* tile = nullptr;
        const Tile_Selection* selection = nullptr;
        Rectangle view;
        int origin_x = 0;
        int origin_y = 0;
        int cell_size = 0;
        int extent_w = 0;
        int extent_h = 0;
        int checker_w = 1;
        int checker_h = 1;
        int grid_contrast = 0;
    };

    Canvas_Picture() = default;
    ~Canvas_Picture();
    Canvas_Picture(const Canvas_Picture&) = delete;
    Canvas_Picture& operator=(const Canvas_Picture&) = delete;

    // The cells inside the visible part of the tile (left..right, top..bottom on screen).
    void draw_cells(Main_Window& window, const Frame& frame, int left, int top, int right, int bottom);
    // The pending floating image, wrapped onto the tile and clipped to it.
    void draw_float(Main_Window& window, const Frame& frame);

private:
    void compose_cells();

    // The frame being drawn.
    Frame now;

    // The composed picture of the visible cells, kept between repaints.
    std::vector<uint32_t> cell_inside;
    std::vector<uint32_t> cell_grid;
    std::vector<uint32_t> picture;
    SDL_Texture* picture_texture = nullptr;
    // What the texture shows: the picture is a function of these and the
    // composed cells alone, so a repaint that composes the same cells at the
    // same place uploads nothing.
    struct Picture_Key {
        Rectangle area;
        int origin_x = 0;
        int origin_y = 0;
        int cell_size = 0;
        int tile_width = 0;
        bool operator==(const Picture_Key&) const = default;
    };
    void compose_band(const Picture_Key& key, int ty);
    // What the composed cells were made from. A repaint composes again only
    // the rows whose pixels or mask changed, and everything when any of the
    // rest did: an unchanged 64 x 64 tile costs a compare, not 4,096 blends.
    // The floating image is not in the cells but a layer over them.
    struct Compose_Key {
        int width = 0;
        int height = 0;
        int checker_w = 0;
        int checker_h = 0;
        int grid_contrast = 0;
        bool selection_on = false;
        bool operator==(const Compose_Key&) const = default;
    };
    bool compose_everything();
    Compose_Key composed_key;
    std::vector<Color> composed_pixels;
    std::vector<Color> composed_mask;
    SDL_Texture* float_texture = nullptr;
    int float_texture_w = 0;
    int float_texture_h = 0;
    uint64_t float_generation = 0;
    std::vector<Color> uploaded_float;
    std::vector<uint32_t> float_picture;
    Picture_Key shown_key;
    std::vector<uint32_t> shown_inside;
    std::vector<uint32_t> shown_grid;
    std::vector<uint64_t> band_generation;
};
