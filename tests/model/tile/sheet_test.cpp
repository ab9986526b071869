// PNG pictures in and out, and the sheet of a tileset cut back into its tiles.
#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "model/tile/png_file.h"
#include "model/tile/sheet.h"

namespace {
Picture noise(int w, int h, unsigned seed) {
    std::mt19937 rng(seed);
    Picture p(w, h, Color());
    for (Color& c : p.pixels) c = Color::from_word(rng());
    return p;
}

uint32_t crc32(const uint8_t* data, size_t size) {
    uint32_t crc = 0xFFFFFFFFu;
    for (size_t i = 0; i < size; ++i) {
        crc ^= data[i];
        for (int k = 0; k < 8; ++k) crc = crc & 1 ? (crc >> 1) ^ 0xEDB88320u : crc >> 1;
    }
    return ~crc;
}

void put_be32(uint8_t* at, uint32_t v) {
    for (int i = 0; i < 4; ++i) at[i] = uint8_t(v >> (24 - 8 * i));
}

std::unique_ptr<Tile_Store> noise_tiles(int w, int h, int count, unsigned seed) {
    auto store = std::make_unique<Tile_Store>(uint32_t(w), uint32_t(h), 256);
    for (int i = 0; i < count; ++i) {
        const Picture p = noise(w, h, seed + unsigned(i));
        store->append(std::make_unique<Tile>(w, h, [&](Color* px) { std::memcpy(px, p.pixels.data(), p.pixels.size() * 4); }));
    }
    return store;
}

bool same_tiles(const Tile_Store& a, const Tile_Store& b) {
    if (a.tile_count() != b.tile_count()) return false;
    for (int i = 0; i < a.tile_count(); ++i)
        if (std::memcmp(a.tile_at(i)->pixels(), b.tile_at(i)->pixels(), size_t(a.tile_at(i)->pixel_count()) * 4))
            return false;
    return true;
}
}  // namespace

TEST(PngFile, EveryChannelComesBackAndDamagedOrHugeFilesAreRefused) {
    const Picture p = noise(37, 11, 7);
    std::vector<uint8_t> bytes = png_file::encode(p);
    Picture back;
    ASSERT_EQ(png_file::decode(bytes.data(), bytes.size(), back), "");
    EXPECT_EQ(back, p);
    for (size_t n : {size_t(0), size_t(8), size_t(40), bytes.size() / 2}) {
        Picture kept = p;
        EXPECT_NE(png_file::decode(bytes.data(), n, kept), "") << n;
        EXPECT_EQ(kept, p) << n;
    }
    // A header (with a valid checksum) claiming 16384 x 16384 pixels: refused
    // before a byte of pixels is reserved.
    put_be32(&bytes[16], 16384);
    put_be32(&bytes[20], 16384);
    put_be32(&bytes[29], crc32(&bytes[12], 17));
    EXPECT_NE(png_file::decode(bytes.data(), bytes.size(), back).find("too large"), std::string::npos);
}

TEST(Sheet, CutsRowByRowWithoutTheEmptySlotsAtTheEnd) {
    // 17 tiles, one in the middle opaque black like an empty slot: it stays a tile.
    std::unique_ptr<Tile_Store> tiles = noise_tiles(8, 10, 17, 1);
    tiles->tile_at(9)->fill(Color(0, 0, 0, 255));
    sheet::Cut cut = sheet::cut(sheet::compose(*tiles), 8, 10);
    ASSERT_TRUE(cut.tiles) << cut.refusal;
    EXPECT_TRUE(same_tiles(*cut.tiles, *tiles));
    EXPECT_EQ(cut.left_out, 0);

    // Another program's sheet: 20 x 15 slots of 6 x 6, transparent after the
    // 280th; the 24 after the 256th are left out and counted.
    Picture wide(20 * 6, 15 * 6, Color(9, 9, 9, 0));
    const Picture filled = noise(20 * 6, 14 * 6, 3);
    std::copy(filled.pixels.begin(), filled.pixels.end(), wide.pixels.begin());
    cut = sheet::cut(wide, 6, 6);
    ASSERT_TRUE(cut.tiles);
    EXPECT_EQ(cut.tiles->tile_count(), 256);
    EXPECT_EQ(cut.left_out, 24);
    EXPECT_EQ(cut.tiles->tile_at(21)->get_pixel(0, 0), wide.at(6, 6));

    // A blank sheet still gives one tile; sizes that do not divide it, or
    // outside 6..64, are refused with the sizes named.
    EXPECT_EQ(sheet::cut(Picture(48, 48, Color(0, 0, 0, 0)), 16, 16).tiles->tile_count(), 1);
    cut = sheet::cut(wide, 7, 6);
    EXPECT_FALSE(cut.tiles);
    EXPECT_EQ(cut.refusal, "The sheet is 120 x 90 pixels, not a whole number of 7 x 6 tiles.");
    EXPECT_FALSE(sheet::cut(wide, 5, 6).tiles);
    EXPECT_FALSE(sheet::cut(Picture(130, 130, Color()), 65, 65).tiles);
}
