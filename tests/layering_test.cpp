#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

#include <unistd.h>

// The source folders are layers: a file may include its own folder's files and
// those of folders below it, never one above. Within the model the sub-folders
// are layers too; the feature folders sit side by side and do not include
// each other. This scan keeps that true as the code grows. Above the platform
// nothing draws on the renderer itself: a repaint that did would land under
// the kept frame and vanish, so all drawing goes through the window's sink.
namespace {

namespace fs = std::filesystem;

// Lowest first. Folders on one rank may not include each other.
const std::vector<std::vector<std::string>> ranks = {
    {"model/core"}, {"model/color"}, {"model/tile"}, {"model/paint"}, {"model/selection"}, {"model/brushpad"},
    {"model/map"},  {"model/tileset"}, {"platform"}, {"ui"},
    {"features/color", "features/viewers", "features/selection", "features/map", "features/brushpad"},
    {"app"},
};

// The layer of a path: its longest listed folder prefix; -1 for none.
struct Layer {
    int rank = -1;
    std::string folder;
};

Layer layer_of(const std::string& path) {
    Layer best;
    for (int r = 0; r < int(ranks.size()); ++r)
        for (const auto& folder : ranks[r])
            if (path.rfind(folder + "/", 0) == 0 && folder.size() > best.folder.size()) best = {r, folder};
    return best;
}

// The includes of a file, and whether it calls the renderer's drawing functions.
std::vector<std::string> includes_of(const fs::path& file, bool& draws) {
    static const std::regex include(R"re(^\s*#\s*include\s*"([^"]+)")re");
    static const std::regex drawing_call(R"(SDL_(Render[A-Z]\w*|SetRender\w*)\s*\()");
    std::vector<std::string> found;
    std::ifstream in(file);
    std::string line;
    std::smatch m;
    draws = false;
    while (std::getline(in, line)) {
        if (std::regex_search(line, m, include)) found.push_back(m[1]);
        draws = draws || std::regex_search(line, drawing_call);
    }
    return found;
}

// Every breach as "file -> include" over the source folders of a tree.
std::vector<std::string> breaches(const fs::path& root) {
    std::vector<std::string> out;
    for (const char* top : {"model", "platform", "ui", "features", "app"}) {
        if (!fs::exists(root / top)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(root / top)) {
            const auto ext = entry.path().extension();
            if (ext != ".h" && ext != ".cpp") continue;
            const std::string file = fs::relative(entry.path(), root).generic_string();
            const Layer from = layer_of(file);
            if (from.rank < 0) {
                out.push_back(file + " lies in no layer");
                continue;
            }
            bool draws = false;
            const auto included_files = includes_of(entry.path(), draws);
            if (draws && from.rank > layer_of("platform/").rank) out.push_back(file + " draws on the renderer");
            for (const auto& included : included_files) {
                if (!fs::exists(root / included)) continue;  // a header beside the file
                const Layer to = layer_of(included);
                const bool above = to.rank > from.rank;
                const bool sibling = to.rank == from.rank && to.folder != from.folder;
                if (to.rank < 0 || above || sibling) out.push_back(file + " -> " + included);
            }
        }
    }
    std::sort(out.begin(), out.end());
    return out;
}

TEST(Layering, NoFolderIncludesOneAboveIt) {
    const auto found = breaches(MOSSWICK_SOURCE_DIR);
    EXPECT_EQ(found, std::vector<std::string>{});

    // The scan itself: a model file reaching up, a feature reaching a sibling
    // feature and a file outside every layer are all reported.
    const fs::path tree = fs::temp_directory_path() / ("mosswick-layers-" + std::to_string(::getpid()));
    fs::remove_all(tree);
    auto write = [&](const std::string& path, const std::string& text) {
        fs::create_directories((tree / path).parent_path());
        std::ofstream(tree / path) << text;
    };
    write("model/tile/tile.h", "#include \"model/core/fatal.h\"\n#include \"ui/pane.h\"\n");
    write("model/core/fatal.h", "\n");
    write("ui/pane.h", "#include \"model/tile/tile.h\"\n");
    write("features/map/map_view.h", "#include \"features/color/swatch.h\"\n#include \"ui/pane.h\"\n");
    write("features/color/swatch.h", "\n");
    write("app/stray/odd.h", "#include \"app/editor.h\"\n");
    write("app/editor.h", "#include \"features/map/map_view.h\"\n");
    write("ui/menu.cpp", "void f() { SDL_RenderFillRect(r, &a); }\n");
    write("features/loose.h", "\n");
    const auto seeded = breaches(tree);
    fs::remove_all(tree);
    const std::vector<std::string> expected = {
        "features/loose.h lies in no layer",
        "features/map/map_view.h -> features/color/swatch.h",
        "model/tile/tile.h -> ui/pane.h",
        "ui/menu.cpp draws on the renderer",
    };
    EXPECT_EQ(seeded, expected);
}

}  // namespace
