// PNG sheets as "--tile" and the batch read them: decoded, then cut into tiles.
#include <cstdlib>

#include "model/tile/png_file.h"
#include "model/tile/sheet.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Picture picture;
    if (!png_file::decode(data, size, picture).empty()) {
        // A refusal leaves the picture untouched.
        if (!picture.pixels.empty()) std::abort();
        return 0;
    }
    if (picture.width <= 0 || picture.height <= 0 || picture.width > png_file::max_side ||
        picture.height > png_file::max_side ||
        picture.pixels.size() != size_t(picture.width) * size_t(picture.height))
        std::abort();
    // What was read writes and reads back to the same pixels.
    const std::vector<uint8_t> again = png_file::encode(picture);
    Picture back;
    if (!png_file::decode(again.data(), again.size(), back).empty() || !(back == picture)) std::abort();
    const sheet::Cut cut = sheet::cut(picture, 8, 8);
    if (cut.tiles && (cut.tiles->tile_count() < 1 || cut.tiles->tile_count() > sheet::most_tiles)) std::abort();
    return 0;
}
