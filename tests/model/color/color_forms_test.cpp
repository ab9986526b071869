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

TEST(ToHsv, GreyTakesOnlyItsHueFromTheFallback) {
    const HSV_Color red_fallback = to_hsv(Color(10, 10, 10), Color(200, 0, 0));
    EXPECT_EQ(red_fallback.hue, 0);
    EXPECT_EQ(red_fallback.saturation.value, 0);
    EXPECT_EQ(red_fallback.value.value, 10);
    const HSV_Color blue_fallback = to_hsv(Color(10, 10, 10), Color(0, 0, 200));
    EXPECT_EQ(blue_fallback.hue, 240);
    EXPECT_EQ(blue_fallback.value.value, 10);
}

TEST(ToHsv, TiesGoToRedThenGreen) {
    EXPECT_EQ(to_hsv(Color(255, 255, 0), Color()).hue, 60);
    // Green and blue tie above red: green wins, 2 + (255 - 0) / 255.
    EXPECT_EQ(to_hsv(Color(0, 255, 255), Color()).hue, 180);
}

TEST(ToHsv, NegativeHueWrapsIntoRange) {
    // Red largest with blue above green gives a negative hue before the wrap.
    const HSV_Color c = to_hsv(Color(255, 0, 51), Color());
    EXPECT_NEAR(c.hue, 360 - 51.0 / 255 * 60, 1e-9);
    EXPECT_EQ(c.saturation.value, 1);
}

TEST(ToHsv, GreyWithGreyFallbackHasNoUsableHue) {
    const HSV_Color c = to_hsv(Color(7, 7, 7), Color(90, 90, 90));
    EXPECT_TRUE(std::isnan(c.hue));
    EXPECT_EQ(from_hsv(c), Color(7, 7, 7));
}

TEST(FromHsv, Hue360IsTheSameAsHue0) {
    EXPECT_EQ(from_hsv(hsv(360, 0.7, 200)), from_hsv(hsv(0, 0.7, 200)));
}

TEST(FromHsv, ChannelsAreTruncated) {
    EXPECT_EQ(from_hsv(hsv(0, 0.5, 255)), Color(255, 127, 127));
}

TEST(FromHsv, HuesOutsideTheTableKeepTheGrey) {
    EXPECT_EQ(from_hsv(hsv(420, 1, 100)), Color(100, 100, 100));
    EXPECT_EQ(from_hsv(hsv(-1, 1, 100)), Color(100, 100, 100));
    EXPECT_EQ(from_hsv(hsv(std::numeric_limits<double>::quiet_NaN(), 1, 100)),
              Color(100, 100, 100));
    // 419 still lies in the case of 6.
    EXPECT_EQ(from_hsv(hsv(419, 1, 100)).red, 100);
}

TEST(FromHsv, SaturationZeroIgnoresTheHue) {
    EXPECT_EQ(from_hsv(hsv(123, 0, 77)), Color(77, 77, 77));
}

TEST(HsvRoundTrip, PrimaryAndSecondaryColoursComeBack) {
    const Color colors[] = {Color(255, 0, 0),   Color(0, 255, 0),   Color(0, 0, 255),
                            Color(255, 255, 0), Color(0, 255, 255), Color(255, 0, 255)};
    for (const Color& c : colors) EXPECT_EQ(from_hsv(to_hsv(c, c)), c);
}

TEST(ToHsl, GreyTakesHueAndLightnessFromTheFallback) {
    const HSL_Color c = to_hsl(Color(100, 100, 100), Color(0, 0, 255));
    EXPECT_EQ(c.saturation.value, 0);
    EXPECT_EQ(c.lightness.value, 0.5);
    EXPECT_EQ(c.hue, 240);
    EXPECT_EQ(to_hsl(Color(100, 100, 100), Color(0, 0, 0)).lightness.value, 0);
}

