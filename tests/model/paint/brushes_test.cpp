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
