#include <gtest/gtest.h>

#include <string>

#include "model/paint/brushes.h"

namespace {
// The mask in the notation "#./.#".
std::string mask(const Brush& b) {
    std::string s;
    for (int y = 0; y < b.size(); ++y) {
        if (y) s += '/';
        for (int x = 0; x < b.size(); ++x) s += b.is_set(x, y) ? '#' : '.';
    }
    return s;
}
}  // namespace

TEST(BuiltInBrushes, SizeTwoDiagonalsAreNotBlocks) {
    const Built_In_Brushes brushes;
    EXPECT_EQ(mask(brushes.get(2, 2)), "#./.#");
    EXPECT_EQ(mask(brushes.get(3, 2)), ".#/#.");
    EXPECT_EQ(mask(brushes.get(0, 2)), "##/##");
    EXPECT_EQ(mask(brushes.get(5, 2)), "##/##");
}

TEST(BuiltInBrushes, EveryShapeOfSizeOneIsOnePixel) {
    const Built_In_Brushes brushes;
    for (int s = 0; s < Built_In_Brushes::shape_count; ++s) EXPECT_EQ(mask(brushes.get(s, 1)), "#") << s;
}

TEST(BuiltInBrushes, LargerMasksFollowTheTable) {
    const Built_In_Brushes brushes;
    EXPECT_EQ(mask(brushes.get(0, 6)), "..##../.####./######/######/.####./..##..");
    EXPECT_EQ(mask(brushes.get(4, 5)), "#...#/.#.#./..#../.#.#./#...#");
    EXPECT_EQ(mask(brushes.get(5, 4)), ".##./#..#/#..#/.##.");
    EXPECT_EQ(mask(brushes.get(6, 3)), "###/#.#/###");
    EXPECT_EQ(mask(brushes.get(3, 3)), "..#/.#./#..");
    // Clear pixels are transparent black, set ones opaque white.
    EXPECT_EQ(brushes.get(6, 3).get_pixel(1, 1), Brush::off);
    EXPECT_EQ(brushes.get(6, 3).get_pixel(0, 0), Brush::on);
}
