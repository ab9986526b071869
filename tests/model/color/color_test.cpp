#include "model/color/color.h"

#include <gtest/gtest.h>

namespace {

TEST(ChannelOperations, SaturateInsteadOfWrappingAndKeepAlpha) {
    uint8_t c = 5;
    add_to_channel(c, -10);
    EXPECT_EQ(c, 0);
    c = 250;
    EXPECT_EQ(add_saturating(c, 5), 0);
    EXPECT_EQ(add_saturating(c, 1), -1);
    EXPECT_EQ(c, 255);

    Color shade(100, 200, 250, 7);
    lighten(shade, 10);
    EXPECT_EQ(shade, Color(110, 210, 255, 7));
    darken(shade, 120);
    EXPECT_EQ(shade, Color(0, 90, 135, 7));
    // The compensated forms weigh blue more than the usual luminance weights.
    Color black(0, 0, 0, 9);
    compensated_lighten(black, 100);
    EXPECT_EQ(black, Color(29, 58, 14, 9));
    compensated_darken(black, 100);
    EXPECT_EQ(black, Color(0, 0, 0, 9));
}

}  // namespace
