#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>

// What the fuzz targets share: each process works in a private directory of
// its own, so that several targets (or several jobs of one) never meet.
namespace fuzz {

// Made once with mkdtemp in /dev/shm (or TMPDIR when set); removed at exit.
const std::filesystem::path& private_dir();

// Replaces the file with exactly these bytes; aborts when it cannot, since
// the target would then test nothing.
void write_file(const std::filesystem::path& path, const uint8_t* data, size_t size);

// The real start-up of the program on SDL's dummy video driver, inside
// private_dir() with data/pool.bmp copied from the source tree; the working
// directory is private_dir() afterwards, as after the program's own start.
void start_program();

// A fatal error thrown out of a reader may leave the working directory in
// "data": go back as the program would have if it had carried on.
void leave_data_directory();

}  // namespace fuzz
