// The kept frame must always look exactly like drawing the whole frame afresh.
#include "platform/frame_cache.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/texture.h"
#include "platform/ui_colors.h"
#include "support/headless.h"

namespace {
// What a frame of the scene holds; each step of a test changes some of it.
struct Scene {
    Rectangle moving{10, 10, 5, 5};
    int extra_points = 0;
    Rectangle clip{300, 40, 30, 30};
    Color tint = Color(200, 30, 30, 128);
    int scattered_shift = 0;
    int line_end = 120;
};

class FrameCacheTest : public Headless {
protected:
    void SetUp() override {
        Headless::SetUp();
        Main_Window& w = *g_main_window;
        cache = std::make_unique<Frame_Cache>(w.sink(), w.renderer(), int(w.width()), int(w.height()),
                                              ui_colors[background_color_index]);
        for (int i = 0; i < 64; ++i) pixels[i] = Color(uint8_t(i * 4), uint8_t(255 - i * 4), 90, uint8_t(100 + i));
        picture.reset(Texture::from_pixels(w.renderer(), pixels, 8, 8));
    }
    void TearDown() override {
        picture.reset();
        cache.reset();
        Headless::TearDown();
    }

    // Three groups: plain fills, lines and points, and a clipped texture with
    // text, all overlapping in places so that order matters.
    void draw(const Scene& s, bool grouped) {
        Main_Window& w = *g_main_window;
        w.fill_opaque(Rectangle{0, 0, 400, 200}, Color(40, 60, 80));
        w.fill_rect(s.moving, Color(250, 250, 0));
        w.fill_rect(Rectangle{8, 8, 60, 20}, s.tint);
        if (grouped) cache->next_group();
        w.line(5, 100, 395, s.line_end, Color(0, 255, 0));
        for (int i = 0; i < s.extra_points; ++i) w.point(20 + 3 * i, 150, Color(255, 255, 255));
        for (int i = 0; i < 40; ++i) w.point(10 + 9 * i + s.scattered_shift, 180 + i % 3, Color(255, 0, 255));
        if (grouped) cache->next_group();
        w.clip(s.clip);
        picture->draw_in(Rectangle{290, 30, 48, 48});
        w.end_clip();
        w.text(100, 40, "kept");
    }
    // The scene drawn straight to a cleared window, then through the cache:
    // both frames must be the same pixel for pixel.
    void expect_same_as_fresh(const Scene& s, const char* step) {
        g_main_window->clear();
        draw(s, false);
        SDL_Surface* fresh = read_frame();
        cache->begin();
        draw(s, true);
        cache->finish();
        SDL_Surface* kept = read_frame();
        ASSERT_TRUE(fresh && kept);
        EXPECT_EQ(differing_pixels(fresh, kept), 0) << "after: " << step;
        SDL_DestroySurface(fresh);
        SDL_DestroySurface(kept);
    }

    std::unique_ptr<Frame_Cache> cache;
    std::unique_ptr<Texture> picture;
    Color pixels[64];
};
}  // namespace

TEST_F(FrameCacheTest, TheKeptFrameLooksLikeAFreshOneAfterEveryKindOfChange) {
    Scene s;
    expect_same_as_fresh(s, "first frame");
    expect_same_as_fresh(s, "nothing");
    s.moving = Rectangle{40, 12, 5, 5};
    expect_same_as_fresh(s, "a fill moved under a translucent one");
    s.extra_points = 5;
    expect_same_as_fresh(s, "a group grew");
    s.extra_points = 2;
    expect_same_as_fresh(s, "a group shrank");
    s.clip = Rectangle{310, 50, 20, 40};
    expect_same_as_fresh(s, "the clip moved");
    s.tint = Color(10, 30, 200, 60);
    expect_same_as_fresh(s, "a colour changed");
    for (Color& c : pixels) c = Color(c.green, c.red, c.blue, c.alpha);
    picture->update(pixels);
    expect_same_as_fresh(s, "the texture's pixels changed");
    s.scattered_shift = 1;
    expect_same_as_fresh(s, "forty scattered points moved");
}
