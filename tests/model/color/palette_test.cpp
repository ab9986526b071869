#include "model/color/palette.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/scratch_dir.h"

namespace {

std::string stored_text(const std::string& path) {
    const auto bytes = read_bytes(path);
    if (bytes.size() < 4) return {};
    return std::string(bytes.begin() + 4, bytes.end());
}

// Each colour's four channels, then the page's name between commas.
TEST(PaletteWriting, ChangedPaletteWritesEveryPageAsTokens) {
    Scratch_Dir dir;
    const std::string path = dir.file("palette.dat");
    {
        Palette palette(path);
        palette.set_color(1, 3, Color(1, 2, 3, 4));
        EXPECT_TRUE(palette.dirty());
    }
    const std::string text = stored_text(path);
    EXPECT_EQ(text.rfind("3,32,255,255,255,255,0,0,0,255,", 0), 0u);
    EXPECT_NE(text.find(",174,0,153,255,Default,,32,"), std::string::npos);
    EXPECT_NE(text.find(",1,2,3,4,"), std::string::npos);
    EXPECT_EQ(text.substr(text.size() - 6), ",MSX,:");
    EXPECT_EQ(read_bytes(path).size(), 4 + text.size());
}

TEST(PaletteReading, WhatIsWrittenReadsBackAndOlderFilesStillRead) {
    Scratch_Dir dir;
    const std::string path = dir.file("palette.dat");
    {
        Palette palette(path);
        palette.set_color(2, 0, Color(9, 9, 9));
        palette.set_color(0, 31, Color(1, 2, 3, 0));
    }
    Palette reread(path);
    ASSERT_EQ(reread.page_count(), 3);
    EXPECT_EQ(reread.name(0), "Default");
    EXPECT_EQ(reread.name(2), "MSX");
    EXPECT_EQ(reread.color(2, 0), Color(9, 9, 9));
    EXPECT_EQ(reread.color(0, 31), Color(1, 2, 3, 0));
    EXPECT_EQ(reread.color(1, 1), Color(0, 0, 170));
    EXPECT_FALSE(reread.dirty());

    // Written before: each name glued to the number before it, a page of no
    // colours included; a file of names only is read as it always was.
    write_stream(path, "2,1,10,20,30,255Warm,,0Empty,:");
    Palette older(path);
    ASSERT_EQ(older.page_count(), 2);
    EXPECT_EQ(older.name(0), "Warm");
    EXPECT_EQ(older.color(0, 0), Color(10, 20, 30));
    EXPECT_EQ(older.name(1), "Empty");
    EXPECT_EQ(older.count(1), 0);
    write_stream(path, "2,4,Sky,2,Sea,:");
    Palette names(path);
    ASSERT_EQ(names.page_count(), 2);
    EXPECT_EQ(names.name(1), "Sea");
    EXPECT_EQ(names.color(0, 3), Color(0, 0, 0));
}

TEST(PaletteWriting, EmptyNameBecomesRolololo) {
    Scratch_Dir dir;
    const std::string path = dir.file("palette.dat");
    write_stream(path, "1,2,:");
    {
        Palette palette(path);
        ASSERT_EQ(palette.page_count(), 1);
        EXPECT_EQ(palette.name(0), "");
        palette.set_color(0, 1, Color(5, 6, 7));
        ASSERT_TRUE(palette.write());
        EXPECT_EQ(palette.name(0), "Rolololo");
    }
    EXPECT_EQ(stored_text(path), "1,2,0,0,0,255,5,6,7,255,Rolololo,:");
}

TEST(PaletteReading, DamagedCountsFallBackToTheBuiltInPagesAndLeaveTheFile) {
    Scratch_Dir dir;
    const std::string path = dir.file("palette.dat");
    for (const char* text : {"1,-3,name:", "1,100000,name:", "2147483647:", "65:"}) {
        write_stream(path, text);
        const auto bytes = read_bytes(path);
        {
            Palette palette(path);
            ASSERT_EQ(palette.page_count(), 3) << text;
            EXPECT_EQ(palette.name(0), "Default");
            EXPECT_EQ(palette.count(2), 32);
            EXPECT_FALSE(palette.damage_report().empty());
        }
        EXPECT_EQ(read_bytes(path), bytes) << text;
    }
}

TEST(PaletteDeathTest, ALengthBeyondOrShortOfTheFileEndsWithTheBlockError) {
    Scratch_Dir dir;
    const std::string path = dir.file("palette.dat");
    for (const std::vector<unsigned char>& bytes : {std::vector<unsigned char>{0, 0, 0, 0x40, '3', ':'}, {0x01}}) {
        write_bytes(path, bytes);
        EXPECT_EXIT(
            {
                send_stdout_to_stderr();
                Palette palette(path);
            },
            ::testing::ExitedWithCode(1), "Error: Unable to load block from  .*palette\\.dat!");
    }
}

}  // namespace
