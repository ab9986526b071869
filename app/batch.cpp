#include "app/batch.h"

#include <unistd.h>

#include <cstdio>
#include <filesystem>

#include "app/command_line.h"
#include "model/map/map_editor.h"
#include "model/map/map_file.h"
#include "model/map/map_image.h"
#include "model/tile/sheet.h"
#include "model/tileset/tileset_file.h"
#include "platform/picture_file.h"

namespace {
std::string file_name(const std::string& path) { return std::filesystem::path(path).filename().string(); }

int fail(const std::string& what) {
    std::fprintf(stderr, "mosswick: %s\n", what.c_str());
    return 1;
}

// The first line of a list of problems.
std::string first_line(const std::string& text) {
    const size_t end = text.find_first_of("\r\n");
    return end == std::string::npos ? text : text.substr(0, end);
}

bool write_picture(const std::string& path, const Picture& picture) {
    return picture_file::write(path, picture, safe_file::Links::follow);
}

int write_map_image(const std::string& input, const Tile_Store& tiles, const std::string& out) {
    const std::string map_path = Map_File::map_path(input);
    Map_Editor map(tiles.tile_width(), tiles.tile_height());
    const Map_File::Reading reading =
        Map_File::read(map_path, map, tiles.tile_width(), tiles.tile_height(), tiles.tile_count());
    if (!reading.found) return fail(file_name(input) + " has no map beside it (" + file_name(map_path) + ")");
    if (!reading.whole)
        return fail(file_name(map_path) + " could not be read whole: " + first_line(reading.problems));
    if (!write_picture(out, map_image(map, tiles))) return fail("could not write " + out);
    return 0;
}
}  // namespace

std::unique_ptr<Tile_Store> tiles_of_sheet(const std::string& path, int tile_width, int tile_height,
                                           std::string& why, int& left_out) {
    Picture picture;
    const std::string refused = picture_file::read(path, picture);
    if (!refused.empty()) {
        why = file_name(path) + ": " + refused;
        return nullptr;
    }
    sheet::Cut cut = sheet::cut(picture, tile_width, tile_height);
    if (!cut.tiles) why = file_name(path) + ": " + cut.refusal;
    left_out = cut.left_out;
    return std::move(cut.tiles);
}

int run_batch(const Command_Line& line) {
    // The block error of a damaged tileset ends the process with its one line:
    // in a batch that line belongs on standard error.
    std::fflush(stdout);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    std::unique_ptr<Tile_Store> tiles;
    if (!line.sheet.empty()) {
        std::string why;
        int left_out = 0;
        tiles = tiles_of_sheet(line.sheet, line.tile_width, line.tile_height, why, left_out);
        if (!tiles) return fail(why);
        if (left_out > 0)
            std::fprintf(stderr, "mosswick: %s: %d tiles past the 256th were left out\n",
                         file_name(line.sheet).c_str(), left_out);
    } else {
        tiles = Tileset_File::read(line.input);
        if (!tiles) return fail(file_name(line.input) + ": " + Tileset_File::load_error_text);
    }
    if (!line.save_to.empty() && Tileset_File::write(*tiles, line.save_to) < 0)
        return fail("could not write " + line.save_to);
    if (!line.export_to.empty() && !write_picture(line.export_to, sheet::compose(*tiles)))
        return fail("could not write " + line.export_to);
    if (!line.map_image_to.empty()) return write_map_image(line.input, *tiles, line.map_image_to);
    return 0;
}
