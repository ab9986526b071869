// The token stream of every data file: read from a file by its length prefix,
// then taken apart with reads of numbers and texts in an order the input picks.
#include <cstdlib>
#include <string>

#include "model/core/data_file.h"
#include "model/core/token_stream.h"
#include "fuzz/fatal_throws.h"
#include "fuzz/support.h"

namespace {

bool is_separator(char c) { return c == ',' || c == ':'; }

// A number read back from what the writer makes of it is the same number.
void check_round_trip(int32_t number) {
    Token_Stream out;
    out.write_number(number);
    Token_Stream in(out.text());
    if (in.read_number() != number || !in.at_end()) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    // The first byte picks the reads, one bit each, repeating; the rest is the file.
    const uint8_t plan = data[0];
    static const std::string path = (fuzz::private_dir() / "input.dat").string();
    fuzz::write_file(path, data + 1, size - 1);
    Token_Stream stream;
    try {
        Data_File file(path);
        if (!file.open_read()) std::abort();
        stream.read_from(file);
    } catch (const Fatal_Exit& e) {
        if (e.text != "Error: Unable to load block from  " + path + "!") std::abort();
        return 0;
    }
    // The length prefix says how much text there is, and the file holds it all.
    if (stream.text().size() + 4 > size - 1 || stream.position() != 0) std::abort();
    for (unsigned step = 0; !stream.at_end(); ++step) {
        const size_t before = stream.position();
        if (plan >> (step % 8) & 1) {
            const std::string text = stream.read_text();
            for (char c : text)
                if (is_separator(c)) std::abort();
            if (text.size() > stream.position() - before) std::abort();
        } else {
            check_round_trip(stream.read_number());
            if (stream.position() - before > Token_Stream::max_number_chars) std::abort();
        }
        // Every read before the end moves on, so the loop ends.
        if (stream.position() <= before || stream.position() > stream.text().size()) std::abort();
    }
    // Past the end every read gives nothing.
    if (stream.read_number() != 0 || !stream.read_text().empty()) std::abort();
    return 0;
}
