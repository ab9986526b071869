#pragma once

#include <cstdint>
#include <vector>

#include "model/color/color.h"

class Painter;
class Tile;

// Drags pixels along a stroke: the brush takes up the colours under it and,
// at every cell it moves on to, mixes what it carries with the pixels beneath
// and lays the mix down, carrying the mix further. Reads and writes the
// painter's target through the painter, so a selection clips what is laid
// down (the brush still takes up colours outside it).
class Smudge {
public:
    // Out of 256: how much of the carried colour goes into each mix. Half
    // and half drags a colour a few pixels before it fades into the picture.
    static constexpr int default_strength = 128;

    void set_strength(int weight);
    // Takes up the colours under the brush centred on (x, y); a brush's set
    // pixels are its white ones, and no brush is a single pixel.
    void pick_up(const Painter& painter, const Tile* brush, int x, int y);
    // Moves the brush from (x1, y1), where it was, along the line to (x2, y2).
    void drag(Painter& painter, const Tile* brush, int x1, int y1, int x2, int y2);

    // The mix of carried and beneath, weight out of 256 for carried. Colours
    // count by their alpha, so smudging into transparency thins a colour out
    // instead of darkening it.
    static Color mix(Color carried, Color beneath, int weight);

private:
    // Visits (x, y, index) for every set brush pixel centred on (cx, cy).
    template <typename Visit>
    void each_brush_pixel(const Tile* brush, int cx, int cy, Visit&& visit) const;
    void step(Painter& painter, const Tile* brush, int x, int y);

    int strength = default_strength;
    std::vector<Color> carried;
    // Whether carried holds a colour: nothing is taken up outside the tile.
    std::vector<uint8_t> held;
};
