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

TEST(ChannelHandles, SmallStepsClampAndFractionsFollowTheTrack) {
    Channel_Handles h;
    h.set(Color(250, 0, 128, 255));
    EXPECT_EQ(h.step(Channel_Handles::red, 10).red, 255);
    EXPECT_EQ(h.middle(Channel_Handles::green).green, 128);
    EXPECT_EQ(h.handle_offset(Channel_Handles::blue), 56);
    // A lightness step of the full track gives white; alpha stays.
    h.set(Color(10, 20, 30, 7));
    const Color c = h.step(Channel_Handles::lightness, Channel_Handles::track_length);
    EXPECT_EQ(c, Color(255, 255, 255, 7));
}
