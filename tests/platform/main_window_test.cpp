#include "platform/main_window.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/globals.h"
#include "platform/ui_colors.h"
#include "support/headless.h"

class MainWindow : public Headless {};

TEST_F(MainWindow, BevelLightsAndShadesByLuminance) {
    Main_Window& w = *g_main_window;
    w.clear();
    // Grey 200: luminance 0.5776, so the amount is 147.3 and the corner step 49.1.
    w.bevel_fill(Rectangle{20, 20, 10, 8}, Color(200, 200, 200));
    EXPECT_EQ(read_pixel(20, 20), Color(255, 255, 255));  // corner light
    EXPECT_EQ(read_pixel(29, 20), Color(200, 200, 200));
    EXPECT_EQ(read_pixel(20, 27), Color(200, 200, 200));
    EXPECT_EQ(read_pixel(29, 27), Color(2, 2, 2));  // corner dark
    EXPECT_EQ(read_pixel(25, 20), Color(255, 255, 255));
    EXPECT_EQ(read_pixel(20, 23), Color(255, 255, 255));
    EXPECT_EQ(read_pixel(29, 23), Color(52, 52, 52));
    EXPECT_EQ(read_pixel(25, 27), Color(52, 52, 52));
    EXPECT_EQ(read_pixel(25, 23), Color(200, 200, 200));  // the filled inside

    w.bevel(Rectangle{40, 20, 10, 8}, Color(200, 200, 200), true);
    EXPECT_EQ(read_pixel(45, 20), Color(52, 52, 52));
    EXPECT_EQ(read_pixel(40, 20), Color(2, 2, 2));
    EXPECT_EQ(read_pixel(49, 27), Color(255, 255, 255));
    EXPECT_EQ(read_pixel(45, 27), Color(255, 255, 255));
}

TEST_F(MainWindow, FrameDarkensTopLeftLessThanBottomRight) {
    Main_Window& w = *g_main_window;
    w.clear();
    w.frame(Rectangle{10, 10, 6, 6}, Color(100, 120, 140));
    EXPECT_EQ(read_pixel(12, 10), Color(85, 105, 125));
    EXPECT_EQ(read_pixel(10, 12), Color(85, 105, 125));
    EXPECT_EQ(read_pixel(15, 12), Color(60, 80, 100));
    EXPECT_EQ(read_pixel(12, 15), Color(60, 80, 100));
    EXPECT_EQ(read_pixel(12, 12), Color(137, 137, 137));
}
