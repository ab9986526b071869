// The pad's store and its file "brushpad.dat", without a window.
#include "model/brushpad/brush_pad_file.h"

#include <gtest/gtest.h>

#include <string>

#include "model/brushpad/brush_pad.h"
#include "support/scratch_dir.h"

namespace {
const Color clear(0, 0, 0, 0);
const Color red(220, 20, 30);
const Color half_blue(10, 40, 230, 128);

// A 5 x 3 brush with clear corners, a translucent pixel and white in the middle.
std::unique_ptr<Tile> odd_brush() {
    auto t = std::make_unique<Tile>(5, 3);
    t->fill(red);
    t->set_pixel(0, 0, clear);
    t->set_pixel(4, 2, clear);
    t->set_pixel(2, 1, Color(255, 255, 255));
    t->set_pixel(1, 2, half_blue);
    return t;
}

void expect_same_pixels(const Tile& a, const Tile& b) {
    ASSERT_TRUE(a.same_size(b));
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            EXPECT_EQ(a.get_pixel(x, y).word(), b.get_pixel(x, y).word()) << x << "," << y;
}

}  // namespace

TEST(BrushPadStore, AddsRefusesDuplicatesAndOversizeKeepsCapacityAndDeletesTheSelected) {
    Brush_Pad pad;
    const auto brush = odd_brush();
    EXPECT_EQ(pad.add(*brush, 2, 1), Brush_Pad::Add_Result::added);
    EXPECT_EQ(pad.selected(), 0);
    EXPECT_TRUE(pad.is_changed());
    EXPECT_EQ(pad.add(*brush, 2, 1), Brush_Pad::Add_Result::already_there);
    // The same pixels with another hotspot are another brush.
    EXPECT_EQ(pad.add(*brush, 0, 0), Brush_Pad::Add_Result::added);
    Tile big(65, 4);
    EXPECT_EQ(pad.add(big, 0, 0), Brush_Pad::Add_Result::unusable);
    EXPECT_EQ(pad.add(*brush, 5, 0), Brush_Pad::Add_Result::unusable);
    for (int i = 2; i < Brush_Pad::capacity; ++i) {
        Tile t(1, 1);
        t.set_pixel(0, 0, Color(uint8_t(i), 0, 0));
        ASSERT_EQ(pad.add(t, 0, 0), Brush_Pad::Add_Result::added) << i;
    }
    Tile one_more(2, 2);
    EXPECT_EQ(pad.add(one_more, 0, 0), Brush_Pad::Add_Result::full);
    EXPECT_EQ(pad.count(), Brush_Pad::capacity);
    pad.select(0);
    ASSERT_TRUE(pad.remove_selected());
    EXPECT_EQ(pad.selected(), 0);
    EXPECT_EQ(pad.brush(0).hot_x, 0);
    pad.select(pad.count() - 1);
    ASSERT_TRUE(pad.remove_selected());
    EXPECT_EQ(pad.selected(), pad.count() - 1);
    pad.select(-1);
    EXPECT_FALSE(pad.remove_selected());
}

