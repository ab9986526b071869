#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

class Data_File;

// The length-prefixed token text of the program's data files (palette, dialog
// data, brush pad): a little-endian u32 length, then numbers and texts joined
// by "," and ended by ":". A number is written with "," before it unless it is
// the very first thing; a text has no separator before it and "," after it.
class Token_Stream {
public:
    static constexpr size_t max_number_chars = 16;

    Token_Stream() = default;
    explicit Token_Stream(std::string text) : buffer(std::move(text)) {}

    void write_number(int32_t number);
    // Written as it is: a text holding "," or ":" does not read back whole.
    void write_text(std::string_view text);

    // Up to 16 characters until "," or ":" (consumed), converted as decimal:
    // leading digits, 0 if none, clamped to the 32-bit range.
    int32_t read_number();
    // Characters until "," or ":" (consumed), no length limit.
    std::string read_text();
    // The same token as read_text, as a view into the stream's text: valid
    // until the stream changes, and nothing is copied.
    std::string_view read_token();

    // Appends ":" and writes the length and the text; returns false if the
    // block could not be written.
    bool write_to(Data_File& file);
    bool write_to(std::FILE* file);
    // Reads the length and that many bytes, replacing the text and rewinding.
    // A short read ends the program with the block error naming the file.
    void read_from(Data_File& file);

    const std::string& text() const { return buffer; }
    size_t position() const { return read_position; }
    bool at_end() const { return read_position >= buffer.size(); }

private:
    std::string buffer;
    size_t read_position = 0;
};

// Dialog data files are this same stream.
using Dialog_Stream = Token_Stream;
