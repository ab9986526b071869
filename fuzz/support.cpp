#include "fuzz/support.h"

#include <SDL3/SDL.h>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "app/application.h"
#include "platform/data_directory.h"

namespace fs = std::filesystem;

namespace fuzz {

namespace {
fs::path made_dir;

void remove_private_dir() {
    std::error_code ignored;
    fs::remove_all(made_dir, ignored);
}

// Every input is written to a file: on a disk file system, rewriting the same
// file forces its data out on every close, which slows a target a hundredfold.
fs::path scratch_root() {
    std::error_code error;
    if (!std::getenv("TMPDIR") && fs::is_directory("/dev/shm", error) && access("/dev/shm", W_OK) == 0)
        return "/dev/shm";
    return fs::temp_directory_path();
}
}  // namespace

const fs::path& private_dir() {
    if (made_dir.empty()) {
        std::string pattern = (scratch_root() / "mosswick_fuzz_XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) {
            std::perror("mkdtemp");
            std::abort();
        }
        made_dir = pattern;
        std::atexit(remove_private_dir);
    }
    return made_dir;
}

void write_file(const fs::path& path, const uint8_t* data, size_t size) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file || (size > 0 && std::fwrite(data, size, 1, file) != 1) || std::fclose(file) != 0) {
        std::perror(path.c_str());
        std::abort();
    }
}

void start_program() {
    const fs::path& dir = private_dir();
    fs::create_directories(dir / "data");
    fs::copy_file(fs::path(MOSSWICK_SOURCE_DIR) / "data" / "pool.bmp", dir / "data" / "pool.bmp",
                  fs::copy_options::overwrite_existing);
    fs::current_path(dir);
    SDL_SetHint(SDL_HINT_VIDEO_DRIVER, "dummy");
    if (!SDL_InitSubSystem(SDL_INIT_VIDEO)) {
        std::fprintf(stderr, "SDL video: %s\n", SDL_GetError());
        std::abort();
    }
    Application::start_up();
}

void leave_data_directory() { Data_Directory::leave(); }

}  // namespace fuzz
