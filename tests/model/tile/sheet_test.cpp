// PNG pictures in and out, and the sheet of a tileset cut back into its tiles.
#include <gtest/gtest.h>

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

void put_be32(uint8_t* at, uint32_t v) { at[0] = uint8_t(v >> 24), at[1] = uint8_t(v >> 16), at[2] = uint8_t(v >> 8), at[3] = uint8_t(v); }
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
    put_be32(&bytes[16], 16384), put_be32(&bytes[20], 16384), put_be32(&bytes[29], crc32(&bytes[12], 17));
    EXPECT_NE(png_file::decode(bytes.data(), bytes.size(), back).find("too large"), std::string::npos);
}

TEST(Sheet, AnotherProgramsSheetIsCutRowByRowWithoutItsEmptySlotsAtTheEnd) {
    // 20 x 15 slots of 6 x 6, transparent after the 280th, one in the middle
    // opaque black like an empty slot: it stays a tile. The 24 after the
    // 256th are left out and counted.
    Picture wide(20 * 6, 15 * 6, Color(9, 9, 9, 0));
    const Picture filled = noise(20 * 6, 14 * 6, 3);
    std::copy(filled.pixels.begin(), filled.pixels.end(), wide.pixels.begin());
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 6; ++x) wide.at(6 + x, 5 * 6 + y) = Color(0, 0, 0, 255);
    sheet::Cut cut = sheet::cut(wide, 6, 6);
    ASSERT_TRUE(cut.tiles);
    EXPECT_EQ(cut.tiles->tile_count(), 256);
    EXPECT_EQ(cut.left_out, 24);
    EXPECT_EQ(cut.tiles->tile_at(21)->get_pixel(2, 3), wide.at(6 + 2, 6 + 3));
    EXPECT_EQ(cut.tiles->tile_at(101)->get_pixel(5, 5), Color(0, 0, 0, 255));

    // A blank sheet still gives one tile; sizes that do not divide it, or
    // outside 6..64, are refused with the sizes named.
    EXPECT_EQ(sheet::cut(Picture(48, 48, Color(0, 0, 0, 0)), 16, 16).tiles->tile_count(), 1);
    cut = sheet::cut(wide, 7, 6);
    EXPECT_FALSE(cut.tiles);
    EXPECT_EQ(cut.refusal, "The sheet is 120 x 90 pixels, not a whole number of 7 x 6 tiles.");
    EXPECT_FALSE(sheet::cut(wide, 5, 6).tiles || sheet::cut(Picture(130, 130, Color()), 65, 65).tiles);
}
