#include "document/tile.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <utility>

#include "support/fake_tile_texture.h"

namespace {

const Color transparent_black(0, 0, 0, 0);

void randomise(Tile& tile, unsigned seed) {
    std::mt19937 random(seed);
    for (int i = 0; i < tile.pixel_count(); ++i) tile.pixels()[i] = Color::from_word(random());
}

TEST(TileBasics, NewTileIsOpaqueBlackWithATextureOfItsPixels) {
    Fake_Texture_Scope textures;
    Tile tile(5, 3);
    EXPECT_EQ(tile.width(), 5);
    EXPECT_EQ(tile.height(), 3);
    EXPECT_EQ(tile.pixel_count(), 15);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x) EXPECT_EQ(tile.get_pixel(x, y), Color());
    EXPECT_TRUE(texture_is_current(tile));
    EXPECT_EQ(Fake_Texture_Scope::of(tile).updates, 0);
}

TEST(TileBasics, PixelsAreRowMajor) {
    Tile tile(4, 3);
    ASSERT_TRUE(tile.set_pixel(3, 1, Color(1, 2, 3)));
    EXPECT_EQ(tile.pixels()[1 * 4 + 3], Color(1, 2, 3));
}

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

TEST(TilePixelAccess, WhiteIgnoresAlphaEmptyNeedsAllFourZero) {
    Tile tile(2, 2);
    tile.set_pixel(0, 0, Color(255, 255, 255, 0));
    tile.set_pixel(1, 0, Color(255, 254, 255));
    tile.set_pixel(0, 1, Color(0, 0, 0, 1));
    tile.set_pixel(1, 1, transparent_black);
    EXPECT_TRUE(tile.is_white(0, 0));
    EXPECT_FALSE(tile.is_white(1, 0));
    EXPECT_FALSE(tile.is_empty(0, 1));
    EXPECT_TRUE(tile.is_empty(1, 1));
    EXPECT_EQ(tile.alpha(0, 1), 1);
}

TEST(TilePixelAccess, NegativeSizeHoldsNoPixels) {
    Tile tile(-3, 5);
    EXPECT_EQ(tile.pixel_count(), 0);
    EXPECT_EQ(tile.get_pixel(0, 0), transparent_black);
}

TEST(TileTexture, WritesAndFillLeaveTheTextureUntilUpdated) {
    Fake_Texture_Scope textures;
    Tile tile(3, 3);
    tile.set_pixel(1, 1, Color(200, 0, 0));
    tile.fill(Color(0, 200, 0));
    EXPECT_EQ(Fake_Texture_Scope::of(tile).updates, 0);
    EXPECT_FALSE(texture_is_current(tile));
    tile.update_texture();
    EXPECT_TRUE(texture_is_current(tile));
    tile.draw(12, 34);
    EXPECT_EQ(Fake_Texture_Scope::of(tile).last_x, 12);
    EXPECT_EQ(Fake_Texture_Scope::of(tile).last_y, 34);
}

TEST(TileTexture, WithoutAMakerTilesHaveNoTexture) {
    Tile tile(3, 3);
    EXPECT_EQ(tile.texture(), nullptr);
    tile.update_texture();
    tile.draw(0, 0);
}

TEST(TileCopy, SameSizeCopiesAndUpdatesTheDestinationTexture) {
    Fake_Texture_Scope textures;
    Tile source(8, 8), destination(8, 8);
    randomise(source, 1);
    source.copy_into(destination);
    EXPECT_TRUE(std::equal(source.pixels(), source.pixels() + 64, destination.pixels()));
    EXPECT_TRUE(texture_is_current(destination));
    EXPECT_EQ(Fake_Texture_Scope::of(source).updates, 0);
}

TEST(TileCopy, ResamplingLeavesTheDestinationTextureAlone) {
    Fake_Texture_Scope textures;
    Tile source(8, 8), destination(16, 12);
    randomise(source, 2);
    source.copy_into(destination);
    EXPECT_EQ(Fake_Texture_Scope::of(destination).updates, 0);
}

