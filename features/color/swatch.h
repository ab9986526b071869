#pragma once

#include <memory>

#include "platform/texture.h"
#include "model/color/color.h"
#include "model/core/rectangle.h"

// A colour field drawn over a checkerboard, so that a colour's alpha shows.
// The board is made once for the largest size the field is drawn at.
class Swatch {
public:
    static constexpr int square = 6;

    Swatch(int width, int height);
    ~Swatch();
    Swatch(const Swatch&) = delete;
    Swatch& operator=(const Swatch&) = delete;

    // The part of the board that fits the rectangle, then the colour blended over it.
    void draw(const Rectangle& rect, Color c);

private:
    std::unique_ptr<Texture> board;
};
