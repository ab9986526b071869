#include "mapeditor/map_file.h"

#include <tinyxml2.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "mapeditor/map_editor.h"

namespace {
// Tiled keeps flip and rotation flags in a cell's top bits.
constexpr uint32_t flag_bits = 0xF0000000u;

std::string beside(const std::string& tileset_path, const char* extension) {
    const size_t separator = tileset_path.find_last_of("/\\");
    const size_t start = separator == std::string::npos ? 0 : separator + 1;
    const size_t dot = tileset_path.find('.', start);
    return tileset_path.substr(0, dot == std::string::npos ? tileset_path.size() : dot) + extension;
}

std::string file_name(const std::string& path) {
    const size_t separator = path.find_last_of("/\\");
    return separator == std::string::npos ? path : path.substr(separator + 1);
}

void add_problem(Map_File::Reading& r, const std::string& line) {
    if (!r.problems.empty()) r.problems += "\r";
    r.problems += line;
}

// The cell values of CSV text, one after another; a value that is no
// unsigned 32-bit number comes as bad.
class Csv_Cells {
public:
    explicit Csv_Cells(const char* text) : at(text ? text : "") {}
    // False at the end of the text.
    bool next(uint32_t& value, bool& bad) {
        while (*at == ' ' || *at == '\n' || *at == '\r' || *at == '\t') ++at;
        if (*at == '\0') return false;
        uint64_t number = 0;
        int digits = 0;
        bad = false;
        while (*at != ',' && *at != '\0') {
            const char c = *at++;
            if (c == ' ' || c == '\n' || c == '\r' || c == '\t') continue;
            if (c < '0' || c > '9' || digits >= 10) {
                bad = true;
                continue;
            }
            number = number * 10 + uint64_t(c - '0');
            ++digits;
        }
        if (*at == ',') ++at;
        if (digits == 0 || number > 0xFFFFFFFFull) bad = true;
        value = uint32_t(number);
        return true;
    }

private:
    const char* at;
};

int attribute(const tinyxml2::XMLElement* e, const char* name, int fallback) {
    int value = fallback;
    return e && e->QueryIntAttribute(name, &value) == tinyxml2::XML_SUCCESS ? value : fallback;
}
}  // namespace

std::string Map_File::map_path(const std::string& tileset_path) { return beside(tileset_path, ".tmx"); }
std::string Map_File::sheet_path(const std::string& tileset_path) { return beside(tileset_path, ".bmp"); }

bool Map_File::write(const Tile_Map& map, uint32_t tile_width, uint32_t tile_height, const std::string& path) {
    using namespace tinyxml2;
    XMLDocument doc;
    doc.InsertEndChild(doc.NewDeclaration("xml version=\"1.0\" encoding=\"UTF-8\""));
    XMLElement* root = doc.NewElement("map");
    doc.InsertEndChild(root);
    root->SetAttribute("version", "1.10");
    root->SetAttribute("orientation", "orthogonal");
    root->SetAttribute("renderorder", "right-down");
    root->SetAttribute("width", map.columns());
    root->SetAttribute("height", map.rows());
    root->SetAttribute("tilewidth", tile_width);
    root->SetAttribute("tileheight", tile_height);
    root->SetAttribute("infinite", 0);
    root->SetAttribute("nextlayerid", 2);
    root->SetAttribute("nextobjectid", 1);

    const std::string sheet = file_name(sheet_path(path));
    XMLElement* tileset = root->InsertNewChildElement("tileset");
    tileset->SetAttribute("firstgid", 1);
    tileset->SetAttribute("name", sheet.substr(0, sheet.size() - 4).c_str());
    tileset->SetAttribute("tilewidth", tile_width);
    tileset->SetAttribute("tileheight", tile_height);
    tileset->SetAttribute("tilecount", sheet_columns * sheet_rows);
    tileset->SetAttribute("columns", sheet_columns);
    XMLElement* image = tileset->InsertNewChildElement("image");
    image->SetAttribute("source", sheet.c_str());
    image->SetAttribute("width", uint32_t(sheet_columns) * tile_width);
    image->SetAttribute("height", uint32_t(sheet_rows) * tile_height);

    XMLElement* layer = root->InsertNewChildElement("layer");
    layer->SetAttribute("id", 1);
    layer->SetAttribute("name", "Tiles");
    layer->SetAttribute("width", map.columns());
    layer->SetAttribute("height", map.rows());
    XMLElement* data = layer->InsertNewChildElement("data");
    data->SetAttribute("encoding", "csv");
    std::string csv = "\n";
    for (int y = 0; y < map.rows(); ++y) {
        for (int x = 0; x < map.columns(); ++x) {
            csv += std::to_string(map.at(x, y) + 1);
            if (x + 1 < map.columns() || y + 1 < map.rows()) csv += ',';
        }
        csv += '\n';
    }
    data->SetText(csv.c_str());

    // Written aside and moved into place, so a failed write keeps the old file.
    const std::string part = path + ".part";
    if (doc.SaveFile(part.c_str()) != XML_SUCCESS) {
        std::remove(part.c_str());
        return false;
    }
    std::error_code error;
    std::filesystem::rename(part, path, error);
    if (error) std::remove(part.c_str());
    return !error;
}

