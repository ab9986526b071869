// The whole program, started as a user would start it.
#include <gtest/gtest.h>

#include <filesystem>

#include "support/headless.h"
#include "support/process.h"

namespace fs = std::filesystem;

TEST(Program, EndsWithTheDataDirectoryErrorWhenDataIsMissing) {
    Temp_Dir dir;
    const Process_Result r = run_in(dir.path, "SDL_VIDEO_DRIVER=dummy " MOSSWICK_EXE);
    EXPECT_EQ(r.exit_code, 1);
    EXPECT_EQ(r.output, "Error: Unable to open 'data' directory.!\n");
}

TEST(Program, EndsWithTheSurfaceErrorNamingPoolWhenTheSheetIsMissing) {
    Temp_Dir dir;
    fs::create_directory(dir.path / "data");
    const Process_Result r = run_in(dir.path, "SDL_VIDEO_DRIVER=dummy " MOSSWICK_EXE);
    EXPECT_EQ(r.exit_code, 1);
    EXPECT_EQ(r.output, "Error: Could not load SDL surface from %s. pool.bmp!\n");
}

TEST(Program, EndsWithTheSurfaceErrorWhenTheSheetIsNotABitmap) {
    Temp_Dir dir;
    fs::create_directory(dir.path / "data");
    { std::FILE* f = std::fopen((dir.path / "data" / "pool.bmp").c_str(), "wb"); std::fputs("BM not really", f); std::fclose(f); }
    const Process_Result r = run_in(dir.path, "SDL_VIDEO_DRIVER=dummy " MOSSWICK_EXE);
    EXPECT_EQ(r.exit_code, 1);
    EXPECT_EQ(r.output, "Error: Could not load SDL surface from %s. pool.bmp!\n");
}

TEST(Program, EndsWithTheVideoErrorWhenNoVideoDriverCanStart) {
    Temp_Dir dir;
    const Process_Result r = run_in(dir.path, "SDL_VIDEO_DRIVER=no-such-driver " MOSSWICK_EXE);
    EXPECT_EQ(r.exit_code, 1);
    EXPECT_EQ(r.output, "Error: Unable to initialize SDL video..\n");
}
