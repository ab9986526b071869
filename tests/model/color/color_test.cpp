#include "model/color/color.h"

#include <gtest/gtest.h>


namespace {

TEST(BoundedValue, ClampsOnEveryChangeAndTruncatesTowardsZero) {
    Bounded_Value v(0.5, 0, 1);
    v = 3;
    EXPECT_EQ(v.value, 1);
    v = -2;
    v += 0.25;
    EXPECT_EQ(v.value, 0.25);
    Bounded_Value channel(static_cast<uint8_t>(200));
    channel += 54.99;
    EXPECT_EQ(channel.to_byte(), 254);
    channel += 10;
    EXPECT_EQ(channel.to_byte(), 255);
    EXPECT_EQ(Bounded_Value(-1.9, -5, 5).to_int(), -1);
    Bounded_Value target(0.5, 0, 1);
    target = Bounded_Value(100, 0, 255);  // a copy takes the source's range
    EXPECT_EQ(target.value, 100);
}

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