Map_File::Reading Map_File::read(const std::string& path, Map_Editor& into, uint32_t tile_width,
                                 uint32_t tile_height, int tile_count) {
    using namespace tinyxml2;
    Reading r;
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return r;
    r.found = true;
    XMLDocument doc;
    if (doc.LoadFile(path.c_str()) != XML_SUCCESS) {
        add_problem(r, "It is not a readable XML file, so no cell was read.");
        return r;
    }
    const XMLElement* root = doc.RootElement();
    if (!root || std::string(root->Name()) != "map") {
        add_problem(r, "It holds no map, so no cell was read.");
        return r;
    }
    const char* orientation = root->Attribute("orientation");
    if (orientation && std::string(orientation) != "orthogonal")
        add_problem(r, std::string("Its orientation is ") + orientation + "; its cells were read as a plain grid.");
    const int file_tile_w = attribute(root, "tilewidth", 0);
    const int file_tile_h = attribute(root, "tileheight", 0);
    if (file_tile_w != int(tile_width) || file_tile_h != int(tile_height))
        add_problem(r, "It is made for tiles of " + std::to_string(file_tile_w) + " x " + std::to_string(file_tile_h) +
                           " pixels, this tileset's are " + std::to_string(tile_width) + " x " +
                           std::to_string(tile_height) + ".");

    const XMLElement* tileset = root->FirstChildElement("tileset");
    const int first_gid = attribute(tileset, "firstgid", 1);
    if (tileset && tileset->NextSiblingElement("tileset"))
        add_problem(r, "It uses more than one tileset; only the first was taken for this one.");

    const XMLElement* layer = root->FirstChildElement("layer");
    if (!layer) {
        add_problem(r, "It has no tile layer, so no cell was read.");
        return r;
    }
    if (layer->NextSiblingElement("layer")) add_problem(r, "Only its first tile layer was read.");
    const int columns = attribute(layer, "width", attribute(root, "width", 0));
    const int rows = attribute(layer, "height", attribute(root, "height", 0));
    const XMLElement* data = layer->FirstChildElement("data");
    const char* encoding = data ? data->Attribute("encoding") : nullptr;
    if (!data || !encoding || std::string(encoding) != "csv" || data->FirstChildElement()) {
        add_problem(r, "Its tile layer is not stored as CSV, so no cell was read.");
        return r;
    }
    if (columns <= 0 || rows <= 0) {
        add_problem(r, "Its tile layer has no valid size, so no cell was read.");
        return r;
    }
    const Tile_Map& map = into.map();
    if (columns > map.columns() || rows > map.rows())
        add_problem(r, "Its " + std::to_string(columns) + " x " + std::to_string(rows) +
                           " cells do not fit this map of " + std::to_string(map.columns()) + " x " +
                           std::to_string(map.rows()) + "; the rest was left out.");

    Csv_Cells cells(data->GetText());
    long long read_count = 0;
    const long long expected = (long long)columns * rows;
    int bad = 0;
    int unknown = 0;
    int flipped = 0;
    uint32_t value = 0;
    bool not_number = false;
    while (cells.next(value, not_number)) {
        const long long index = read_count++;
        if (index >= expected) continue;
        if (not_number) {
            ++bad;
            continue;
        }
        if (value & flag_bits) ++flipped;
        const long long gid = value & ~flag_bits;
        if (gid == 0) continue;
        const long long tile = gid - first_gid;
        const int x = int(index % columns);
        const int y = int(index / columns);
        if (tile < 0 || tile >= tile_count) {
            ++unknown;
            continue;
        }
        if (map.is_outside(x, y)) continue;
        into.place(x, y, int(tile));
        ++r.cells;
    }
    if (bad > 0) add_problem(r, std::to_string(bad) + " cells held no valid number and were left empty.");
    if (unknown > 0)
        add_problem(r, std::to_string(unknown) + " cells named tiles this tileset does not have and were left empty.");
    if (flipped > 0) add_problem(r, std::to_string(flipped) + " cells were flipped or turned; they show unturned.");
    if (read_count < expected)
        add_problem(r, "Its tile layer ends after " + std::to_string(read_count) + " of " + std::to_string(expected) +
                           " cells.");
    else if (read_count > expected)
        add_problem(r, "Its tile layer holds more cells than its size; the extra ones were left out.");
    r.whole = r.problems.empty();
    return r;
}
