#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "model/core/safe_file.h"
#include "model/tile/picture.h"

// PNG pictures in and out, eight bits a channel with alpha, no gamma or colour
// correction applied either way: what is read is what the file's pixels hold,
// and a picture written and read back is the same picture.
namespace png_file {

// Larger pictures are refused before any pixel is decoded: a sheet of 256
// tiles of 64 x 64 has a million pixels, a hostile header may claim billions.
constexpr int max_side = 16384;
constexpr long long max_pixels = 16LL * 1024 * 1024;

// True when the bytes start with the PNG signature.
bool is_png(const uint8_t* data, size_t size);

// The picture the bytes hold; an empty text on success, else what was wrong
// with them, in a few words.
std::string decode(const uint8_t* data, size_t size, Picture& into);
// The same for a file; a missing, unreadable or non-regular file is refused.
std::string read(const std::string& path, Picture& into);

// The picture as PNG bytes; empty when it could not be encoded.
std::vector<uint8_t> encode(const Picture& picture);
// Written through the safe writer: false (the target as it was) on failure.
bool write(const std::string& path, const Picture& picture, safe_file::Links links);

}  // namespace png_file
