#include "color/color.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

TEST(ColorValue, BytesInMemoryAreBlueGreenRedAlpha) {
    const Color c(10, 20, 30, 40);
    unsigned char bytes[4];
    std::memcpy(bytes, &c, 4);
    EXPECT_EQ(bytes[0], 30);
    EXPECT_EQ(bytes[1], 20);
    EXPECT_EQ(bytes[2], 10);
    EXPECT_EQ(bytes[3], 40);
    EXPECT_EQ(c.word(), 0x280A141Eu);
    EXPECT_EQ(Color::from_word(c.word()), c);
}

TEST(ColorValue, ConstructorsDefaultToOpaque) {
    const Color black;
    EXPECT_EQ(black.word(), 0xFF000000u);
    const Color rgb(1, 2, 3);
    EXPECT_EQ(rgb.alpha, 255);
    EXPECT_EQ(rgb.red, 1);
    EXPECT_EQ(rgb.blue, 3);
}

TEST(ColorValue, EqualOnlyWhenAllFourBytesAreEqual) {
    EXPECT_EQ(Color(1, 2, 3, 4), Color(1, 2, 3, 4));
    EXPECT_FALSE(Color(1, 2, 3, 4) == Color(1, 2, 3, 5));
    EXPECT_FALSE(Color(0, 0, 0, 0) == Color(0, 0, 0, 255));
}

TEST(BoundedValue, AssignmentAndAdditionClamp) {
    Bounded_Value v(0.5, 0, 1);
    v = 3;
    EXPECT_EQ(v.value, 1);
    v = -2;
    EXPECT_EQ(v.value, 0);
    v += 0.25;
    EXPECT_EQ(v.value, 0.25);
    v += 10;
    EXPECT_EQ(v.value, 1);
    EXPECT_EQ(Bounded_Value(400, 0, 255).value, 255);
}

TEST(BoundedValue, FromChannelHasByteRangeAndTruncates) {
    Bounded_Value v(static_cast<uint8_t>(200));
    EXPECT_EQ(v.min, 0);
    EXPECT_EQ(v.max, 255);
    v += 54.99;
    EXPECT_EQ(v.to_int(), 254);
    EXPECT_EQ(v.to_byte(), 254);
    Bounded_Value negative(-1.9, -5, 5);
    EXPECT_EQ(negative.to_int(), -1);
}

TEST(BoundedValue, CopyTakesTheSourceRange) {
    const Bounded_Value source(100, 0, 255);
    Bounded_Value target(0.5, 0, 1);
    target = source;
    EXPECT_EQ(target.value, 100);
    EXPECT_EQ(target.max, 255);
}

TEST(ChannelOperations, AddToChannelNeverWraps) {
    uint8_t c = 250;
    add_to_channel(c, 10);
    EXPECT_EQ(c, 255);
    c = 5;
    add_to_channel(c, -10);
    EXPECT_EQ(c, 0);
    c = 100;
    add_to_channel(c, 0.9);
    EXPECT_EQ(c, 100);
}

TEST(ChannelOperations, AddSaturatingReportsClamping) {
    uint8_t c = 250;
    EXPECT_EQ(add_saturating(c, 5), 0);
    EXPECT_EQ(c, 255);
    EXPECT_EQ(add_saturating(c, 1), -1);
    EXPECT_EQ(c, 255);
    c = 3;
    EXPECT_EQ(add_saturating(c, -4), -1);
    EXPECT_EQ(c, 0);
}

TEST(ChannelOperations, LightenAndDarkenKeepAlpha) {
    Color c(100, 200, 250, 7);
    lighten(c, 10);
    EXPECT_EQ(c, Color(110, 210, 255, 7));
    darken(c, 120);
    EXPECT_EQ(c, Color(0, 90, 135, 7));
}

TEST(ChannelOperations, CompensatedLightenOfBlack) {
    Color c(0, 0, 0);
    compensated_lighten(c, 100);
    EXPECT_EQ(c, Color(29, 58, 14));
}

TEST(ChannelOperations, CompensatedDarkenUsesTheSameWeights) {
    Color c(100, 100, 100, 9);
    compensated_darken(c, 100);
    EXPECT_EQ(c.red, static_cast<int>(100 - 29.9));
    EXPECT_EQ(c.green, static_cast<int>(100 - 58.7));
    EXPECT_EQ(c.blue, static_cast<int>(100 - 14.4));
    EXPECT_EQ(c.alpha, 9);
}

TEST(ChannelOperations, MakeTransparentClearsAllFourBytes) {
    Color c(1, 2, 3, 4);
    make_transparent(c);
    EXPECT_EQ(c.word(), 0u);
}

TEST(Luminance, WhiteIsOneBlackIsZeroAlphaIgnored) {
    EXPECT_NEAR(luminance(Color(255, 255, 255)), 1.0, 1e-12);
    EXPECT_EQ(luminance(Color(0, 0, 0)), 0.0);
    EXPECT_EQ(luminance(Color(10, 90, 200, 0)), luminance(Color(10, 90, 200, 255)));
}

TEST(Luminance, DarkChannelsUseTheLinearSegment) {
    // 10 / 255 lies below 0.04045, where the curve is c / 12.92.
    EXPECT_NEAR(luminance(Color(0, 10, 0)), 0.7152 * (10 / 255.0) / 12.92, 1e-15);
}

TEST(Luminance, CompareSortsBrightestFirst) {
    std::vector<Color> colors{Color(0, 0, 255), Color(255, 255, 255), Color(0, 0, 0),
                              Color(0, 255, 0)};
    std::sort(colors.begin(), colors.end(), compare_by_luminance);
    EXPECT_EQ(colors[0], Color(255, 255, 255));
    EXPECT_EQ(colors[1], Color(0, 255, 0));
    EXPECT_EQ(colors[2], Color(0, 0, 255));
    EXPECT_EQ(colors[3], Color(0, 0, 0));
    EXPECT_FALSE(compare_by_luminance(Color(9, 9, 9), Color(9, 9, 9)));
}

}  // namespace
