#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "model/color/color.h"
#include "model/map/layer_stack.h"
#include "ui/pane.h"

class Texture;
class Tile;
class Map_Editor;
class Tile_Store;

// "Preview": the current tile at its real size, repeated side by side over the
// alpha-grid checkerboard, the way it will lie in a map, so that a seam shows.
// The picture is composed in memory and uploaded only when the tile's pixels,
// the repeat counts or the checkerboard change: a repaint that changes none of
// them draws one unchanged texture.
class Preview_Pane : public Pane {
public:
    static constexpr int body_width = 194;
    static constexpr int body_height = 192;

    Preview_Pane(int x, int y);
    ~Preview_Pane() override;

    // How often a tile is repeated: the wanted count, reduced to 192 / size
    // when the repeats would be wider than 191 pixels.
    static int repeat_count(int wanted, int tile_size);
    // The wanted counts; each tile is repeated as often as repeat_count allows.
    void set_repeats(int across, int down);
    void set_checker_size(int width, int height);

    // The pane with the tile repeated; no tile leaves the body empty.
    void draw_tile(const Tile* tile);
    // The map's visible layers around the first cell that holds the live
    // tile's index, at real size, the live tile (the one being drawn)
    // standing in for every cell that holds it; the tile repeated when no
    // cell does.
    void draw_map(const Map_Editor& map, const Tile_Store& store, const Tile* live, int live_index);
    // Where the repeated picture stands; empty before it was first drawn.
    Rectangle picture_area() const { return shown_area; }

private:
    bool same_as_shown(const Tile& tile) const;
    void compose(const Tile& tile);
    void upload(int width, int height);

    int across = 2;
    int down = 2;
    int checker_w = 6;
    int checker_h = 6;
    // What the picture shows now.
    const Tile* shown_tile = nullptr;
    std::vector<Color> shown_pixels;
    int shown_tile_w = 0;
    int shown_tile_h = 0;
    int shown_across = 0;
    int shown_down = 0;
    int shown_checker_w = 0;
    int shown_checker_h = 0;
    Rectangle shown_area{};
    // What the map picture shows: none when it shows the repeated tile.
    uint64_t shown_generation = 0;
    int shown_cell = -1;
    int shown_index = -1;
    // The first cell holding the tile, as last looked for.
    const Map_Editor* searched_map = nullptr;
    uint64_t searched_generation = 0;
    int searched_index = -1;
    int searched_cell = -1;
    std::vector<Color> picture;
    // The map's visible layers, gathered again at each composition.
    Layer_Stack layers;
    std::unique_ptr<Texture> texture;
};
