#pragma once

#include <array>
#include <memory>

#include "model/tile/tile.h"

// A square mask of k x k pixels: opaque white where set, transparent black
// elsewhere. A 1 x 1 brush is a single pixel.
class Brush : public Tile {
public:
    static constexpr Color on{255, 255, 255, 255};
    static constexpr Color off{0, 0, 0, 0};

    explicit Brush(int size) : Tile(size, size) { fill(off); }
    int size() const { return width(); }
    bool is_set(int x, int y) const { return get_pixel(x, y) == on; }
};

// The 42 built-in brushes: seven shapes in the sizes 1 to 6, numbered
// shape x 6 + size - 1, made from one 26 x 6 source bitmap per shape.
class Built_In_Brushes {
public:
    static constexpr int shape_count = 7;
    static constexpr int size_count = 6;
    static constexpr int source_width = 26;
    // Where the mask of size k starts in a source row.
    static constexpr int start_column[size_count] = {0, 2, 5, 9, 14, 20};

    Built_In_Brushes();
    const Brush& get(int shape, int size) const { return *brushes[size_t(shape * size_count + size - 1)]; }
    static std::unique_ptr<Brush> make(int shape, int size);

private:
    std::array<std::unique_ptr<Brush>, shape_count * size_count> brushes;
};
