#include "platform/image_pool.h"

#include <gtest/gtest.h>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/texture.h"
#include "platform/ui_colors.h"
#include "support/headless.h"

TEST(PoolSheet, HoldsAllPrintableCharactersInEveryFontAndInkInEverySprite) {
    Image_Pool pool(source_path("data/pool.bmp").c_str());
    for (int f = 0; f < font_count; ++f) {
        ASSERT_EQ(pool.glyph_count(f), 95) << font_table[f].name;
        for (int k = 0; k < 95; ++k) {
            const SDL_FRect& r = pool.glyph_rect(f, k);
            EXPECT_GT(r.w, 0) << font_table[f].name << " glyph " << k;
            EXPECT_LE(r.x + r.w, 512);
            if (k == 0) continue;  // the space has no ink
            bool ink = false;
            for (int y = int(r.y); y < int(r.y + r.h) && !ink; ++y)
                for (int x = int(r.x); x < int(r.x + r.w) && !ink; ++x) ink = pool.image().get_pixel(x, y).a == 255;
            EXPECT_TRUE(ink) << font_table[f].name << " character " << char(32 + k);
        }
    }
    for (int id = 0; id < sprite_count; ++id) {
        const SDL_FRect& r = pool.sprite_rect(id);
        int ink = 0;
        for (int y = int(r.y); y < int(r.y + r.h); ++y)
            for (int x = int(r.x); x < int(r.x + r.w); ++x) ink += pool.image().get_pixel(x, y).a == 255;
        EXPECT_GT(ink, 0) << sprite_table[id].name;
    }
}

