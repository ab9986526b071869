#pragma once

// The pointer's pixel in the current tile and the tile's index, written under
// the canvas while the pointer is over the tile.
class Position_Readout {
public:
    static constexpr int x = 270;
    static constexpr int y = 582;

    void show(int pixel_x, int pixel_y, int tile) {
        px = pixel_x;
        py = pixel_y;
        index = tile;
        shown = true;
    }
    void hide() { shown = false; }
    bool visible() const { return shown; }
    int pixel_x() const { return px; }
    int pixel_y() const { return py; }
    int tile_index() const { return index; }
    void draw() const;

private:
    int px = 0;
    int py = 0;
    int index = 0;
    bool shown = false;
};