TEST(TileCopy, ResamplingWritesOpaquePixelsEvenFromTransparentOnes) {
    Tile tile(24, 24), up(48, 48), back(24, 24);
    tile.fill(transparent_black);
    tile.set_pixel(3, 3, Color(10, 20, 30, 40));
    tile.copy_into(up);
    up.copy_into(back);
    for (int i = 0; i < up.pixel_count(); ++i) EXPECT_EQ(up.pixels()[i].alpha, 255);
    for (int i = 0; i < back.pixel_count(); ++i) EXPECT_EQ(back.pixels()[i].alpha, 255);
}

TEST(TileCopy, ResamplingKeepsTheTopLeftPixel) {
    Tile source(7, 5), larger(30, 20), smaller(3, 2);
    randomise(source, 3);
    source.copy_into(larger);
    source.copy_into(smaller);
    const Color corner = source.get_pixel(0, 0);
    EXPECT_EQ(larger.get_pixel(0, 0), Color(corner.red, corner.green, corner.blue));
    EXPECT_EQ(smaller.get_pixel(0, 0), Color(corner.red, corner.green, corner.blue));
}

// The resampling written out step by step, to hold the tile's own version to it.
void reference_resample(const Tile& s, Tile& d) {
    const int sw = s.width(), sh = s.height(), dw = d.width(), dh = d.height();
    const float kx = dw / (sw - (1.01f - float(sw) / float(dw)));
    const float ky = dh / (sh - (1.01f - float(sh) / float(dh)));
    for (int y = 0; y < dh; ++y) {
        for (int x = 0; x < dw; ++x) {
            float fx = x / kx, fy = y / ky;
            if (fx >= sw) fx = float(sw - 1);
            if (fy >= sh) fy = float(sh - 1);
            const float ax = fx - std::floor(fx), ay = fy - std::floor(fy);
            auto clampx = [&](float v) { return std::min(std::max(int(v), 0), sw - 1); };
            auto clampy = [&](float v) { return std::min(std::max(int(v), 0), sh - 1); };
            const int x0 = clampx(std::floor(fx)), x1 = clampx(std::ceil(fx));
            const int y0 = clampy(std::floor(fy)), y1 = clampy(std::ceil(fy));
            int channel[3];
            for (int c = 0; c < 3; ++c) {
                auto at = [&](int px, int py) {
                    const Color p = s.get_pixel(px, py);
                    return c == 0 ? p.red : c == 1 ? p.green : p.blue;
                };
                const float sum = ax * ay * at(x1, y1) + (1 - ay) * ax * at(x1, y0) +
                                  (1 - ax) * ay * at(x0, y1) + (1 - ay) * (1 - ax) * at(x0, y0);
                channel[c] = int(sum);
            }
            d.set_pixel(x, y, Color(uint8_t(channel[0]), uint8_t(channel[1]), uint8_t(channel[2])));
        }
    }
}

TEST(TileCopy, ResamplingMatchesTheStepByStepAlgorithm) {
    const std::pair<int, int> sizes[][2] = {
        {{24, 24}, {48, 48}}, {{48, 48}, {24, 24}}, {{6, 6}, {64, 64}}, {{64, 64}, {6, 6}},
        {{1, 1}, {9, 9}},     {{9, 4}, {1, 1}},     {{1, 3}, {200, 2}}, {{13, 7}, {17, 29}}};
    unsigned seed = 10;
    for (const auto& pair : sizes) {
        Tile source(pair[0].first, pair[0].second);
        randomise(source, seed++);
        Tile actual(pair[1].first, pair[1].second), expected(pair[1].first, pair[1].second);
        source.copy_into(actual);
        reference_resample(source, expected);
        for (int i = 0; i < actual.pixel_count(); ++i)
            ASSERT_EQ(actual.pixels()[i], expected.pixels()[i])
                << pair[0].first << "x" << pair[0].second << " -> " << pair[1].first << "x"
                << pair[1].second << " pixel " << i;
    }
}

TEST(TileCopy, EmptyTilesAreLeftAlone) {
    Tile empty(0, 0), tile(4, 4);
    tile.fill(Color(5, 5, 5));
    empty.copy_into(tile);
    tile.copy_into(empty);
    EXPECT_EQ(tile.get_pixel(2, 2), Color(5, 5, 5));
}

}  // namespace
