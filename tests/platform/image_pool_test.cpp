#include "platform/image_pool.h"

#include <gtest/gtest.h>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/texture.h"
#include "platform/ui_colors.h"
#include "support/headless.h"

namespace {
struct Sheet {
    SDL_Surface* s = SDL_CreateSurface(512, 512, SDL_PIXELFORMAT_RGB24);
    Sheet() { SDL_FillSurfaceRect(s, nullptr, SDL_MapSurfaceRGB(s, 255, 0, 255)); }
    ~Sheet() { SDL_DestroySurface(s); }
    void put(int x, int y, Uint8 r, Uint8 g, Uint8 b) { SDL_WriteSurfacePixel(s, x, y, r, g, b, 255); }
    void green(int x, int y) { put(x, y, 0, 255, 0); }
    void yellow(int x, int y) { put(x, y, 255, 255, 0); }
    void blue(int x, int y) { put(x, y, 0, 0, 255); }
};

void expect_glyph(const Image_Pool& pool, int font, int k, int x, int y, int w, int h) {
    const SDL_FRect& r = pool.glyph_rect(font, k);
    EXPECT_EQ(r.x, x) << "glyph " << k;
    EXPECT_EQ(r.y, y) << "glyph " << k;
    EXPECT_EQ(r.w, w) << "glyph " << k;
    EXPECT_EQ(r.h, h) << "glyph " << k;
}
}  // namespace

TEST(FontScan, MarkersAlternateAcrossRowsAndBlueEndsEachRow) {
    Temp_Dir dir;
    Sheet sheet;
    // Pane font: two rows of 20-pixel glyphs below marker lines 226 and 247.
    sheet.green(5, 226);
    sheet.green(8, 226);  // inside a glyph a green pixel is ink, not a marker
    sheet.yellow(12, 226);
    sheet.blue(20, 226);   // ends the row and flips the state
    sheet.yellow(6, 247);  // so the next row opens with yellow
    sheet.blue(10, 247);
    // Pane header font: the first row has no blue end, so its last glyph is lost.
    sheet.green(4, 268);
    sheet.yellow(3, 289);
    sheet.blue(9, 289);
    const std::string path = (dir.path / "pool.bmp").string();
    ASSERT_TRUE(SDL_SaveBMP(sheet.s, path.c_str()));

    Image_Pool pool(path.c_str());
    ASSERT_EQ(pool.glyph_count(font_pane), 5);
    expect_glyph(pool, font_pane, 0, 0, 227, 5, 20);
    expect_glyph(pool, font_pane, 1, 5, 227, 7, 20);
    expect_glyph(pool, font_pane, 2, 12, 227, 8, 20);
    expect_glyph(pool, font_pane, 3, 0, 248, 6, 20);
    expect_glyph(pool, font_pane, 4, 6, 248, 4, 20);
    ASSERT_EQ(pool.glyph_count(font_pane_header), 3);
    expect_glyph(pool, font_pane_header, 0, 0, 269, 4, 20);
    expect_glyph(pool, font_pane_header, 1, 0, 290, 3, 20);
    expect_glyph(pool, font_pane_header, 2, 3, 290, 6, 20);
    EXPECT_EQ(pool.glyph_count(font_regular), 0);
    EXPECT_EQ(pool.glyph_count(font_header), 0);

    // Characters map to glyphs from the space on; past the font there is none.
    EXPECT_EQ(pool.glyph_index(font_pane, ' '), 0);
    EXPECT_EQ(pool.glyph_index(font_pane, '$'), 4);
    EXPECT_EQ(pool.glyph_index(font_pane, '%'), -1);
    EXPECT_EQ(pool.glyph_index(font_pane, '\r'), -1);
    EXPECT_EQ(pool.glyph_index(font_pane, char(0xE9)), -1);
}

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
        EXPECT_EQ(r.x, sprite_table[id].x);
        EXPECT_EQ(r.h, sprite_table[id].h);
        int ink = 0;
        for (int y = int(r.y); y < int(r.y + r.h); ++y)
            for (int x = int(r.x); x < int(r.x + r.w); ++x) ink += pool.image().get_pixel(x, y).a == 255;
        EXPECT_GT(ink, 0) << sprite_table[id].name;
    }
}

class PaneHeader : public Headless {};

TEST_F(PaneHeader, CapsFrameTheTitleOnTheHeaderColour) {
    Main_Window& w = *g_main_window;
    const Image_Pool& pool = w.pool();
    const int width = pool.text_width(font_pane_header, "Tiles");
    Texture* header = pool.make_pane_header(w.renderer(), width, "Tiles");
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(header->width(), 5 + width + 22);
    EXPECT_EQ(header->height(), 21);
    w.clear();
    header->draw_at(0, 0);
    EXPECT_EQ(read_pixel(5 + width / 2, 0), Color(183, 183, 183));
    int body = 0;
    for (int x = 5; x < 5 + width; ++x)
        for (int y = 1; y < 21; ++y) body += read_pixel(x, y) == header_color;
    EXPECT_GT(body, width * 20 / 2);  // mostly header colour,
    EXPECT_LT(body, width * 20);      // with the title written on it
    delete header;
}
