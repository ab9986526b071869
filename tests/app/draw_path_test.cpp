// Drawing straight onto the renderer during the editor's repaint would land
// under the kept frame and vanish when the frame is copied out: all drawing
// goes through the main window's sink. Only the sink, the kept frame and the
// window's own clear and present may call the renderer's drawing functions.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

TEST(DrawPath, OnlyTheSinkAndTheKeptFrameDrawOnTheRenderer) {
    const std::set<std::string> allowed = {"app/draw_sink.cpp", "app/frame_cache.cpp", "app/main_window.cpp"};
    const std::regex drawing_call(R"(SDL_(Render[A-Z]\w*|SetRender\w*)\s*\()");
    const fs::path root(MOSSWICK_SOURCE_DIR);
    int files = 0;
    for (const char* dir : {"app", "document", "ui", "color", "viewers", "selection", "brushpad", "mapeditor"}) {
        if (!fs::exists(root / dir)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(root / dir)) {
            const std::string ext = entry.path().extension().string();
            if (ext != ".cpp" && ext != ".h") continue;
            ++files;
            const std::string name = fs::relative(entry.path(), root).generic_string();
            if (allowed.count(name)) continue;
            std::ifstream in(entry.path());
            std::string line;
            for (int number = 1; std::getline(in, line); ++number)
                EXPECT_FALSE(std::regex_search(line, drawing_call)) << name << ":" << number << ": " << line;
        }
    }
    EXPECT_GT(files, 100) << "the sources were not found";
}
