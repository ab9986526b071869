#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// The cells of a tile layer as a map file stores them: global tile ids with
// the flip and turn flags in their top bits, in CSV text or as little-endian
// 32-bit values in base64, plain or compressed with zlib, gzip or zstd. A
// layer is written back in the encoding it was read in.
namespace layer_data {

enum class Encoding { csv, base64, zlib, gzip, zstd };

// No more cells than this are unpacked from one layer: 4096 x 4096.
constexpr long long most_cells = 16LL * 1024 * 1024;

// From the data element's "encoding" and "compression" attributes (either
// may be empty); false for a combination no map tool writes.
bool encoding_of(const std::string& encoding, const std::string& compression, Encoding& into);
// The attributes that name it; compression is empty for csv and plain base64.
const char* encoding_name(Encoding e);
const char* compression_name(Encoding e);

struct Decoded {
    std::vector<uint32_t> cells;
    int bad = 0;          // CSV values that were no number, read as empty cells
    std::string failure;  // not empty: nothing could be read, and why
};
// The cells of the data text, at most max_cells of them (a layer claiming
// more is cut there, and the excess counted as one more than max_cells).
Decoded decode(const std::string& text, Encoding encoding, size_t max_cells);

// The data element's text for the cells, rows of the given width. CSV starts
// and ends with a line break, one line per row, as the map tools write it.
std::string encode(const std::vector<uint32_t>& cells, int columns, Encoding encoding);

}  // namespace layer_data
