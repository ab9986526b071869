#include "platform/image.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/headless.h"

namespace {
// Writes a 24-bit bitmap with the given colours in a row.
std::string write_bmp(const Temp_Dir& dir, std::initializer_list<Image::Rgba> colours) {
    SDL_Surface* s = SDL_CreateSurface(int(colours.size()), 1, SDL_PIXELFORMAT_RGB24);
    int x = 0;
    for (const Image::Rgba& c : colours) SDL_WriteSurfacePixel(s, x++, 0, c.r, c.g, c.b, 255);
    const std::string path = (dir.path / "sample.bmp").string();
    EXPECT_TRUE(SDL_SaveBMP(s, path.c_str()));
    SDL_DestroySurface(s);
    return path;
}
}  // namespace

TEST(Image, KeyColourAloneTurnsTransparentAndOutsideReadsMagenta) {
    Temp_Dir dir;
    const std::string path = write_bmp(dir, {{255, 0, 255, 255}, {254, 0, 255, 255}, {10, 20, 30, 255}});
    Image keyed(path.c_str(), 512, 512, true, 255, 0, 255);
    EXPECT_EQ(keyed.width(), 3u);  // the file's size wins over the nominal one
    EXPECT_EQ(keyed.height(), 1u);
    EXPECT_EQ(keyed.get_pixel(0, 0).a, 0);
    EXPECT_EQ(keyed.get_pixel(1, 0), (Image::Rgba{254, 0, 255, 255}));
    EXPECT_EQ(keyed.get_pixel(2, 0), (Image::Rgba{10, 20, 30, 255}));
    EXPECT_EQ(keyed.get_pixel(-1, 0), (Image::Rgba{255, 0, 255, 255}));
    EXPECT_EQ(keyed.get_pixel(3, 0), (Image::Rgba{255, 0, 255, 255}));
    EXPECT_EQ(keyed.get_pixel(0, 1), (Image::Rgba{255, 0, 255, 255}));

    Image plain(path.c_str(), 1, 1, false);
    EXPECT_EQ(plain.get_pixel(0, 0), (Image::Rgba{255, 0, 255, 255}));
}

// A missing file ends the program; so does a damaged header, which must not
// make SDL reserve the surface it claims before the short file fails.
TEST(ImageDeathTest, AnUnreadableFileOrAHeaderClaimingAHugeImageEndsTheProgram) {
    EXPECT_EXIT(Image("no-such-file.bmp", 8, 8), ::testing::ExitedWithCode(1), "");
    Temp_Dir dir;
    const std::string path = write_bmp(dir, {{1, 2, 3, 255}, {4, 5, 6, 255}});
    std::vector<unsigned char> bytes = read_bytes(path);
    const std::string huge = (dir.path / "huge.bmp").string();
    for (int side : {18, 22}) {  // width, then height as well: 1,000,000 each
        bytes[size_t(side)] = 0x40;
        bytes[size_t(side) + 1] = 0x42;
        bytes[size_t(side) + 2] = 0x0F;
    }
    write_bytes(huge, bytes);
    EXPECT_EXIT((send_stdout_to_stderr(), Image(huge.c_str(), 8, 8)), ::testing::ExitedWithCode(1),
                "Error: Could not load SDL surface from %s. " + huge + "!");

    // Larger than the sheet is fine while it stays within the limit.
    SDL_Surface* wide = SDL_CreateSurface(int(Image::max_side), 1, SDL_PIXELFORMAT_RGB24);
    const std::string wide_path = (dir.path / "wide.bmp").string();
    ASSERT_TRUE(SDL_SaveBMP(wide, wide_path.c_str()));
    SDL_DestroySurface(wide);
    EXPECT_EQ(Image(wide_path.c_str(), 8, 8).width(), uint32_t(Image::max_side));
}
