#pragma once

#include <cstdint>
#include <string>
#include <vector>

class Map_Editor;

// The map kept beside its tileset as NAME.tmx, in the map format of the Tiled
// editor that many map editors and game engines read: an orthogonal map with
// a tile layer for each of the map's layers (CSV for a new one), and one
// tileset drawn from the tileset's sheet NAME.bmp (16 tiles to a row, 16
// rows). Cell values are 0 for an empty cell and tile index + 1 otherwise,
// with the cell's flips in the top bits.
class Map_File {
public:
    static constexpr int sheet_columns = 16;
    static constexpr int sheet_rows = 16;

    // The map file and the sheet beside a tileset's file.
    static std::string map_path(const std::string& tileset_path);
    static std::string sheet_path(const std::string& tileset_path);

    // The version of the map format's editor named in the file, which some
    // loaders require.
    static constexpr const char* tiled_version = "1.10.2";

    // Writes the map. With the text of the map file as source, only the map's
    // tile layers are written into it and everything else stays as it is:
    // objects, layers of other kinds and in groups, tile layers it could not
    // read, tilesets, properties. The map's layers, in its order, take the
    // places of the layers it read; places left over go, new layers follow.
    // The terrain set is kept in the map's tileset as its corner wang set
    // (replacing the one there, and only when it differs from it). False when
    // the file could not be written (a link there counts as a failure); a
    // failed write leaves any previous file as it was. The ids the layers
    // have in the file are put in layer_ids.
    static bool write(const Map_Editor& map, uint32_t tile_width, uint32_t tile_height, const std::string& path,
                      const std::string& source = {}, std::vector<int>* layer_ids = nullptr);
    // Whether the map text draws tiles from an image of that file name.
    static bool uses_sheet(const std::string& source, const std::string& sheet_name);
    // The bytes of a regular file; empty for anything else.
    static std::string text_of(const std::string& path);

    struct Reading {
        bool found = false;  // there was a file to read
        bool whole = false;  // everything in it was read as it stood
        int cells = 0;       // cells placed
        std::string problems;  // one line per thing left out or changed
    };
    // Places the tile layers of the file in the map (its history cleared) and
    // reads what is valid of a damaged or foreign file: cells naming tiles the
    // tileset lacks stay empty, a layer larger than the map is cut.
    static Reading read(const std::string& path, Map_Editor& into, uint32_t tile_width, uint32_t tile_height,
                        int tile_count);
};
