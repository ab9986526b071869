// The ".wst" loader, fed through a file as the editor's Load does.
#include <cstdlib>
#include <string>

#include "model/tileset/tileset_file.h"
#include "fuzz/fatal_throws.h"
#include "fuzz/support.h"

namespace {

struct Header {
    bool usable;
    uint32_t width, height, count;
    // The bytes a usable header promises, itself included.
    size_t promised() const { return Tileset_File::header_size + size_t(count) * width * height * 4; }
};

Header header_of(const uint8_t* data) {
    const bool marked = data[0] == 'W' && data[1] == 'S' && data[2] == 'T';
    Header h{false, data[5], data[6],
             data[7] | uint32_t(data[8]) << 8 | uint32_t(data[9]) << 16 | uint32_t(data[10]) << 24};
    h.usable = marked && h.width > 0 && h.height > 0 && h.count > 0;
    return h;
}

// What the loader promises about a file it accepted or refused.
void check(const std::unique_ptr<Tile_Store>& store, const uint8_t* data, size_t size) {
    const Header h = header_of(data);
    if (!store) {
        if (h.usable) std::abort();
        return;
    }
    const uint32_t width = h.width, height = h.height;
    if (!h.usable || store->tile_width() != width || store->tile_height() != height ||
        uint32_t(store->tile_count()) != h.count)
        std::abort();
    // Every tile came from a whole record of the file.
    if (h.promised() > size) std::abort();
    for (int i = 0; i < store->tile_count(); ++i) {
        const Tile& tile = *store->tile_at(i);
        if (uint32_t(tile.width()) != width || uint32_t(tile.height()) != height) std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::string path = (fuzz::private_dir() / "input.wst").string();
    fuzz::write_file(path, data, size);
    try {
        const std::unique_ptr<Tile_Store> store = Tileset_File::read(path);
        check(store, data, size);
    } catch (const Fatal_Exit& e) {
        // A short header or record is the one fatal reaction the loader has.
        if (e.text != "Error: Unable to load block from  " + path + "!") std::abort();
        // ... and only for a file that really is short.
        if (size >= Tileset_File::header_size) {
            const Header h = header_of(data);
            if (!h.usable || h.promised() <= size) std::abort();
        }
    }
    return 0;
}
