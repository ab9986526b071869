#include "ui/pane.h"

#include <gtest/gtest.h>

#include <cstring>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/ui_colors.h"
#include "support/headless.h"
#include "ui/info_panes.h"
#include "ui/text_pane.h"
#include "platform/text_writer.h"
#include "ui/ui_style.h"

TEST(RectangleTest, ContainmentIsHalfOpenAndFloatsTruncate) {
    const Rectangle r{10, 20, 5, 4};
    EXPECT_TRUE(r.contains(10, 20));
    EXPECT_TRUE(r.contains(14, 23));
    EXPECT_FALSE(r.contains(15, 20));
    EXPECT_FALSE(r.contains(10, 24));
    EXPECT_FALSE(r.contains(9, 20));
    EXPECT_TRUE(r.contains(14.9f, 23.9f));
    EXPECT_FALSE(r.contains(15.0f, 23.0f));
    // Truncation goes toward zero, so -0.5 reads as 0.
    const Rectangle origin{0, 0, 2, 2};
    EXPECT_TRUE(origin.contains(-0.5f, -0.5f));
    EXPECT_FALSE(origin.contains(-1.0f, 0.0f));
}

class PaneTest : public Headless {};

TEST_F(PaneTest, BodyHeightIsGivenAndClientIsInset) {
    Text_Pane pane(Rectangle{40, 50, 200, 100}, "Tiles");
    EXPECT_EQ(pane.outer_area(), (Rectangle{40, 50, 200, 121}));
    EXPECT_EQ(pane.get_area(), (Rectangle{45, 76, 190, 90}));
    // The right and bottom edges of the client are outside; so is the header.
    EXPECT_TRUE(pane.contains(45, 76));
    EXPECT_FALSE(pane.contains(45 + 190, 80));
    EXPECT_FALSE(pane.contains(50, 76 + 90));
    EXPECT_FALSE(pane.contains(50, 55));
    EXPECT_TRUE(pane.contains(45.7f, 76.2f));

    pane.set_position(0, 0);
    EXPECT_EQ(pane.get_area(), (Rectangle{5, 26, 190, 90}));
    pane.set_size(8, 40);
    EXPECT_EQ(pane.get_area().width, -2);
    EXPECT_EQ(pane.get_area().height, 9);
    pane.move_to(7, 9);
    EXPECT_EQ(pane.get_area(), (Rectangle{12, 35, -2, 9}));
}

TEST_F(PaneTest, HeaderIsAsWideAsTheTitleAndTheBodyFillsBelow) {
    const char* title = "Preview";
    Text_Pane pane(Rectangle{100, 100, 300, 60}, title);
    const int title_w = g_main_window->writer(font_pane_header).measure(title);
    ASSERT_NE(pane.header_texture(), nullptr);
    EXPECT_EQ(pane.header_texture()->width(), title_w + 27);
    EXPECT_EQ(pane.header_texture()->height(), 21);

    g_main_window->clear();
    pane.draw();
    // Header body colour inside the title strip; window background past it.
    EXPECT_EQ(read_pixel(100 + 5 + title_w - 1, 100 + 20), header_color);
    EXPECT_EQ(read_pixel(100 + title_w + 27 + 2, 110), ui_colors[background_color_index]);
    EXPECT_EQ(read_pixel(100, 121), pane_body_color);
    EXPECT_EQ(read_pixel(399, 180), pane_body_color);
    EXPECT_EQ(read_pixel(400, 180), ui_colors[background_color_index]);
    EXPECT_EQ(read_pixel(200, 181), ui_colors[background_color_index]);

    // Retitling replaces the header with one of the new width.
    pane.set_title("A much longer title");
    EXPECT_EQ(pane.header_texture()->width(),
              g_main_window->writer(font_pane_header).measure("A much longer title") + 27);
}

TEST_F(PaneTest, FramesOutlineTheClientArea) {
    Text_Pane pane(Rectangle{10, 10, 100, 50}, "F");
    const Rectangle c = pane.get_area();
    g_main_window->clear();
    pane.draw_frame_filled(ui_colors[ui_red]);
    EXPECT_EQ(read_pixel(c.x, c.y), ui_colors[ui_red]);
    EXPECT_EQ(read_pixel(c.x + c.width - 1, c.y + c.height - 1), ui_colors[ui_red]);
    EXPECT_EQ(read_pixel(c.x + c.width, c.y), ui_colors[background_color_index]);
    g_main_window->clear();
    pane.draw();
    pane.draw_frame();
    EXPECT_EQ(read_pixel(c.x, c.y), pane_frame_color);
    EXPECT_EQ(read_pixel(c.x + c.width - 1, c.y + 5), pane_frame_color);
    EXPECT_EQ(read_pixel(c.x + 5, c.y + 5), pane_body_color);
}

namespace {
// The frame of a plain pane of the same place with the text written by hand.
bool same_frame(SDL_Surface* a, SDL_Surface* b) {
    if (!a || !b || a->w != b->w || a->h != b->h || a->pitch != b->pitch) return false;
    return std::memcmp(a->pixels, b->pixels, size_t(a->pitch) * size_t(a->h)) == 0;
}
}  // namespace

TEST_F(PaneTest, InformationPanesWriteOnePixelAboveTheClientArea) {
    const Rectangle where{300, 200, 120, 30};
    Location_Info location(where, "Pos");
    location.set(-5, 17);
    Number_Info number(where, "Size");
    number.set(-42);
    Text_Pane plain(where, "Pos");
    Text_Pane plain_number(where, "Size");
    const Rectangle c = plain.get_area();
    Text_Writer& pane_font = g_main_window->writer(font_pane);

    g_main_window->clear();
    location.draw();
    SDL_Surface* drawn = read_frame();
    g_main_window->clear();
    plain.draw();
    pane_font.write_at(c.x, c.y - 1, "-5, 17");
    SDL_Surface* expected = read_frame();
    EXPECT_TRUE(same_frame(drawn, expected));
    g_main_window->clear();
    plain.draw();
    pane_font.write_at(c.x, c.y, "-5, 17");
    SDL_Surface* one_lower = read_frame();
    EXPECT_FALSE(same_frame(drawn, one_lower));
    SDL_DestroySurface(drawn);
    SDL_DestroySurface(expected);
    SDL_DestroySurface(one_lower);

    g_main_window->clear();
    number.draw();
    drawn = read_frame();
    g_main_window->clear();
    plain_number.draw();
    pane_font.write_at(c.x, c.y - 1, "-42");
    expected = read_frame();
    EXPECT_TRUE(same_frame(drawn, expected));
    SDL_DestroySurface(drawn);
    SDL_DestroySurface(expected);
}
