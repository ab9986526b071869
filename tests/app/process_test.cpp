// The whole program, started as a user would start it.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>

#include "model/core/data_file.h"
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

// A damaged settings file still ends the start with the block error, but is
// moved aside first, so the next start runs on defaults.
TEST(Program, ADamagedPaletteIsMovedAsideBeforeTheBlockError) {
    Temp_Dir dir;
    fs::create_directory(dir.path / "data");
    fs::copy_file(source_path("data/pool.bmp"), dir.path / "data" / "pool.bmp");
    { std::FILE* f = std::fopen((dir.path / "data" / "palette.dat").c_str(), "wb"); std::fputs("\xff\x00\x00\x00" "3,", f); std::fclose(f); }
    const Process_Result r = run_in(dir.path, "SDL_VIDEO_DRIVER=dummy " MOSSWICK_EXE);
    EXPECT_EQ(r.exit_code, 1);
    EXPECT_EQ(r.output, "Error: Unable to load block from  palette.dat!\n");
    EXPECT_FALSE(fs::exists(dir.path / "data" / "palette.dat"));
    const std::vector<std::string> aside = Data_File::damaged_files((dir.path / "data").string());
    ASSERT_EQ(aside.size(), 1u);
    EXPECT_EQ(aside[0].rfind("palette.dat.damaged-", 0), 0u);
}
