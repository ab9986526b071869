// The whole program, started as a user would start it: each fatal start ends
// with exit code 1 and exactly its message.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdio>
#include <filesystem>

#include "model/core/data_file.h"
#include "model/map/tile_map.h"
#include "model/map/map_editor.h"
#include "model/map/map_file.h"
#include "model/tile/sheet.h"
#include "model/tileset/tileset_file.h"
#include "platform/picture_file.h"
#include "support/headless.h"

namespace fs = std::filesystem;

namespace {
struct Process_Result {
    int exit_code = -1;
    std::string output;
};

// Runs a shell command in the given directory and collects its standard
// output (with the redirection given, its standard error instead).
Process_Result run_in(const fs::path& dir, const std::string& command, const char* redirect = " 2>/dev/null") {
    Process_Result result;
    FILE* pipe = popen(("cd '" + dir.string() + "' && " + command + redirect).c_str(), "r");
    if (!pipe) return result;
    char chunk[256];
    for (size_t n; (n = fread(chunk, 1, sizeof chunk, pipe)) > 0;) result.output.append(chunk, n);
    const int status = pclose(pipe);
    result.exit_code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}
}  // namespace

TEST(Program, FatalStartsEndWithTheirOwnMessage) {
    const struct {
        const char* data;  // "": no data folder; else the pool sheet's content ("real": the real one)
        const char* palette;
        const char* driver;
        const char* output;
    } cases[] = {
        {"", "", "dummy", "Error: Unable to open 'data' directory.!\n"},
        {"none", "", "dummy", "Error: Could not load SDL surface from %s. pool.bmp!\n"},
        {"BM not really", "", "dummy", "Error: Could not load SDL surface from %s. pool.bmp!\n"},
        {"", "", "no-such-driver", "Error: Unable to initialize SDL video..\n"},
        // A damaged settings file is moved aside first, so the next start runs on defaults.
        {"real", "\xff\x00\x00\x00" "3,", "dummy", "Error: Unable to load block from  palette.dat!\n"},
    };
    for (const auto& c : cases) {
        Temp_Dir dir;
        const fs::path data = dir.path / "data";
        if (*c.data) fs::create_directory(data);
        const std::string pool = c.data;
        if (pool == "real")
            fs::copy_file(source_path("data/pool.bmp"), data / "pool.bmp");
        else if (!pool.empty() && pool != "none")
            write_bytes((data / "pool.bmp").string(), {pool.begin(), pool.end()});
        if (*c.palette) write_bytes((data / "palette.dat").string(), {c.palette, c.palette + 6});
        const Process_Result r = run_in(dir.path, std::string("SDL_VIDEO_DRIVER=") + c.driver + " " MOSSWICK_EXE);
        EXPECT_EQ(r.exit_code, 1) << c.output;
        EXPECT_EQ(r.output, c.output);
        if (*c.palette) {
            EXPECT_FALSE(fs::exists(data / "palette.dat"));
            const std::vector<std::string> aside = Data_File::damaged_files(data.string());
            ASSERT_EQ(aside.size(), 1u);
            EXPECT_EQ(aside[0].rfind("palette.dat.damaged-", 0), 0u);
        }
    }
}

TEST(Program, BatchConversionsWriteWholeFilesOrNone) {
    Temp_Dir dir;
    const std::string d = dir.path.string();
    // 17 tiles of 8 x 10 with every kind of alpha, and a map beside them.
    Tile_Store tiles(8, 10, 256);
    uint32_t seed = 1;
    for (int i = 0; i < 17; ++i)
        tiles.append(std::make_unique<Tile>(8, 10, [&](Color* px) {
            for (int k = 0; k < 80; ++k) px[k] = Color::from_word(seed = seed * 1664525u + 1013904223u);
        }));
    ASSERT_GT(Tileset_File::write(tiles, d + "/forest.wst"), 0);
    Map_Editor map(8, 10);
    map.place(0, 0, 3), map.place(2, 1, 16);
    ASSERT_TRUE(Map_File::write(map, 8, 10, d + "/forest.tmx"));
    write_bytes(d + "/short.wst", {'W', 'S', 'T', 10, 0, 8, 10, 1, 0, 0, 0, 1, 2});
    fs::create_directory(dir.path / "elsewhere");

    // Run from another directory: paths are the ones the user started in.
    const std::string exe = "MOSSWICK_START_DIR='" + d + "' " MOSSWICK_EXE " --batch ";
    EXPECT_EQ(run_in(dir.path / "elsewhere", exe + "forest.wst --export sheet.png --map-image map.bmp").exit_code +
                  run_in(dir.path, exe + "sheet.png --tile 8x10 --save back.wst").exit_code, 0);
    EXPECT_EQ(read_bytes(d + "/back.wst"), read_bytes(d + "/forest.wst"));
    Picture image;
    ASSERT_EQ(picture_file::read(d + "/map.bmp", image), "");
    EXPECT_EQ(image.width, 60 * 8);
    EXPECT_EQ(image.at(5, 7), tiles.tile_at(3)->get_pixel(5, 7));
    EXPECT_EQ(image.at(2 * 8 + 1, 10 + 2), tiles.tile_at(16)->get_pixel(1, 2));
    EXPECT_EQ(image.at(8, 0).alpha, 0);

    // Each failure: exit 1, one line on standard error, no file left behind.
    const size_t files = size_t(std::distance(fs::directory_iterator(dir.path), fs::directory_iterator()));
    for (const char* failing : {"sheet.png --tile 7x10 --save x.wst", "short.wst --export x.png",
                                "back.wst --map-image x.png", "none.wst --export x.bmp",
                                "forest.wst --export no/such/folder.png"}) {
        const Process_Result r = run_in(dir.path, exe + failing, " 2>&1 >/dev/null");
        EXPECT_EQ(r.exit_code, 1) << failing;
        EXPECT_EQ(std::count(r.output.begin(), r.output.end(), '\n'), 1) << failing << ": " << r.output;
    }
    EXPECT_EQ(size_t(std::distance(fs::directory_iterator(dir.path), fs::directory_iterator())), files);
    EXPECT_EQ(run_in(dir.path, MOSSWICK_EXE " --batch forest.wst --frobnicate").exit_code, 2);
    EXPECT_EQ(run_in(dir.path, MOSSWICK_EXE " --version").output, "Mosswick 0.88\n");
}
