#include <gtest/gtest.h>

#include <string>

#include "model/paint/adjust.h"
#include "model/tile/tile.h"

using namespace adjust;

TEST(Adjust, EachOperationOnAPixelAndOnAWholeTileKeepsAlpha) {
    EXPECT_EQ(operation(adjust::lighten, Color(0, 100, 250, 7), 10), Color(10, 110, 255, 7));
    EXPECT_EQ(operation(adjust::darken, Color(5, 100, 250, 7), 10), Color(0, 90, 240, 7));
    EXPECT_EQ(operation(adjust::compensated_lighten, Color(0, 0, 0), 100), Color(29, 58, 14));
    EXPECT_EQ(operation(invert, Color(10, 20, 30), 0), Color(245, 235, 225));
    EXPECT_EQ(operation(invert, Color(10, 20, 30), 255), Color(10, 20, 30));
    EXPECT_EQ(operation(hue, Color(255, 0, 0, 9), 120), Color(0, 255, 0, 9));
    EXPECT_EQ(operation(hue, Color(255, 0, 0), -120), Color(0, 0, 255));
    EXPECT_EQ(operation(saturation, Color(255, 0, 0), -100), Color(255, 255, 255));
    EXPECT_EQ(operation(value, Color(100, 0, 0), 100), Color(200, 0, 0));
    Tile t(3, 2);
    t.fill(Color(10, 10, 10, 50));
    apply_to_tile(t, adjust::lighten, 5);
    for (int i = 0; i < t.pixel_count(); ++i) EXPECT_EQ(t.pixels()[i], Color(15, 15, 15, 50));
}

TEST(LightnessPacer, IntervalsStepsAndButtons) {
    EXPECT_EQ(Lightness_Pacer::interval(3, false, 4), 8);
    EXPECT_EQ(Lightness_Pacer::interval(0, true, 4), 22);
    Lightness_Pacer p;
    p.reset(100);
    EXPECT_FALSE(p.due(108, 8));
    EXPECT_TRUE(p.due(109, 8));
    EXPECT_FALSE(p.due(110, 8));
    EXPECT_TRUE(Lightness_Pacer::lightens(1, 0));
    EXPECT_FALSE(Lightness_Pacer::lightens(3, 0));
    EXPECT_TRUE(Lightness_Pacer::lightens(2, 1));
}
