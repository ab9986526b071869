#include "app/recovery.h"

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <memory>
#include <system_error>

#include "app/canvas_view.h"
#include "app/editor.h"
#include "platform/image.h"
#include "app/map_files.h"
#include "model/tileset/tileset.h"
#include "model/tileset/tileset_file.h"
#include "model/map/map_file.h"

namespace fs = std::filesystem;

namespace recovery {
namespace {
std::string folder_path;

std::string time_stamp() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[32];
    std::strftime(text, sizeof text, "%Y%m%d-%H%M%S", &local);
    return text;
}

// A second tileset of the same name in the same second gets "-2", and so on.
std::string free_name(const std::string& base) {
    std::error_code error;
    std::string path = folder_path + "/" + base + ".wst";
    for (int n = 2; fs::exists(path, error) && n < 1000; ++n)
        path = folder_path + "/" + base + "-" + std::to_string(n) + ".wst";
    return path;
}
}  // namespace

void set_folder(const std::string& path) { folder_path = path; }

const std::string& folder() { return folder_path; }

void save_open_work() {
    if (!g_editor || folder_path.empty()) return;
    Tileset_List& open = g_editor->tilesets();
    bool any = false;
    for (int i = 0; i < open.count(); ++i) any = any || open.at(i).is_modified();
    if (!any) return;
    std::error_code error;
    fs::create_directories(folder_path, error);
    // A tile shown with a seam offset is written as the user drew it, not shifted.
    g_editor->canvas().end_seams();
    const std::string stamp = time_stamp();
    for (int i = 0; i < open.count(); ++i) {
        Tileset& t = open.at(i);
        if (!t.is_modified()) continue;
        const std::string name = t.path().name.empty() ? "tileset" : t.path().name;
        const std::string path = free_name(name + "-" + stamp);
        // The tile as the user sees it: a floating image put down in the copy.
        std::unique_ptr<Tile> shown;
        if (&t == g_editor->current() && g_editor->canvas().tile() == t.store().current_tile())
            shown = g_editor->canvas().tile_as_shown();
        Tileset_File::write(t.store(), path, shown.get());
        // The map beside it, with its sheet, so that loading the copy brings the map too.
        if (!t.map().holds_nothing()) {
            const Tile_Store& store = t.store();
            Image sheet(16 * store.tile_width(), 16 * store.tile_height());
            compose_sheet(store, sheet);
            sheet.save_bmp(Map_File::sheet_path(path), false);
            Map_File::write(t.map(), store.tile_width(), store.tile_height(), Map_File::map_path(path));
        }
    }
}

std::vector<std::string> files_in(const std::string& path) {
    std::vector<std::string> found;
    std::error_code error;
    for (fs::directory_iterator it(path, error), end; !error && it != end; it.increment(error))
        if (it->path().extension() == ".wst") found.push_back(it->path().filename().string());
    std::sort(found.begin(), found.end());
    return found;
}

std::string start_note(const std::string& path) {
    const std::vector<std::string> found = files_in(path);
    if (found.empty()) return {};
    std::string text = "The program last ended on an error. Your unsaved work was kept\r"
                       "in recovery files; open them with \"Load\". They are in:\r" +
                       path + "\r";
    const size_t shown = std::min<size_t>(found.size(), 8);
    for (size_t i = 0; i < shown; ++i) text += "  " + found[i] + "\r";
    if (found.size() > shown) text += "  and " + std::to_string(found.size() - shown) + " more\r";
    text += "Move or delete them to stop this note.";
    return text;
}

}  // namespace recovery
