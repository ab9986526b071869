#pragma once

#include <SDL3/SDL.h>

#include <string>

#include "model/core/safe_file.h"
#include "model/tile/picture.h"

// Pictures the user keeps as image files: PNG or BMP, told apart by their
// first bytes when read and by the name's extension when written (".png" in
// any case is PNG, anything else BMP). Every channel is kept, alpha too.
namespace picture_file {

// An empty text on success, else why the file was refused, in a few words.
std::string read(const std::string& path, Picture& into);
// Through the safe writer: false, the target as it was, on any failure.
bool write(const std::string& path, const Picture& picture, safe_file::Links links);
bool names_png(const std::string& path);

// The sides a BMP header claims, read the way SDL reads them (so that a
// damaged header is refused before SDL reserves its pixels); false when the
// bytes are no BMP header.
bool bmp_claimed_size(const uint8_t* header, size_t size, long long& width, long long& height);

// A surface as a BMP file through the safe writer.
bool write_bmp(SDL_Surface* surface, const std::string& path, safe_file::Links links);

}  // namespace picture_file
