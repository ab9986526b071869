#include "app/command_line.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace {
using Mode = Command_Line::Mode;

std::string absolute(const std::string& path, const std::string& start_dir) {
    const std::filesystem::path p(path);
    if (p.is_absolute() || start_dir.empty()) return path;
    return (std::filesystem::path(start_dir) / p).lexically_normal().string();
}

// "16x16" or "16X24": two whole numbers; the sizes themselves are judged by
// the cutting, which names them in its refusal.
bool parse_size(const std::string& text, int& width, int& height) {
    const size_t x = text.find_first_of("xX");
    if (x == std::string::npos || x == 0 || x + 1 >= text.size() || x > 4 || text.size() - x - 1 > 4) return false;
    for (size_t i = 0; i < text.size(); ++i)
        if (i != x && (text[i] < '0' || text[i] > '9')) return false;
    width = std::stoi(text.substr(0, x));
    height = std::stoi(text.substr(x + 1));
    return true;
}

Command_Line refuse(std::string why) {
    Command_Line line;
    line.mode = Mode::usage_error;
    line.error = std::move(why);
    return line;
}
}  // namespace

Command_Line Command_Line::parse(const std::vector<std::string>& arguments, const std::string& start_dir) {
    Command_Line line;
    bool batch = false;
    bool tile_given = false;
    size_t sheet_at = 0;  // the sheet is the first file after the size
    std::vector<std::string> files;
    bool options_end = false;
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::string& a = arguments[i];
        const bool has_value = i + 1 < arguments.size();
        if (options_end || a.empty() || a[0] != '-' || a == "-") {
            files.push_back(absolute(a, start_dir));
        } else if (a == "--") {
            options_end = true;
        } else if (a == "--help" || a == "-h") {
            line.mode = Mode::help;
            return line;
        } else if (a == "--version") {
            line.mode = Mode::version;
            return line;
        } else if (a == "--batch") {
            if (!has_value || batch) return refuse("--batch wants one input file");
            batch = true;
            line.input = absolute(arguments[++i], start_dir);
        } else if (a == "--tile") {
            if (!has_value || tile_given || !parse_size(arguments[i + 1], line.tile_width, line.tile_height))
                return refuse("--tile wants the tile size as WIDTHxHEIGHT, such as 16x16");
            tile_given = true;
            sheet_at = files.size();
            ++i;
        } else if (a == "--export" || a == "--save" || a == "--map-image") {
            std::string& out = a == "--export" ? line.export_to : a == "--save" ? line.save_to : line.map_image_to;
            if (!has_value || !out.empty()) return refuse(a + " wants one output file");
            out = absolute(arguments[++i], start_dir);
        } else {
            return refuse("unknown option " + a);
        }
    }
    const bool writes = !line.export_to.empty() || !line.save_to.empty() || !line.map_image_to.empty();
    if (!batch) {
        if (writes) return refuse("--export, --save and --map-image work with --batch");
        if (tile_given) {
            if (sheet_at >= files.size()) return refuse("--tile wants a sheet to cut: --tile WxH SHEET.png");
            line.sheet = files[sheet_at];
            files.erase(files.begin() + long(sheet_at));
        }
        line.tilesets = std::move(files);
        return line;
    }
    if (!files.empty()) return refuse("--batch takes its input after --batch, not " + files.front());
    if (!writes) return refuse("--batch wants --export, --save or --map-image");
    if (tile_given) {
        if (!line.map_image_to.empty()) return refuse("--map-image wants a tileset with its map, not a sheet");
        line.sheet = line.input;
        line.input.clear();
    }
    line.mode = Mode::batch;
    return line;
}

std::string Command_Line::start_dir() {
    if (const char* given = std::getenv("MOSSWICK_START_DIR"); given && *given) return given;
    std::error_code error;
    return std::filesystem::current_path(error).string();
}

const char* Command_Line::version() { return "Mosswick 0.88"; }

const char* Command_Line::usage() {
    return "Usage: mosswick [FILE.wst...] [--tile WxH SHEET.png|SHEET.bmp]\n"
           "       mosswick --batch IN.wst --export OUT.png|OUT.bmp\n"
           "       mosswick --batch SHEET.png|SHEET.bmp --tile WxH --save OUT.wst\n"
           "       mosswick --batch IN.wst --map-image OUT.png|OUT.bmp\n"
           "       mosswick --help | --version\n"
           "\n"
           "Without --batch the editor opens each tileset in its own tab, as File > Load\n"
           "does, and the sheet cut row by row into W x H tiles (6 to 64 pixels a side,\n"
           "at most 256 tiles) as a new tileset that Save asks a name for.\n"
           "\n"
           "--batch works without a window:\n"
           "  --export OUT       the sheet of 16 x 16 tiles, as Export writes it\n"
           "  --save OUT.wst     the tiles as a tileset file (from a sheet and --tile)\n"
           "  --map-image OUT    the map kept beside IN.wst as IN.tmx, drawn with its tiles\n"
           "Pictures are PNG when the name ends in .png, BMP otherwise. Each file is\n"
           "written whole or not at all.\n"
           "\n"
           "Exit status: 0 done, 1 failed (one line on standard error), 2 wrong usage.\n";
}
