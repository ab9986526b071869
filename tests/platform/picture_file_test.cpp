// Pictures as the user's PNG and BMP files: every channel kept, the kind
// chosen by the name, hostile headers refused before anything is reserved.
#include "platform/picture_file.h"

#include <gtest/gtest.h>

#include <random>

#include "support/headless.h"
#include "support/scratch_dir.h"

TEST(PictureFile, PngAndBmpKeepEveryChannel) {
    Temp_Dir dir;
    std::mt19937 rng(5);
    Picture p(19, 7, Color());
    for (Color& c : p.pixels) c = Color::from_word(rng());
    for (const char* name : {"a.png", "b.PNG", "c.bmp", "d"}) {
        const std::string path = (dir.path / name).string();
        ASSERT_TRUE(picture_file::write(path, p, safe_file::Links::refuse)) << name;
        EXPECT_EQ(read_bytes(path).at(0), picture_file::names_png(path) ? 0x89 : 'B') << name;
        Picture back;
        EXPECT_EQ(picture_file::read(path, back), "") << name;
        EXPECT_EQ(back, p) << name;
    }
    // A BMP header claiming 60000 x 60000 pixels, and bytes of neither kind.
    std::vector<unsigned char> claim(54, 0);
    claim[0] = 'B', claim[1] = 'M', claim[14] = 40;
    claim[18] = claim[22] = 0x60, claim[19] = claim[23] = 0xEA;
    write_bytes((dir.path / "huge.bmp").string(), claim);
    write_bytes((dir.path / "text.png").string(), {'h', 'i'});
    Picture back;
    EXPECT_EQ(picture_file::read((dir.path / "huge.bmp").string(), back), "a picture of 60000 x 60000 pixels is too large");
    EXPECT_EQ(picture_file::read((dir.path / "text.png").string(), back) + picture_file::read("none.png", back),
              "not a PNG or BMP fileno such file");
}
