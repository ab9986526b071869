#include "model/tile/tile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>


namespace {

const Color transparent_black(0, 0, 0, 0);

TEST(TilePixelAccess, OutsideReadsTransparentBlackAndIgnoresWrites) {
    Tile tile(6, 4);
    tile.fill(Color(9, 9, 9));
    const std::pair<int, int> outside[] = {{-1, 0}, {6, 0}, {0, -1}, {0, 4}, {-100, 100}};
    for (auto [x, y] : outside) {
        EXPECT_TRUE(tile.is_outside(x, y));
        EXPECT_EQ(tile.get_pixel(x, y), transparent_black);
        EXPECT_FALSE(tile.set_pixel(x, y, Color(1, 1, 1)));
        EXPECT_EQ(tile.alpha(x, y), 0);
        EXPECT_TRUE(tile.is_empty(x, y));
    }
    for (int i = 0; i < tile.pixel_count(); ++i) EXPECT_EQ(tile.pixels()[i], Color(9, 9, 9));
    EXPECT_FALSE(tile.is_outside(5, 3));
}

// Resampling blends neighbouring source pixels: every channel of the result
// lies between the smallest and largest of the source (less one step lost to
// truncation), a flat tile stays flat
// and the top-left pixel is kept, whatever the two sizes.
TEST(TileCopy, ResamplingBlendsOnlyNeighbouringColours) {
    const std::pair<int, int> sizes[][2] = {
        {{24, 24}, {48, 48}}, {{48, 48}, {24, 24}}, {{6, 6}, {64, 64}}, {{64, 64}, {6, 6}},
        {{1, 1}, {9, 9}},     {{9, 4}, {1, 1}},     {{1, 3}, {200, 2}}, {{13, 7}, {17, 29}}};
    unsigned seed = 10;
    for (const auto& pair : sizes) {
        Tile source(pair[0].first, pair[0].second), flat(pair[0].first, pair[0].second);
        // Channels kept in 100..149, so a blend that reached outside the tile
        // (transparent black) or overflowed would leave the range.
        std::mt19937 random(seed++);
        for (int i = 0; i < source.pixel_count(); ++i)
            source.pixels()[i] = Color(uint8_t(100 + random() % 50), uint8_t(random()), uint8_t(random()));
        flat.fill(Color(70, 140, 210, 3));
        Tile scaled(pair[1].first, pair[1].second), flat_scaled(pair[1].first, pair[1].second);
        source.copy_into(scaled);
        flat.copy_into(flat_scaled);
        const Color corner = source.get_pixel(0, 0);
        EXPECT_EQ(scaled.get_pixel(0, 0), Color(corner.red, corner.green, corner.blue));
        const auto [lowest, highest] = std::minmax_element(
            source.pixels(), source.pixels() + source.pixel_count(),
            [](const Color& a, const Color& b) { return a.red < b.red; });
        const uint8_t low = lowest->red, high = highest->red;
        for (int i = 0; i < scaled.pixel_count(); ++i) {
            ASSERT_GE(scaled.pixels()[i].red + 1, low);
            ASSERT_LE(scaled.pixels()[i].red, high);
            // Truncating the blended sum may lose one step, never more.
            const Color f = flat_scaled.pixels()[i];
            ASSERT_TRUE(f.red >= 69 && f.red <= 70 && f.green >= 139 && f.green <= 140 && f.blue >= 209 && f.alpha == 255);
        }
    }
}

}  // namespace
