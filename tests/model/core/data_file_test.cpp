#include "model/core/data_file.h"

#include <gtest/gtest.h>

#include <limits>

#include "model/core/token_stream.h"
#include "support/scratch_dir.h"

namespace {

TEST(TokenStreamReading, NumberTakesAtMostSixteenCharactersAndHugeOnesAreHeldAtTheBounds) {
    Token_Stream s("00000000000000123,5");
    // Sixteen zeros-and-digits, then the seventeenth character starts a token.
    EXPECT_EQ(s.read_number(), 12);
    EXPECT_EQ(s.position(), Token_Stream::max_number_chars);
    EXPECT_EQ(s.read_number(), 3);
    EXPECT_EQ(s.read_number(), 5);
    Token_Stream huge("999999999999999,-99999999999999");
    EXPECT_EQ(huge.read_number(), std::numeric_limits<int32_t>::max());
    EXPECT_EQ(huge.read_number(), std::numeric_limits<int32_t>::min());
}

TEST(TokenStreamFile, RoundTripWithLengthPrefixCountingTheColon) {
    Scratch_Dir dir;
    const std::string path = dir.file("stream.dat");
    Token_Stream out;
    for (int n : {1, -2, 30}) out.write_number(n);
    {
        Data_File file(path);
        ASSERT_TRUE(file.open_write());
        EXPECT_TRUE(out.write_to(file));
    }
    const std::string text = "1,-2,30:";
    std::vector<unsigned char> expected{uint8_t(text.size()), 0, 0, 0};
    expected.insert(expected.end(), text.begin(), text.end());
    EXPECT_EQ(read_bytes(path), expected);

    Data_File file(path);
    ASSERT_TRUE(file.open_read());
    Token_Stream in;
    in.read_from(file);
    for (int n : {1, -2, 30}) EXPECT_EQ(in.read_number(), n);
    EXPECT_TRUE(in.at_end());
}

// A short text, a huge length (without exhausting memory) and a missing
// length all end with the block error naming the file after two blanks.
TEST(DataFileDeathTest, ShortBlocksAndMissingFilesEndTheProgramNamingTheFile) {
    Scratch_Dir dir;
    const std::string path = dir.file("short.dat");
    for (const std::vector<unsigned char>& bytes :
         {std::vector<unsigned char>{10, 0, 0, 0, '1', ','}, {0xFF, 0xFF, 0xFF, 0xFF, '1', ':'}, {3, 0}}) {
        write_bytes(path, bytes);
        EXPECT_EXIT(
            {
                send_stdout_to_stderr();
                Data_File file(path);
                file.open_read();
                Token_Stream in;
                in.read_from(file);
            },
            ::testing::ExitedWithCode(1), "^Error: Unable to load block from  .*short\\.dat!\n$");
    }
    EXPECT_EXIT(
        {
            send_stdout_to_stderr();
            Data_File file(path);
            unsigned char buffer[40];
            file.load_whole(buffer, sizeof buffer);
        },
        ::testing::ExitedWithCode(1), "^Error: Unable to load block from  .*short\\.dat!\n$");
    EXPECT_EXIT(
        {
            send_stdout_to_stderr();
            Data_File file(dir.file("gone.dat"));
            unsigned char buffer[4];
            file.load_whole_or_die(buffer, sizeof buffer);
        },
        ::testing::ExitedWithCode(1), "Error: Unable to load file  .*gone\\.dat!");
}

}  // namespace
