#include "model/core/token_stream.h"

#include <gtest/gtest.h>

#include <limits>

#include "model/core/data_file.h"
#include "support/scratch_dir.h"

namespace {

TEST(TokenStreamReading, NumberTakesAtMostSixteenCharacters) {
    Token_Stream s("00000000000000123,5");
    // Sixteen zeros-and-digits, then the seventeenth character starts a token.
    EXPECT_EQ(s.read_number(), 12);
    EXPECT_EQ(s.position(), Token_Stream::max_number_chars);
    EXPECT_EQ(s.read_number(), 3);
    EXPECT_EQ(s.read_number(), 5);
}

TEST(TokenStreamReading, HugeNumbersAreHeldAtTheIntegerBounds) {
    Token_Stream s("999999999999999,-99999999999999");
    EXPECT_EQ(s.read_number(), std::numeric_limits<int32_t>::max());
    EXPECT_EQ(s.read_number(), std::numeric_limits<int32_t>::min());
}

TEST(TokenStreamFile, RoundTripWithLengthPrefixCountingTheColon) {
    Scratch_Dir dir;
    const std::string path = dir.file("stream.dat");
    Token_Stream out;
    out.write_number(1);
    out.write_number(-2);
    out.write_number(30);
    {
        Data_File file(path);
        ASSERT_TRUE(file.open_write());
        EXPECT_TRUE(out.write_to(file));
    }
    const auto bytes = read_bytes(path);
    const std::string text = "1,-2,30:";
    ASSERT_EQ(bytes.size(), 4 + text.size());
    EXPECT_EQ(bytes[0], text.size());
    EXPECT_EQ(bytes[1], 0);
    EXPECT_EQ(bytes[2], 0);
    EXPECT_EQ(bytes[3], 0);
    EXPECT_EQ(std::string(bytes.begin() + 4, bytes.end()), text);

    Data_File file(path);
    ASSERT_TRUE(file.open_read());
    Token_Stream in;
    in.read_from(file);
    EXPECT_EQ(in.text(), text);
    EXPECT_EQ(in.read_number(), 1);
    EXPECT_EQ(in.read_number(), -2);
    EXPECT_EQ(in.read_number(), 30);
    EXPECT_TRUE(in.at_end());
}

TEST(TokenStreamFileDeathTest, ShortTextEndsWithTheBlockError) {
    Scratch_Dir dir;
    const std::string path = dir.file("short.dat");
    write_bytes(path, {10, 0, 0, 0, '1', ','});
    EXPECT_EXIT(
        {
            send_stdout_to_stderr();
            Data_File file(path);
            file.open_read();
            Token_Stream in;
            in.read_from(file);
        },
        ::testing::ExitedWithCode(1), "Error: Unable to load block from  .*short\\.dat!");
}

TEST(TokenStreamFileDeathTest, HugeLengthFailsWithoutExhaustingMemory) {
    Scratch_Dir dir;
    const std::string path = dir.file("huge.dat");
    write_bytes(path, {0xFF, 0xFF, 0xFF, 0xFF, '1', ':'});
    EXPECT_EXIT(
        {
            send_stdout_to_stderr();
            Data_File file(path);
            file.open_read();
            Token_Stream in;
            in.read_from(file);
        },
        ::testing::ExitedWithCode(1), "Unable to load block from  .*huge\\.dat!");
}

TEST(TokenStreamFileDeathTest, MissingLengthEndsWithTheBlockError) {
    Scratch_Dir dir;
    const std::string path = dir.file("short.dat");
    write_bytes(path, {3, 0});
    EXPECT_EXIT(
        {
            send_stdout_to_stderr();
            Data_File file(path);
            file.open_read();
            Token_Stream in;
            in.read_from(file);
        },
        ::testing::ExitedWithCode(1), "Unable to load block from  .*short\\.dat!");
}

}  // namespace
