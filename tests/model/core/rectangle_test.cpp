#include "model/core/rectangle.h"

#include <gtest/gtest.h>

TEST(RectangleTest, ContainmentIsHalfOpenAndFloatsTruncateTowardZero) {
    const Rectangle r{10, 20, 5, 4};
    EXPECT_TRUE(r.contains(10, 20));
    EXPECT_TRUE(r.contains(14, 23));
    EXPECT_FALSE(r.contains(15, 20));
    EXPECT_FALSE(r.contains(10, 24));
    EXPECT_FALSE(r.contains(9, 20));
    EXPECT_TRUE(r.contains(14.9f, 23.9f));
    EXPECT_FALSE(r.contains(15.0f, 23.0f));
    const Rectangle origin{0, 0, 2, 2};
    EXPECT_TRUE(origin.contains(-0.5f, -0.5f));
    EXPECT_FALSE(origin.contains(-1.0f, 0.0f));
}
