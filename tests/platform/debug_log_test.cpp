#include "platform/debug_log.h"

#include <gtest/gtest.h>

#include <string>


TEST(DebugLog, NumbersLinesMarksWarningsAndKeepsOnlyWhatFits) {
    Debug_Log log(27);
    log.log("loaded %s", "palette.dat");
    log.warn("odd value %d", -3);
    ASSERT_EQ(log.lines().size(), 2u);
    EXPECT_EQ(log.lines()[0], "0: loaded palette.dat");
    EXPECT_EQ(log.lines()[1], "1: (W!) odd value -3");
    EXPECT_TRUE(log.has_warning());

    for (int i = 2; i < 100; ++i) log.log("line %d", i);
    // A line that brings the count to the limit pushes out the oldest.
    EXPECT_EQ(log.lines().size(), 26u);
    EXPECT_EQ(log.lines().back(), "99: line 99");
    EXPECT_EQ(log.lines().front(), "74: line 74");
    EXPECT_EQ(log.counter(), 100u);
}

