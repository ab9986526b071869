#include "model/core/token_stream.h"

#include <cstdio>

#include <cstdlib>
#include <limits>

#include "model/core/data_file.h"

namespace {
bool is_separator(char c) { return c == ',' || c == ':'; }
}  // namespace

void Token_Stream::write_number(int32_t number) {
    if (!buffer.empty()) buffer += ',';
    buffer += std::to_string(number);
}

void Token_Stream::write_text(std::string_view text) {
    buffer += text;
    buffer += ',';
}

int32_t Token_Stream::read_number() {
    char digits[max_number_chars + 1];
    size_t taken = 0;
    // The end of the text ends a token like a separator does.
    while (taken < max_number_chars && read_position < buffer.size()) {
        const char c = buffer[read_position++];
        if (is_separator(c)) break;
        digits[taken++] = c;
    }
    digits[taken] = '\0';
    // Sixteen digits fit in a long long, so the conversion itself never
    // overflows; the clamp keeps absurd values inside the 32-bit range.
    const long long value = std::strtoll(digits, nullptr, 10);
    if (value > std::numeric_limits<int32_t>::max()) return std::numeric_limits<int32_t>::max();
    if (value < std::numeric_limits<int32_t>::min()) return std::numeric_limits<int32_t>::min();
    return static_cast<int32_t>(value);
}

std::string Token_Stream::read_text() { return std::string(read_token()); }

std::string_view Token_Stream::read_token() {
    const size_t start = read_position;
    while (read_position < buffer.size() && !is_separator(buffer[read_position])) ++read_position;
    const std::string_view token(buffer.data() + start, read_position - start);
    if (read_position < buffer.size()) ++read_position;
    return token;
}

bool Token_Stream::write_to(Data_File& file) {
    buffer += ':';
    const uint32_t length = static_cast<uint32_t>(buffer.size());
    const unsigned char prefix[4] = {
        static_cast<unsigned char>(length), static_cast<unsigned char>(length >> 8),
        static_cast<unsigned char>(length >> 16), static_cast<unsigned char>(length >> 24)};
    const bool ok = file.write_block(prefix, sizeof prefix) == 1;
    return file.write_block(buffer.data(), buffer.size()) == 1 && ok;
}

bool Token_Stream::write_to(std::FILE* file) {
    buffer += ':';
    const uint32_t length = static_cast<uint32_t>(buffer.size());
    const unsigned char prefix[4] = {
        static_cast<unsigned char>(length), static_cast<unsigned char>(length >> 8),
        static_cast<unsigned char>(length >> 16), static_cast<unsigned char>(length >> 24)};
    const bool ok = std::fwrite(prefix, sizeof prefix, 1, file) == 1;
    return (buffer.empty() || std::fwrite(buffer.data(), buffer.size(), 1, file) == 1) && ok;
}

void Token_Stream::read_from(Data_File& file) {
    unsigned char prefix[4];
    file.read_block(prefix, sizeof prefix);
    const uint32_t length = prefix[0] | uint32_t(prefix[1]) << 8 | uint32_t(prefix[2]) << 16 |
                            uint32_t(prefix[3]) << 24;
    buffer.clear();
    read_position = 0;
    // Read in pieces so that a length far beyond the file's real size fails
    // on the first missing piece instead of reserving gigabytes first.
    constexpr size_t piece = 64 * 1024;
    size_t remaining = length;
    while (remaining > 0) {
        const size_t n = remaining < piece ? remaining : piece;
        const size_t old_size = buffer.size();
        buffer.resize(old_size + n);
        file.read_block(buffer.data() + old_size, n);
        remaining -= n;
    }
}
