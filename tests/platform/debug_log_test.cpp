#include "platform/debug_log.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "support/headless.h"

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

class DebugMonitor : public Headless {};

TEST_F(DebugMonitor, ShowsTheLinesUntilAKeyAndClearsTheWarning) {
    Debug_Log log(27);
    log.warn("something odd");
    push_key(SDLK_SPACE);
    log.show(*g_main_window);
    EXPECT_FALSE(log.has_warning());
    // The lines and the closing "---" stand in dark ink on the background.
    const int rows = 2 * g_main_window->line_height();
    int ink = 0;
    for (int y = 0; y < rows; ++y)
        for (int x = 0; x < 200; ++x)
            if (read_pixel(x, y).red < 60) ++ink;
    EXPECT_GT(ink, 40);
    // The key was consumed and the queue flushed.
    SDL_Event e;
    EXPECT_FALSE(SDL_PollEvent(&e));
}
