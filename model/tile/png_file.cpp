#include "model/tile/png_file.h"

#include <spng.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>

namespace png_file {

namespace {
constexpr uint8_t signature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
// A file larger than this is no sheet of ours and is not read into memory.
constexpr std::streamoff max_file_size = 256LL * 1024 * 1024;

struct Context_Deleter {
    void operator()(spng_ctx* ctx) const { spng_ctx_free(ctx); }
};
using Context = std::unique_ptr<spng_ctx, Context_Deleter>;

std::string failure(int error) { return std::string("not a readable PNG file (") + spng_strerror(error) + ")"; }

// Pixels come out of the library as red, green, blue, alpha; a Color keeps
// blue first.
void swap_red_blue(std::vector<Color>& pixels) {
    for (Color& c : pixels) std::swap(c.red, c.blue);
}
}  // namespace

bool is_png(const uint8_t* data, size_t size) {
    return size >= sizeof signature && std::memcmp(data, signature, sizeof signature) == 0;
}

std::string decode(const uint8_t* data, size_t size, Picture& into) {
    if (!is_png(data, size)) return "not a PNG file";
    Context ctx(spng_ctx_new(0));
    if (!ctx) return "out of memory";
    spng_set_image_limits(ctx.get(), max_side, max_side);
    spng_set_chunk_limits(ctx.get(), size_t(1) << 24, size_t(1) << 26);
    int error = spng_set_png_buffer(ctx.get(), data, size);
    spng_ihdr header{};
    if (!error) error = spng_get_ihdr(ctx.get(), &header);
    if (error) return failure(error);
    if ((long long)header.width * header.height > max_pixels)
        return "a picture of " + std::to_string(header.width) + " x " + std::to_string(header.height) +
               " pixels is too large";
    size_t length = 0;
    error = spng_decoded_image_size(ctx.get(), SPNG_FMT_RGBA8, &length);
    if (error) return failure(error);
    if (length != size_t(header.width) * header.height * sizeof(Color)) return "unexpected pixel layout";
    Picture picture(int(header.width), int(header.height), Color());
    error = spng_decode_image(ctx.get(), picture.pixels.data(), length, SPNG_FMT_RGBA8, SPNG_DECODE_TRNS);
    if (error) return failure(error);
    swap_red_blue(picture.pixels);
    into = std::move(picture);
    return {};
}

std::string read(const std::string& path, Picture& into) {
    if (!safe_file::is_plain_file(safe_file::link_target(path))) return "no such file";
    std::ifstream in(path, std::ios::binary | std::ios::ate);
    if (!in) return "the file cannot be opened";
    const std::streamoff size = in.tellg();
    if (size < 0 || size > max_file_size) return "the file is too large";
    std::vector<uint8_t> bytes(static_cast<size_t>(size));
    in.seekg(0);
    if (!in.read(reinterpret_cast<char*>(bytes.data()), size)) return "the file cannot be read";
    return decode(bytes.data(), bytes.size(), into);
}

std::vector<uint8_t> encode(const Picture& picture) {
    if (picture.width <= 0 || picture.height <= 0) return {};
    Context ctx(spng_ctx_new(SPNG_CTX_ENCODER));
    if (!ctx) return {};
    spng_set_option(ctx.get(), SPNG_ENCODE_TO_BUFFER, 1);
    spng_ihdr header{};
    header.width = uint32_t(picture.width);
    header.height = uint32_t(picture.height);
    header.bit_depth = 8;
    header.color_type = SPNG_COLOR_TYPE_TRUECOLOR_ALPHA;
    std::vector<Color> rgba = picture.pixels;
    swap_red_blue(rgba);
    int error = spng_set_ihdr(ctx.get(), &header);
    if (!error)
        error = spng_encode_image(ctx.get(), rgba.data(), rgba.size() * sizeof(Color), SPNG_FMT_PNG,
                                  SPNG_ENCODE_FINALIZE);
    if (error) return {};
    size_t length = 0;
    void* buffer = spng_get_png_buffer(ctx.get(), &length, &error);
    if (!buffer || error) {
        std::free(buffer);
        return {};
    }
    std::vector<uint8_t> bytes(static_cast<uint8_t*>(buffer), static_cast<uint8_t*>(buffer) + length);
    std::free(buffer);
    return bytes;
}

bool write(const std::string& path, const Picture& picture, safe_file::Links links) {
    const std::vector<uint8_t> bytes = encode(picture);
    if (bytes.empty()) return false;
    return safe_file::written(
        path, [&](std::FILE* file) { return std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size(); },
        links);
}

}  // namespace png_file
