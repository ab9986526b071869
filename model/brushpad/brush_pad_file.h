#pragma once

#include <string>

class Brush_Pad;

// "brushpad.dat": the pad as one token stream of numbers, version first:
//   version, brush count, selected brush (-1 for none), then per brush its
//   width, height, hotspot x, hotspot y and its pixels row by row, each the
//   colour word 0xAARRGGBB written as a signed 32-bit number.
class Brush_Pad_File {
public:
    static constexpr const char* default_name = "brushpad.dat";
    static constexpr int version = 1;

    struct Load_Result {
        bool found = false;
        // Empty when the file was read; otherwise why it was refused. A
        // refused file leaves the pad empty.
        std::string damage;
    };

    // A missing file is an empty pad. A block shorter than its length
    // prefix ends the program with the data-file block error.
    static Load_Result load(Brush_Pad& pad, const std::string& path);
    // Written beside the target and renamed over it, so a failed write
    // leaves the old file whole. Marks the pad saved on success.
    static bool save(Brush_Pad& pad, const std::string& path);
    // The stream's text without its length prefix and closing ":".
    static std::string encode(const Brush_Pad& pad);
};