TEST(ToHsl, SaturationUsesTheMeanOfTheChannels) {
    const double M = 100 / 255.0, m = 50 / 255.0;
    const double dark_mean = (100 / 255.0 + 50 / 255.0 + 50 / 255.0) / 3;
    EXPECT_DOUBLE_EQ(to_hsl(Color(100, 50, 50), Color()).saturation.value,
                     (M - m) / (2 * dark_mean));
    const double hi = 1, lo = 200 / 255.0;
    const double light_mean = (1 + 200 / 255.0 + 200 / 255.0) / 3;
    EXPECT_DOUBLE_EQ(to_hsl(Color(255, 200, 200), Color()).saturation.value,
                     (hi - lo) / (2 - 2 * light_mean));
    // Pure red's mean-based saturation exceeds 1 and is held at the bound.
    EXPECT_EQ(to_hsl(Color(255, 0, 0), Color()).saturation.value, 1);
}

TEST(ToHsl, HueSectors) {
    EXPECT_EQ(to_hsl(Color(255, 0, 0), Color()).hue, 0);
    EXPECT_EQ(to_hsl(Color(0, 255, 0), Color()).hue, 120);
    EXPECT_EQ(to_hsl(Color(0, 0, 255), Color()).hue, 240);
    // Green and blue tie: the green formula is used.
    EXPECT_EQ(to_hsl(Color(0, 255, 255), Color()).hue, 180);
    EXPECT_NEAR(to_hsl(Color(255, 0, 51), Color()).hue, 360 - 51.0 / 255 * 60, 1e-9);
}

TEST(FromHsl, PrimaryColoursAndGreys) {
    EXPECT_EQ(from_hsl(hsl(0, 1, 0.5)), Color(255, 0, 0));
    EXPECT_EQ(from_hsl(hsl(120, 1, 0.5)), Color(0, 255, 0));
    EXPECT_EQ(from_hsl(hsl(240, 1, 0.5)), Color(0, 0, 255));
    EXPECT_EQ(from_hsl(hsl(0, 1, 1)), Color(255, 255, 255));
    // 127.5 rounds half away from zero.
    EXPECT_EQ(from_hsl(hsl(77, 0, 0.5)), Color(128, 128, 128));
}

TEST(FromHsl, StrangeHuesStayInsideTheChannelRange) {
    const Color nan_hue = from_hsl(hsl(std::numeric_limits<double>::quiet_NaN(), 1, 0.5));
    EXPECT_EQ(nan_hue.red, nan_hue.green);
    EXPECT_EQ(nan_hue.green, nan_hue.blue);
    const Color far = from_hsl(hsl(-5000, 1, 0.5));
    EXPECT_EQ(far.alpha, 255);
    EXPECT_EQ(from_hsl(hsl(360, 1, 0.5)), from_hsl(hsl(0, 1, 0.5)));
}

TEST(ColorizeKeepMagnitude, KeepsLengthTakesDirection) {
    Color pixel(30, 40, 0, 9);
    colorize_keep_magnitude(pixel, Color(0, 0, 10));
    EXPECT_EQ(pixel, Color(0, 0, 50, 9));
    Color white(255, 255, 255);
    colorize_keep_magnitude(white, Color(255, 0, 0));
    EXPECT_EQ(white, Color(255, 0, 0));
}

TEST(ColorizeKeepMagnitude, BlackTargetGivesBlack) {
    Color pixel(30, 40, 50, 9);
    colorize_keep_magnitude(pixel, Color(0, 0, 0));
    EXPECT_EQ(pixel, Color(0, 0, 0, 9));
}

TEST(ColorizeKeepValue, TakesHueAndSaturationKeepsBrightnessAndAlpha) {
    Color pixel(50, 50, 50, 7);
    colorize_keep_value(pixel, Color(255, 0, 0));
    EXPECT_EQ(pixel, Color(50, 0, 0, 7));
    Color transparent(10, 80, 30, 0);
    colorize_keep_value(transparent, Color(128, 128, 128));
    EXPECT_EQ(transparent, Color(80, 80, 80, 0));
}

}  // namespace
