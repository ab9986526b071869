#include "model/color/color_forms.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

HSV_Color hsv(double hue, double saturation, double value) {
    HSV_Color c;
    c.hue = hue;
    c.saturation = saturation;
    c.value = value;
    return c;
}

HSL_Color hsl(double hue, double saturation, double lightness) {
    HSL_Color c;
    c.hue = hue;
    c.saturation = saturation;
    c.lightness = lightness;
    return c;
}

const double nan = std::numeric_limits<double>::quiet_NaN();

TEST(Hsv, GreysTakeTheirHueFromTheFallbackTiesAndWrapsAndOddHuesKeepTheGrey) {
    const HSV_Color grey = to_hsv(Color(10, 10, 10), Color(0, 0, 200));
    EXPECT_EQ(grey.hue, 240);
    EXPECT_EQ(grey.saturation.value, 0);
    EXPECT_EQ(grey.value.value, 10);
    EXPECT_TRUE(std::isnan(to_hsv(Color(7, 7, 7), Color(90, 90, 90)).hue));
    EXPECT_EQ(to_hsv(Color(255, 255, 0), Color()).hue, 60);
    EXPECT_EQ(to_hsv(Color(0, 255, 255), Color()).hue, 180);  // green wins the tie with blue
    EXPECT_NEAR(to_hsv(Color(255, 0, 51), Color()).hue, 360 - 51.0 / 255 * 60, 1e-9);

    EXPECT_EQ(from_hsv(hsv(360, 0.7, 200)), from_hsv(hsv(0, 0.7, 200)));
    EXPECT_EQ(from_hsv(hsv(0, 0.5, 255)), Color(255, 127, 127));  // truncated
    for (double odd : {420.0, -1.0, nan}) EXPECT_EQ(from_hsv(hsv(odd, 1, 100)), Color(100, 100, 100));
    EXPECT_EQ(from_hsv(hsv(123, 0, 77)), Color(77, 77, 77));
    for (const Color c : {Color(255, 0, 0), Color(0, 255, 0), Color(0, 0, 255), Color(255, 255, 0),
                          Color(0, 255, 255), Color(255, 0, 255), Color(7, 7, 7)})
        EXPECT_EQ(from_hsv(to_hsv(c, c)), c);
}

TEST(Hsl, SaturationUsesTheChannelMeanAndHuesStayInRange) {
    const HSL_Color grey = to_hsl(Color(100, 100, 100), Color(0, 0, 255));
    EXPECT_EQ(grey.hue, 240);
    EXPECT_EQ(grey.lightness.value, 0.5);
    // (max - min) over twice the mean, or over two less twice the mean when light.
    EXPECT_NEAR(to_hsl(Color(100, 50, 50), Color()).saturation.value, 0.375, 1e-12);
    EXPECT_NEAR(to_hsl(Color(255, 200, 200), Color()).saturation.value, 0.75, 1e-12);
    EXPECT_EQ(to_hsl(Color(255, 0, 0), Color()).saturation.value, 1);
    EXPECT_EQ(to_hsl(Color(0, 255, 255), Color()).hue, 180);

    EXPECT_EQ(from_hsl(hsl(120, 1, 0.5)), Color(0, 255, 0));
    EXPECT_EQ(from_hsl(hsl(77, 0, 0.5)), Color(128, 128, 128));  // halves round away from zero
    const Color nan_hue = from_hsl(hsl(nan, 1, 0.5));
    EXPECT_TRUE(nan_hue.red == nan_hue.green && nan_hue.green == nan_hue.blue);
    EXPECT_EQ(from_hsl(hsl(360, 1, 0.5)), from_hsl(hsl(0, 1, 0.5)));
}

TEST(Colorize, KeepsLengthOrBrightnessAndAlpha) {
    Color pixel(30, 40, 0, 9);
    colorize_keep_magnitude(pixel, Color(0, 0, 10));
    EXPECT_EQ(pixel, Color(0, 0, 50, 9));
    colorize_keep_magnitude(pixel, Color(0, 0, 0));
    EXPECT_EQ(pixel, Color(0, 0, 0, 9));
    Color grey(50, 50, 50, 7);
    colorize_keep_value(grey, Color(255, 0, 0));
    EXPECT_EQ(grey, Color(50, 0, 0, 7));
}

}  // namespace
