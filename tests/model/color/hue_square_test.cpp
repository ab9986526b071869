#include <gtest/gtest.h>

#include <vector>

#include "model/color/channel_handles.h"
#include "model/color/hue_square.h"

using namespace hue_square;

TEST(HueSquare, CornersAreWhiteTheHueAndBlack) {
    std::vector<Color> left(side), right(side), square(side * side), strip(strip_width * side);
    build_strip(strip.data());
    // Any strip colour: the square's top-right pixel is exactly that colour.
    for (int y : {0, 17, 64, 127}) {
        for (int x : {0, 13, 30, 53}) {
            const Color hue = strip[size_t(y * strip_width + x)];
            build_square(hue, left.data(), right.data(), square.data());
            EXPECT_EQ(square[side - 1], hue) << x << "," << y;
            EXPECT_EQ(square[0], Color(255, 255, 255));
            for (int i = 0; i < side; ++i) EXPECT_EQ(square[size_t((side - 1) * side + i)], Color(0, 0, 0));
        }
    }
}
