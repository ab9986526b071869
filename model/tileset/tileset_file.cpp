#include "model/tileset/tileset_file.h"

#include <bit>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <vector>

#include "model/core/data_file.h"
#include "model/core/fatal.h"
#include "model/core/safe_file.h"
#include "model/tileset/tileset.h"

namespace {

static_assert(std::endian::native == std::endian::little,
              "pixels are converted as little-endian words");

// In memory a pixel word is 0xAARRGGBB; in the file its bytes are alpha, blue,
// green, red, which read as a word is 0xRRGGBBAA: one rotation apart. The
// conversions run in fixed blocks so that the compiler turns them into vector
// instructions; they decide how close saving and loading come to a plain copy.
constexpr size_t block = 16;

#if defined(__GNUC__) && defined(__x86_64__)
__attribute__((target_clones("avx2", "default")))
#endif
void to_file_order(const Color* pixels, unsigned char* __restrict out, size_t count) {
    const unsigned char* __restrict in = reinterpret_cast<const unsigned char*>(pixels);
    size_t i = 0;
    for (; i + block <= count; i += block)
        for (size_t k = 0; k < block; ++k) {
            uint32_t w;
            std::memcpy(&w, in + 4 * (i + k), 4);
            w = std::rotl(w, 8);
            std::memcpy(out + 4 * (i + k), &w, 4);
        }
    for (; i < count; ++i) {
        const uint32_t w = std::rotl(pixels[i].word(), 8);
        std::memcpy(out + 4 * i, &w, 4);
    }
}

// In place: the record was just read into the tile and is still in the cache.
#if defined(__GNUC__) && defined(__x86_64__)
__attribute__((target_clones("avx2", "default")))
#endif
void to_memory_order(Color* pixels, size_t count) {
    unsigned char* bytes = reinterpret_cast<unsigned char*>(pixels);
    size_t i = 0;
    for (; i + block <= count; i += block)
        for (size_t k = 0; k < block; ++k) {
            uint32_t w;
            std::memcpy(&w, bytes + 4 * (i + k), 4);
            w = std::rotr(w, 8);
            std::memcpy(bytes + 4 * (i + k), &w, 4);
        }
    for (; i < count; ++i) pixels[i] = Color::from_word(std::rotr(pixels[i].word(), 8));
}

bool write_contents(std::FILE* file, const Tile_Store& store, const Tile* current) {
    const uint32_t count = static_cast<uint32_t>(store.tile_count());
    const unsigned char header[Tileset_File::header_size] = {
        'W', 'S', 'T', 0x0A, 0x00,
        static_cast<unsigned char>(store.tile_width()), static_cast<unsigned char>(store.tile_height()),
        static_cast<unsigned char>(count), static_cast<unsigned char>(count >> 8),
        static_cast<unsigned char>(count >> 16), static_cast<unsigned char>(count >> 24)};
    if (std::fwrite(header, sizeof header, 1, file) != 1) return false;
    std::vector<unsigned char> record;
    int index = 0;
    for (const auto& stored : store.all()) {
        const Tile* tile = index++ == store.current_index() && current ? current : stored.get();
        const size_t pixels = static_cast<size_t>(tile->pixel_count());
        if (pixels == 0) continue;
        record.resize(pixels * 4);
        to_file_order(tile->pixels(), record.data(), pixels);
        if (std::fwrite(record.data(), pixels * 4, 1, file) != 1) return false;
    }
    return true;
}

}  // namespace

int32_t Tileset_File::write(const Tile_Store& store, const std::string& path, const Tile* current) {
    // The user chose the path: a link there is followed, the link kept.
    const bool ok = safe_file::written(
        path, [&](std::FILE* file) { return write_contents(file, store, current); }, safe_file::Links::follow);
    return ok ? static_cast<int32_t>(header_size + store.total_bytes()) : -1;
}

std::unique_ptr<Tile_Store> Tileset_File::read(const std::string& path) {
    // A pipe or a device would never end (or never start): only regular files.
    if (!safe_file::is_plain_file(path) && !safe_file::is_plain_file(safe_file::link_target(path))) return nullptr;
    Data_File file(path);
    if (!file.open_read()) return nullptr;
    // Records are read whole straight into the tiles; a stream buffer would
    // only add a copy.
    std::setvbuf(file.stream(), nullptr, _IONBF, 0);
    unsigned char header[header_size];
    file.read_block(header, sizeof header);
    if (header[0] != 'W' || header[1] != 'S' || header[2] != 'T') return nullptr;
    const uint32_t width = header[5];
    const uint32_t height = header[6];
    const uint32_t count = header[7] | uint32_t(header[8]) << 8 | uint32_t(header[9]) << 16 |
                           uint32_t(header[10]) << 24;
    // The rest of the program needs at least one tile of non-zero size.
    if (width == 0 || height == 0 || count == 0) return nullptr;
    // Far more tiles than a tileset holds are refused before any is made; a
    // file too short for them is the truncated file it is.
    if (count > maximum_tiles_read) {
        std::error_code error;
        const uintmax_t size = std::filesystem::file_size(path, error);
        if (error || size < header_size + uintmax_t(count) * width * height * 4)
            fatal_error("Unable to load block from ", path.c_str());
        return nullptr;
    }
    auto store = std::make_unique<Tile_Store>(width, height, Tileset::maximum_tiles);
    // One record at a time: a count far beyond the file's real length fails
    // on the first missing record, not by reserving memory for all of them.
    const size_t pixels = size_t(width) * height;
    for (uint32_t i = 0; i < count; ++i) {
        // The tile's texture is made from the loaded pixels, so it is current.
        store->append(std::make_unique<Tile>(int(width), int(height), [&](Color* out) {
            file.read_block(out, pixels * 4);
            to_memory_order(out, pixels);
        }));
    }
    return store;
}
