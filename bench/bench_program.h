#pragma once

#include <SDL3/SDL.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "app/application.h"
#include "app/editor.h"
#include "platform/globals.h"

// The real program on SDL's dummy driver (the software renderer): start-up in
// a scratch directory holding the sprite sheet, with the first tileset made.
struct Bench_Program {
    Bench_Program() {
        namespace fs = std::filesystem;
        previous = fs::current_path();
        dir = fs::temp_directory_path() / ("mosswick-bench-" + std::to_string(getpid()));
        std::error_code ignored;
        fs::remove_all(dir, ignored);
        fs::create_directories(dir / "data");
        fs::copy_file(fs::path(MOSSWICK_SOURCE_DIR) / "data" / "pool.bmp", dir / "data" / "pool.bmp");
        fs::current_path(dir);
        SDL_SetHint(SDL_HINT_VIDEO_DRIVER, "dummy");
        SDL_InitSubSystem(SDL_INIT_VIDEO);
        Application::start_up();
        g_editor->begin();
    }
    ~Bench_Program() {
        Application::shut_down();
        SDL_QuitSubSystem(SDL_INIT_VIDEO);
        std::filesystem::current_path(previous);
        std::error_code ignored;
        std::filesystem::remove_all(dir, ignored);
    }
    Bench_Program(const Bench_Program&) = delete;
    Bench_Program& operator=(const Bench_Program&) = delete;

    std::filesystem::path previous;
    std::filesystem::path dir;
};
