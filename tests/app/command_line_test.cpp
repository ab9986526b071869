// What the arguments ask for: files from the directory the user started in,
// the sheet the one after --tile's size, and usage errors for the rest.
#include "app/command_line.h"

#include <gtest/gtest.h>

using Mode = Command_Line::Mode;
using Arguments = std::vector<std::string>;

TEST(CommandLine, FilesSheetAndBatch) {
    auto parse = [](const Arguments& arguments) { return Command_Line::parse(arguments, "/home/u/art"); };
    Command_Line line = parse({"a.wst", "--tile", "16X8", "../s.png", "/abs/b.wst", "--", "--odd.wst"});
    EXPECT_EQ(line.mode, Mode::window);
    EXPECT_EQ(line.tilesets, (Arguments{"/home/u/art/a.wst", "/abs/b.wst", "/home/u/art/--odd.wst"}));
    EXPECT_EQ(line.sheet, "/home/u/s.png");
    EXPECT_EQ(line.tile_width * 100 + line.tile_height, 1608);

    line = parse({"--export", "o.bmp", "--batch", "in.wst", "--map-image", "m.png"});
    EXPECT_EQ(line.mode, Mode::batch);
    EXPECT_EQ(line.input + line.export_to + line.map_image_to, "/home/u/art/in.wst/home/u/art/o.bmp/home/u/art/m.png");
    line = parse({"--batch", "s.png", "--tile", "6x6", "--save", "t.wst"});
    EXPECT_EQ(line.mode, Mode::batch);
    EXPECT_EQ(line.sheet + "|" + line.input, "/home/u/art/s.png|");

    EXPECT_EQ(parse({"x.wst", "--version"}).mode, Mode::version);
    EXPECT_EQ(parse({"--help", "--bogus"}).mode, Mode::help);
    for (const Arguments& wrong : std::vector<Arguments>{
             {"--bogus"}, {"--tile", "16x16"}, {"--tile", "16", "s.png"}, {"--tile", "x16", "s.png"},
             {"--tile", "16x16x2", "s.png"}, {"--batch", "in.wst"}, {"--export", "o.png"},
             {"--batch", "in.wst", "--export"}, {"--batch", "a.wst", "b.wst", "--export", "o.png"},
             {"--batch", "s.png", "--tile", "8x8", "--map-image", "m.png"}, {"--batch", "a", "--batch", "b"}}) {
        line = parse(wrong);
        EXPECT_EQ(line.mode, Mode::usage_error) << wrong[0] << " " << wrong.size();
        EXPECT_FALSE(line.error.empty());
    }
}
