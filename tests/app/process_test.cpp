// The whole program, started as a user would start it: each fatal start ends
// with exit code 1 and exactly its message.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdio>
#include <filesystem>

#include "model/core/data_file.h"
#include "support/headless.h"

namespace fs = std::filesystem;

namespace {
struct Process_Result {
    int exit_code = -1;
    std::string output;
};

// Runs a shell command in the given directory and collects its standard output.
Process_Result run_in(const fs::path& dir, const std::string& command) {
    Process_Result result;
    FILE* pipe = popen(("cd '" + dir.string() + "' && " + command + " 2>/dev/null").c_str(), "r");
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