TEST(BrushPadFile, RoundTripComesBackByteEqualAndTheFormatIsAsDocumented) {
    Scratch_Dir dir;
    const std::string path = dir.file("brushpad.dat");
    Brush_Pad pad;
    const auto brush = odd_brush();
    ASSERT_EQ(pad.add(*brush, 4, 0), Brush_Pad::Add_Result::added);
    Tile full(64, 64);
    for (int i = 0; i < full.pixel_count(); ++i) full.pixels()[i] = Color::from_word(uint32_t(i) * 2654435761u);
    ASSERT_EQ(pad.add(full, 63, 10), Brush_Pad::Add_Result::added);
    pad.select(0);
    ASSERT_TRUE(Brush_Pad_File::save(pad, path));
    EXPECT_FALSE(pad.is_changed());

    // Version 1, two brushes, the first selected, its size and hotspot, then
    // its first pixel: clear, and the second: opaque red, the word 0xFFDC141E.
    const std::vector<unsigned char> bytes = read_bytes(path);
    const std::string text(bytes.begin() + 4, bytes.end());
    EXPECT_EQ(text.substr(0, 26), "1,2,0,5,3,4,0,0,-2354146,-");
    EXPECT_EQ(text.back(), ':');
    EXPECT_EQ(bytes[0] | bytes[1] << 8 | bytes[2] << 16 | bytes[3] << 24, int(text.size()));

    Brush_Pad back;
    const Brush_Pad_File::Load_Result result = Brush_Pad_File::load(back, path);
    EXPECT_TRUE(result.found);
    EXPECT_EQ(result.damage, "");
    EXPECT_FALSE(back.is_changed());
    ASSERT_EQ(back.count(), 2);
    EXPECT_EQ(back.selected(), 0);
    expect_same_pixels(*back.brush(0).image, *brush);
    expect_same_pixels(*back.brush(1).image, full);
    EXPECT_EQ(back.brush(0).hot_x, 4);
    EXPECT_EQ(back.brush(1).hot_y, 10);
    const std::string again = dir.file("again.dat");
    ASSERT_TRUE(Brush_Pad_File::save(back, again));
    EXPECT_EQ(read_bytes(again), bytes);
    // No temporary file is left beside the target.
    int files = 0;
    for ([[maybe_unused]] const auto& e : std::filesystem::directory_iterator(dir.path())) ++files;
    EXPECT_EQ(files, 2);

    Brush_Pad missing;
    EXPECT_FALSE(Brush_Pad_File::load(missing, dir.file("none.dat")).found);
    EXPECT_TRUE(missing.empty());
}

TEST(BrushPadFile, HostileFilesAreRefusedWithAnEmptyPadAndLeftAlone) {
    Scratch_Dir dir;
    const std::string path = dir.file("brushpad.dat");
    const struct {
        std::string text;
        std::string reason;
    } cases[] = {
        {"1,-1,-1:", "a negative brush count"},
        {"1,2147483647,-1:", "more brushes than the pad holds"},
        {"1,1,0,65,1,0,0:", "a brush size outside 1 to 64"},
        {"1,1,0,2,-3,0,0:", "a brush size outside 1 to 64"},
        {"1,1,0,2,1,2,0,0,0:", "a hotspot outside its brush"},
        {"1,1,1,1,1,0,0,0:", "a selected brush that is not on the pad"},
        {"1,1,0,2,1,0,0,7:", "the file ends early"},
        {"1,1,0,1,1,0,0,4294967296:", "a value that is not a 32-bit number"},
        {"1,1,0,1,1,0,0,red:", "a value that is not a 32-bit number"},
        {"2,0,-1:", "an unknown version 2"},
        {"", "the file ends early"},
    };
    for (const auto& c : cases) {
        write_stream(path, c.text);
        const std::vector<unsigned char> before = read_bytes(path);
        Brush_Pad pad;
        const Brush_Pad_File::Load_Result result = Brush_Pad_File::load(pad, path);
        EXPECT_TRUE(result.found) << c.text;
        EXPECT_EQ(result.damage, c.reason) << c.text;
        EXPECT_TRUE(pad.empty()) << c.text;
        EXPECT_EQ(pad.selected(), -1) << c.text;
        EXPECT_EQ(read_bytes(path), before) << c.text;
    }
    // A good file of a single pixel reads, so the cases above fail for their
    // own reason only.
    write_stream(path, "1,1,0,1,1,0,0,-1:");
    Brush_Pad pad;
    EXPECT_EQ(Brush_Pad_File::load(pad, path).damage, "");
    ASSERT_EQ(pad.count(), 1);
    EXPECT_EQ(pad.brush(0).image->get_pixel(0, 0), Color(255, 255, 255, 255));
}

TEST(BrushPadFileDeathTest, ALengthBeyondTheFileIsTheBlockError) {
    Scratch_Dir dir;
    const std::string path = dir.file("brushpad.dat");
    write_bytes(path, {200, 0, 0, 0, '1', ',', '0'});
    EXPECT_EXIT(
        {
            send_stdout_to_stderr();
            Brush_Pad pad;
            Brush_Pad_File::load(pad, path);
        },
        ::testing::ExitedWithCode(1), "^Error: Unable to load block from  .*brushpad\\.dat!\n$");
    EXPECT_EQ(read_bytes(path).size(), 7u);
}
