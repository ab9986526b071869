#include "platform/picture_file.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>

#include "model/tile/png_file.h"

namespace picture_file {

namespace {
uint32_t little_endian(const uint8_t* p, int bytes) {
    uint32_t value = 0;
    for (int i = bytes - 1; i >= 0; --i) value = value << 8 | p[i];
    return value;
}

std::string check_bmp_header(const uint8_t* header, size_t size) {
    long long w = 0, h = 0;
    if (!bmp_claimed_size(header, size, w, h)) return "not a PNG or BMP file";
    if (w > png_file::max_side || h > png_file::max_side || w * h > png_file::max_pixels)
        return "a picture of " + std::to_string(w) + " x " + std::to_string(h) + " pixels is too large";
    return {};
}

std::string read_bmp(const std::string& path, Picture& into) {
    SDL_Surface* loaded = SDL_LoadBMP(path.c_str());
    if (!loaded) return std::string("not a readable BMP file (") + SDL_GetError() + ")";
    SDL_Surface* surface = SDL_ConvertSurface(loaded, SDL_PIXELFORMAT_ARGB8888);
    SDL_DestroySurface(loaded);
    if (!surface) return "out of memory";
    // ARGB8888 lies in memory as blue, green, red, alpha: a Color.
    Picture picture(surface->w, surface->h, Color());
    for (int y = 0; y < surface->h; ++y)
        std::memcpy(&picture.at(0, y), static_cast<const uint8_t*>(surface->pixels) + size_t(y) * size_t(surface->pitch),
                    size_t(surface->w) * sizeof(Color));
    SDL_DestroySurface(surface);
    into = std::move(picture);
    return {};
}
}  // namespace

bool bmp_claimed_size(const uint8_t* header, size_t size, long long& width, long long& height) {
    if (size < 26 || header[0] != 'B' || header[1] != 'M') return false;
    // An OS/2 core header keeps its sides in 16 bits; the others in 32, signed.
    const bool core_header = little_endian(header + 14, 4) == 12;
    width = core_header ? little_endian(header + 18, 2) : int32_t(little_endian(header + 18, 4));
    height = core_header ? little_endian(header + 20, 2) : int32_t(little_endian(header + 22, 4));
    width = std::llabs(width);
    height = std::llabs(height);
    return true;
}

bool names_png(const std::string& path) {
    if (path.size() < 4) return false;
    std::string tail = path.substr(path.size() - 4);
    std::transform(tail.begin(), tail.end(), tail.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    return tail == ".png";
}

std::string read(const std::string& path, Picture& into) {
    if (!safe_file::is_plain_file(safe_file::link_target(path))) return "no such file";
    uint8_t head[26] = {};
    std::ifstream in(path, std::ios::binary);
    if (!in) return "the file cannot be opened";
    in.read(reinterpret_cast<char*>(head), sizeof head);
    const size_t got = size_t(in.gcount());
    if (png_file::is_png(head, got)) return png_file::read(path, into);
    const std::string refused = check_bmp_header(head, got);
    return refused.empty() ? read_bmp(path, into) : refused;
}

bool write_bmp(SDL_Surface* surface, const std::string& path, safe_file::Links links) {
    SDL_IOStream* memory = SDL_IOFromDynamicMem();
    if (!memory) return false;
    bool ok = SDL_SaveBMP_IO(surface, memory, false);
    const Sint64 size = ok ? SDL_TellIO(memory) : -1;
    const void* bytes =
        SDL_GetPointerProperty(SDL_GetIOProperties(memory), SDL_PROP_IOSTREAM_DYNAMIC_MEMORY_POINTER, nullptr);
    ok = ok && size > 0 && bytes &&
         safe_file::written(
             path, [&](std::FILE* file) { return std::fwrite(bytes, 1, size_t(size), file) == size_t(size); },
             links);
    SDL_CloseIO(memory);
    return ok;
}

bool write(const std::string& path, const Picture& picture, safe_file::Links links) {
    if (names_png(path)) return png_file::write(path, picture, links);
    if (picture.width <= 0 || picture.height <= 0) return false;
    SDL_Surface* surface = SDL_CreateSurfaceFrom(picture.width, picture.height, SDL_PIXELFORMAT_ARGB8888,
                                                 const_cast<Color*>(picture.pixels.data()),
                                                 picture.width * int(sizeof(Color)));
    if (!surface) return false;
    const bool ok = write_bmp(surface, path, links);
    SDL_DestroySurface(surface);
    return ok;
}

}  // namespace picture_file
