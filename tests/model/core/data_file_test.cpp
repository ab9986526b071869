#include "model/core/data_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/scratch_dir.h"

namespace {

TEST(DataFile, SaveWholeAndLoadWholeRoundTrip) {
    Scratch_Dir dir;
    Data_File file(dir.file("b.dat"));
    const unsigned char out[5] = {9, 8, 7, 6, 5};
    EXPECT_EQ(file.save_whole(out, sizeof out), 5);
    unsigned char in[5] = {};
    EXPECT_TRUE(file.load_whole(in, sizeof in));
    EXPECT_EQ(in[0], 9);
    EXPECT_EQ(in[4], 5);
}

TEST(DataFileDeathTest, ShortLoadNamesTheFileAfterTwoBlanks) {
    Scratch_Dir dir;
    const std::string path = dir.file("short.dat");
    write_bytes(path, {1, 2});
    EXPECT_EXIT(
        {
            send_stdout_to_stderr();
            Data_File file(path);
            unsigned char buffer[4];
            file.load_whole(buffer, sizeof buffer);
        },
        ::testing::ExitedWithCode(1), "^Error: Unable to load block from  .*short\\.dat!\n$");
}

TEST(DataFileDeathTest, LoadOrDieOnMissingFile) {
    Scratch_Dir dir;
    const std::string path = dir.file("gone.dat");
    EXPECT_EXIT(
        {
            send_stdout_to_stderr();
            Data_File file(path);
            unsigned char buffer[4];
            file.load_whole_or_die(buffer, sizeof buffer);
        },
        ::testing::ExitedWithCode(1), "Error: Unable to load file  .*gone\\.dat!");
}

}  // namespace
