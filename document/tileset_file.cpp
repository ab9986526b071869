#include "document/tileset_file.h"

#include <bit>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <vector>

#include <unistd.h>

#include "app/data_file.h"
#include "document/tileset.h"

namespace fs = std::filesystem;

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

// The file that is really written: a symbolic link is followed so that saving
// replaces what it points at, not the link.
fs::path real_target(const std::string& path) {
    std::error_code error;
    fs::path target = fs::canonical(path, error);
    return error ? fs::path(path) : target;
}

// An existing file that cannot be opened for writing refuses the save, as
// overwriting it in place would.
bool existing_file_writable(const fs::path& target) {
    std::error_code error;
    if (!fs::exists(target, error)) return true;
    std::FILE* probe = std::fopen(target.c_str(), "r+b");
    if (!probe) return false;
    std::fclose(probe);
    return true;
}

std::FILE* create_temporary(const fs::path& target, fs::path& temporary) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        temporary = target;
        temporary += ".saving" + std::to_string(attempt);
        if (std::FILE* file = std::fopen(temporary.c_str(), "wbx")) return file;
        if (errno != EEXIST) return nullptr;
    }
    return nullptr;
}

bool write_contents(std::FILE* file, const Tile_Store& store) {
    const uint32_t count = static_cast<uint32_t>(store.tile_count());
    const unsigned char header[Tileset_File::header_size] = {
        'W', 'S', 'T', 0x0A, 0x00,
        static_cast<unsigned char>(store.tile_width()), static_cast<unsigned char>(store.tile_height()),
        static_cast<unsigned char>(count), static_cast<unsigned char>(count >> 8),
        static_cast<unsigned char>(count >> 16), static_cast<unsigned char>(count >> 24)};
    if (std::fwrite(header, sizeof header, 1, file) != 1) return false;
    std::vector<unsigned char> record;
    for (const auto& tile : store.all()) {
        const size_t pixels = static_cast<size_t>(tile->pixel_count());
        if (pixels == 0) continue;
        record.resize(pixels * 4);
        to_file_order(tile->pixels(), record.data(), pixels);
        if (std::fwrite(record.data(), pixels * 4, 1, file) != 1) return false;
    }
    return std::fflush(file) == 0 && fsync(fileno(file)) == 0;
}

}  // namespace

int32_t Tileset_File::write(const Tile_Store& store, const std::string& path) {
    const fs::path target = real_target(path);
    if (!existing_file_writable(target)) return -1;
    fs::path temporary;
    std::FILE* file = create_temporary(target, temporary);
    if (!file) return -1;
    const bool written = write_contents(file, store);
    const bool closed = std::fclose(file) == 0;
    std::error_code error;
    if (written && closed) {
        const fs::perms old_permissions = fs::status(target, error).permissions();
        if (!error) fs::permissions(temporary, old_permissions, error);
        error.clear();
        fs::rename(temporary, target, error);
        if (!error) return static_cast<int32_t>(header_size + store.total_bytes());
    }
    fs::remove(temporary, error);
    return -1;
}

std::unique_ptr<Tile_Store> Tileset_File::read(const std::string& path) {
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
