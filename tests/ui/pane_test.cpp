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
    Text_Pane plain(where, "Pos");
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
}
