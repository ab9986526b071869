#include "model/map/map_file.h"

#include <tinyxml2.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>
#include <filesystem>
#include <string>

#include "model/core/safe_file.h"
#include "model/map/layer_data.h"
#include "model/map/map_editor.h"
#include "model/map/map_text.h"
#include "model/map/terrain_file.h"

namespace {
// Map files keep a cell's flips in its top bits: across, upside down,
// diagonal, and a hexagonal turn this editor does not show.
constexpr uint32_t flag_bits = 0xF0000000u;
constexpr uint32_t flip_h_bit = 0x80000000u, flip_v_bit = 0x40000000u, diagonal_bit = 0x20000000u,
                   hexagonal_bit = 0x10000000u;

int turn_of(uint32_t value) {
    return (value & flip_h_bit ? turn::flip_h : 0) | (value & flip_v_bit ? turn::flip_v : 0) |
           (value & diagonal_bit ? turn::diagonal : 0);
}
uint32_t flags_of(int t) {
    return (t & turn::flip_h ? flip_h_bit : 0) | (t & turn::flip_v ? flip_v_bit : 0) |
           (t & turn::diagonal ? diagonal_bit : 0);
}

// The whole file name minus its extension (after the last dot), so that
// "level.1.wst" and "level.2.wst" keep maps of their own.
std::string beside(const std::string& tileset_path, const char* extension) {
    const size_t separator = tileset_path.find_last_of("/\\");
    const size_t start = separator == std::string::npos ? 0 : separator + 1;
    const size_t dot = tileset_path.rfind('.');
    const bool has_extension = dot != std::string::npos && dot > start;
    return tileset_path.substr(0, has_extension ? dot : tileset_path.size()) + extension;
}

std::string file_name(const std::string& path) {
    const size_t separator = path.find_last_of("/\\");
    return separator == std::string::npos ? path : path.substr(separator + 1);
}

void add_problem(Map_File::Reading& r, const std::string& line) {
    if (!r.problems.empty()) r.problems += "\r";
    r.problems += line;
}

int attribute(const tinyxml2::XMLElement* e, const char* name, int fallback) {
    int value = fallback;
    return e && e->QueryIntAttribute(name, &value) == tinyxml2::XML_SUCCESS ? value : fallback;
}
}  // namespace

std::string Map_File::map_path(const std::string& tileset_path) { return beside(tileset_path, ".tmx"); }
std::string Map_File::sheet_path(const std::string& tileset_path) { return beside(tileset_path, ".bmp"); }

namespace {
using namespace tinyxml2;

// The map's first tile layer: the one this editor reads and writes.
XMLElement* tile_layer(XMLElement* root) { return root->FirstChildElement("layer"); }

// A new map with the tileset drawn from the sheet beside it.
XMLElement* new_map(XMLDocument& doc, const std::string& sheet, uint32_t tile_width, uint32_t tile_height) {
    doc.InsertEndChild(doc.NewDeclaration("xml version=\"1.0\" encoding=\"UTF-8\""));
    XMLElement* root = doc.NewElement("map");
    doc.InsertEndChild(root);
    root->SetAttribute("version", "1.10");
    root->SetAttribute("tiledversion", Map_File::tiled_version);
    root->SetAttribute("orientation", "orthogonal");
    root->SetAttribute("renderorder", "right-down");
    root->SetAttribute("width", 0);
    root->SetAttribute("height", 0);
    root->SetAttribute("tilewidth", tile_width);
    root->SetAttribute("tileheight", tile_height);
    root->SetAttribute("infinite", 0);
    root->SetAttribute("nextlayerid", 1);
    root->SetAttribute("nextobjectid", 1);
    XMLElement* tileset = root->InsertNewChildElement("tileset");
    tileset->SetAttribute("firstgid", 1);
    tileset->SetAttribute("name", sheet.substr(0, sheet.size() - 4).c_str());
    tileset->SetAttribute("tilewidth", tile_width);
    tileset->SetAttribute("tileheight", tile_height);
    tileset->SetAttribute("tilecount", Map_File::sheet_columns * Map_File::sheet_rows);
    tileset->SetAttribute("columns", Map_File::sheet_columns);
    XMLElement* image = tileset->InsertNewChildElement("image");
    image->SetAttribute("source", sheet.c_str());
    image->SetAttribute("width", uint32_t(Map_File::sheet_columns) * tile_width);
    image->SetAttribute("height", uint32_t(Map_File::sheet_rows) * tile_height);
    return root;
}

// A tile layer added after the last layer or tileset, with the map's next id.
XMLElement* add_tile_layer(XMLElement* root) {
    int id = 1;
    root->QueryIntAttribute("nextlayerid", &id);
    XMLElement* layer = root->GetDocument()->NewElement("layer");
    XMLElement* after = nullptr;
    for (XMLElement* e = root->FirstChildElement(); e; e = e->NextSiblingElement()) after = e;
    if (after)
        root->InsertAfterChild(after, layer);
    else
        root->InsertEndChild(layer);
    layer->SetAttribute("id", id);
    layer->SetAttribute("name", "Tiles");
    root->SetAttribute("nextlayerid", id + 1);
    return layer;
}

// The area the layer must cover: its own, grown to hold every placed cell.
void layer_size(const XMLElement* layer, const Tile_Map& map, int& columns, int& rows) {
    columns = 0;
    rows = 0;
    if (layer) {
        layer->QueryIntAttribute("width", &columns);
        layer->QueryIntAttribute("height", &rows);
    }
    if (columns <= 0 || rows <= 0 || columns > map.columns() * 64 || rows > map.rows() * 64) {
        columns = map.columns();
        rows = map.rows();
        return;
    }
    for (int y = 0; y < map.rows(); ++y)
        for (int x = 0; x < map.columns(); ++x)
            if (map.at(x, y) != Tile_Map::empty && (x >= columns || y >= rows)) {
                columns = std::max(columns, map.columns());
                rows = std::max(rows, map.rows());
                return;
            }
}
}  // namespace

namespace {
// The layer's cells as global tile ids, row by row.
std::vector<uint32_t> gids_of(const Tile_Map& map, int columns, int rows, int first_gid) {
    std::vector<uint32_t> gids;
    gids.reserve(size_t(columns) * size_t(rows));
    for (int y = 0; y < rows; ++y)
        for (int x = 0; x < columns; ++x) {
            const int tile = map.at(x, y);
            gids.push_back(tile == Tile_Map::empty ? 0 : uint32_t(tile + first_gid) | flags_of(map.turn_at(x, y)));
        }
    return gids;
}

struct Edit {
    size_t at;
    size_t length;
    std::string text;
};

// The terrain set's wang set in the tileset's text: replaced, added or taken
// away; a tileset kept in a file of its own (a "source") keeps its own.
void edit_terrain(const std::string& source, const map_text::Element& tileset, const Terrain_Set& terrain,
                  std::vector<Edit>& edits) {
    const std::string tileset_tag = source.substr(tileset.tag_begin, tileset.tag_end - tileset.tag_begin);
    const std::string ours = terrain.is_empty() ? std::string() : terrain_file::wangset_text(terrain, "   ");
    if (tileset.empty) {
        if (ours.empty() || !map_text::attribute(tileset_tag, "source").empty()) return;
        const size_t close = tileset_tag.rfind("/>");
        edits.push_back({tileset.tag_begin, tileset_tag.size(),
                         tileset_tag.substr(0, close) + ">\n  <wangsets>\n   " + ours + "\n  </wangsets>\n </tileset>"});
        return;
    }
    const map_text::Element sets = map_text::child(source, tileset.tag_end, tileset.content_end, "wangsets");
    if (!sets.found || sets.empty) {
        if (ours.empty()) return;
        const std::string block = " <wangsets>\n   " + ours + "\n  </wangsets>\n ";
        if (sets.found)
            edits.push_back({sets.tag_begin, sets.end - sets.tag_begin, block});
        else
            edits.push_back({tileset.content_end, 0, block});
        return;
    }
    for (size_t from = sets.tag_end;;) {
        const map_text::Element set = map_text::child(source, from, sets.content_end, "wangset");
        if (!set.found) break;
        if (map_text::attribute(source.substr(set.tag_begin, set.tag_end - set.tag_begin), "type") == "corner") {
            edits.push_back({set.tag_begin, set.end - set.tag_begin, ours});
            return;
        }
        from = set.end;
    }
    if (!ours.empty()) edits.push_back({sets.content_end, 0, " " + ours + "\n  "});
}

// The source with only the map's tag, its first tile layer's cells and the
// terrain set (when given and changed) replaced; empty when the source is no
// map this can edit.
std::string edited(const std::string& source, const Tile_Map& map, uint32_t tile_width, uint32_t tile_height,
                   const std::string& sheet, const Terrain_Set* terrain) {
    XMLDocument doc;
    if (doc.Parse(source.c_str(), source.size()) != XML_SUCCESS || !doc.RootElement() ||
        std::string(doc.RootElement()->Name()) != "map")
        return {};
    const map_text::Element root = map_text::child(source, 0, source.size(), "map");
    if (!root.found || root.empty) return {};
    XMLElement* root_element = doc.RootElement();
    int first_gid = 1;
    if (const XMLElement* tileset = root_element->FirstChildElement("tileset"))
        tileset->QueryIntAttribute("firstgid", &first_gid);
    int columns = 0;
    int rows = 0;
    layer_size(tile_layer(root_element), map, columns, rows);
    const std::vector<uint32_t> gids = gids_of(map, columns, rows, first_gid);
    const std::string csv = layer_data::encode(gids, columns, layer_data::Encoding::csv);
    const std::string data = "<data encoding=\"csv\">" + csv + "</data>";

    std::vector<Edit> edits;
    std::string root_tag = source.substr(root.tag_begin, root.tag_end - root.tag_begin);
    const map_text::Element layer = map_text::child(source, root.tag_end, root.content_end, "layer");
    auto sized = [&](std::string tag) {
        if (map_text::attribute(tag, "width") != std::to_string(columns)) tag = map_text::with_attribute(tag, "width", std::to_string(columns));
        if (map_text::attribute(tag, "height") != std::to_string(rows)) tag = map_text::with_attribute(tag, "height", std::to_string(rows));
        return tag;
    };
    if (!layer.found) {
        int id = 1;
        root_element->QueryIntAttribute("nextlayerid", &id);
        root_tag = map_text::with_attribute(root_tag, "nextlayerid", std::to_string(id + 1));
        edits.push_back({root.content_end, 0,
                         " <layer id=\"" + std::to_string(id) + "\" name=\"Tiles\" width=\"" + std::to_string(columns) +
                             "\" height=\"" + std::to_string(rows) + "\">\n  " + data + "\n </layer>\n"});
    } else {
        const std::string tag = source.substr(layer.tag_begin, layer.tag_end - layer.tag_begin);
        if (layer.empty) {
            const std::string open = sized(tag.substr(0, tag.size() - 2) + ">");
            edits.push_back({layer.tag_begin, layer.end - layer.tag_begin, open + data + "</layer>"});
        } else {
            const std::string new_tag = sized(tag);
            if (new_tag != tag) edits.push_back({layer.tag_begin, tag.size(), new_tag});
            const map_text::Element cells = map_text::child(source, layer.tag_end, layer.content_end, "data");
            if (!cells.found) {
                edits.push_back({layer.content_end, 0, data});
            } else {
                // Written back in the encoding it was read in.
                const std::string data_tag = source.substr(cells.tag_begin, cells.tag_end - cells.tag_begin);
                layer_data::Encoding kept = layer_data::Encoding::csv;
                if (!cells.empty && layer_data::encoding_of(map_text::attribute(data_tag, "encoding"),
                                                            map_text::attribute(data_tag, "compression"), kept))
                    edits.push_back({cells.tag_end, cells.content_end - cells.tag_end,
                                     layer_data::encode(gids, columns, kept)});
                else
                    edits.push_back({cells.tag_begin, cells.end - cells.tag_begin, data});
            }
        }
    }
    // The cells are this tileset's tiles, at its size; so is the sheet's
    // tileset, when the map draws from the sheet written beside it.
    const std::string w = std::to_string(tile_width);
    const std::string h = std::to_string(tile_height);
    if (map_text::attribute(root_tag, "tilewidth") != w) root_tag = map_text::with_attribute(root_tag, "tilewidth", w);
    if (map_text::attribute(root_tag, "tileheight") != h) root_tag = map_text::with_attribute(root_tag, "tileheight", h);
    const map_text::Element tileset = map_text::child(source, root.tag_end, root.content_end, "tileset");
    if (tileset.found && !tileset.empty) {
        const map_text::Element image = map_text::child(source, tileset.tag_end, tileset.content_end, "image");
        const std::string image_tag =
            image.found ? source.substr(image.tag_begin, image.tag_end - image.tag_begin) : std::string();
        const std::string tileset_tag = source.substr(tileset.tag_begin, tileset.tag_end - tileset.tag_begin);
        if (image.found && map_text::attribute(image_tag, "source") == sheet &&
            map_text::attribute(tileset_tag, "tilewidth") != w) {
            std::string t = map_text::with_attribute(tileset_tag, "tilewidth", w);
            t = map_text::with_attribute(t, "tileheight", h);
            std::string i = map_text::with_attribute(image_tag, "width", std::to_string(Map_File::sheet_columns * tile_width));
            i = map_text::with_attribute(i, "height", std::to_string(Map_File::sheet_rows * tile_height));
            edits.push_back({tileset.tag_begin, tileset_tag.size(), t});
            edits.push_back({image.tag_begin, image_tag.size(), i});
        }
    }
    if (terrain && tileset.found) {
        Terrain_Set in_file;
        std::string ignored;
        const bool had =
            terrain_file::read(root_element->FirstChildElement("tileset"), 1 << 30, in_file, ignored);
        if (had ? !(in_file == *terrain) : !terrain->is_empty()) edit_terrain(source, tileset, *terrain, edits);
    }
    // A loader of one game engine refuses maps without it.
    if (map_text::attribute(root_tag, "tiledversion").empty())
        root_tag = map_text::with_attribute(root_tag, "tiledversion", Map_File::tiled_version);
    const int map_columns = std::atoi(map_text::attribute(root_tag, "width").c_str());
    const int map_rows = std::atoi(map_text::attribute(root_tag, "height").c_str());
    if (columns > map_columns) root_tag = map_text::with_attribute(root_tag, "width", std::to_string(columns));
    if (rows > map_rows) root_tag = map_text::with_attribute(root_tag, "height", std::to_string(rows));
    // Its cells are all in the one layer of a fixed size now.
    if (!map_text::attribute(root_tag, "infinite").empty() && map_text::attribute(root_tag, "infinite") != "0")
        root_tag = map_text::with_attribute(root_tag, "infinite", "0");
    edits.push_back({root.tag_begin, root.tag_end - root.tag_begin, root_tag});

    std::string out = source;
    std::sort(edits.begin(), edits.end(), [](const Edit& a, const Edit& b) { return a.at > b.at; });
    for (const Edit& e : edits) out.replace(e.at, e.length, e.text);
    // A file odd enough to defeat the edit (it is damaged, and the user agreed
    // to replace it) is written anew rather than written broken.
    XMLDocument check;
    if (check.Parse(out.c_str(), out.size()) != XML_SUCCESS || !check.RootElement()) return {};
    const XMLElement* written_layer = tile_layer(check.RootElement());
    const XMLElement* written_data = written_layer ? written_layer->FirstChildElement("data") : nullptr;
    const char* written_cells = written_data ? written_data->GetText() : nullptr;
    layer_data::Encoding written_encoding;
    if (!written_cells || !layer_data::encoding_of(written_data->Attribute("encoding") ? written_data->Attribute("encoding") : "",
                                                   written_data->Attribute("compression") ? written_data->Attribute("compression") : "",
                                                   written_encoding))
        return {};
    const layer_data::Decoded back = layer_data::decode(written_cells, written_encoding, gids.size());
    if (!back.failure.empty() || back.bad > 0 || back.cells != gids) return {};
    return out;
}

std::string new_file(const Tile_Map& map, uint32_t tile_width, uint32_t tile_height, const std::string& path,
                     const Terrain_Set* terrain) {
    XMLDocument doc;
    XMLElement* root = new_map(doc, file_name(Map_File::sheet_path(path)), tile_width, tile_height);
    if (terrain && !terrain->is_empty()) {
        XMLDocument piece;
        piece.Parse(("<wangsets>" + terrain_file::wangset_text(*terrain, "") + "</wangsets>").c_str());
        if (piece.RootElement()) root->FirstChildElement("tileset")->InsertEndChild(piece.RootElement()->DeepClone(&doc));
    }
    XMLElement* layer = add_tile_layer(root);
    layer->SetAttribute("width", map.columns());
    layer->SetAttribute("height", map.rows());
    root->SetAttribute("width", map.columns());
    root->SetAttribute("height", map.rows());
    XMLElement* data = layer->InsertNewChildElement("data");
    data->SetAttribute("encoding", "csv");
    data->SetText(
        layer_data::encode(gids_of(map, map.columns(), map.rows(), 1), map.columns(), layer_data::Encoding::csv).c_str());
    XMLPrinter printer;
    doc.Print(&printer);
    return std::string(printer.CStr(), size_t(printer.CStrSize() > 0 ? printer.CStrSize() - 1 : 0));
}
}  // namespace

bool Map_File::write(const Tile_Map& map, uint32_t tile_width, uint32_t tile_height, const std::string& path,
                     const std::string& source, const Terrain_Set* terrain) {
    std::string text = source.empty() ? std::string()
                                      : edited(source, map, tile_width, tile_height, file_name(sheet_path(path)), terrain);
    if (text.empty()) text = new_file(map, tile_width, tile_height, path, terrain);
    // A derived name: never written through a link there.
    return safe_file::written(
        path, [&](std::FILE* file) { return std::fwrite(text.data(), 1, text.size(), file) == text.size(); },
        safe_file::Links::refuse);
}

bool Map_File::uses_sheet(const std::string& source, const std::string& sheet_name) {
    XMLDocument doc;
    if (doc.Parse(source.c_str(), source.size()) != XML_SUCCESS || !doc.RootElement()) return false;
    for (const XMLElement* t = doc.RootElement()->FirstChildElement("tileset"); t; t = t->NextSiblingElement("tileset"))
        for (const XMLElement* i = t->FirstChildElement("image"); i; i = i->NextSiblingElement("image"))
            if (const char* source_name = i->Attribute("source"); source_name && sheet_name == source_name) return true;
    return false;
}

std::string Map_File::text_of(const std::string& path) {
    if (!safe_file::is_plain_file(path)) return {};
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (!file) return {};
    std::string text;
    char buffer[65536];
    size_t n = 0;
    while ((n = std::fread(buffer, 1, sizeof buffer, file)) > 0) text.append(buffer, n);
    std::fclose(file);
    return text;
}

namespace {
// The cells of the first tile layer; the reading's whole flag is left to the caller.
void read_layer(const tinyxml2::XMLElement* root, const tinyxml2::XMLElement* tileset, Map_Editor& into,
                int tile_count, Map_File::Reading& r) {
    using namespace tinyxml2;
    const int first_gid = attribute(tileset, "firstgid", 1);
    if (attribute(root, "infinite", 0) != 0) {
        add_problem(r, "It is an infinite map, kept in chunks; this editor reads maps of a fixed size only, so no cell was read.");
        return;
    }
    const XMLElement* layer = root->FirstChildElement("layer");
    // A map without a tile layer is a blank map here; writing adds one.
    if (!layer) return;
    const int columns = attribute(layer, "width", attribute(root, "width", 0));
    const int rows = attribute(layer, "height", attribute(root, "height", 0));
    const XMLElement* data = layer->FirstChildElement("data");
    const char* encoding_text = data ? data->Attribute("encoding") : nullptr;
    const char* compression_text = data ? data->Attribute("compression") : nullptr;
    layer_data::Encoding encoding;
    if (!data || data->FirstChildElement() ||
        !layer_data::encoding_of(encoding_text ? encoding_text : "", compression_text ? compression_text : "",
                                 encoding)) {
        add_problem(r, "Its tile layer is stored in a way this editor does not read (" +
                           std::string(encoding_text ? encoding_text : "XML") +
                           (compression_text ? std::string(", ") + compression_text : std::string()) +
                           "), so no cell was read.");
        return;
    }
    if (columns <= 0 || rows <= 0) {
        add_problem(r, "Its tile layer has no valid size, so no cell was read.");
        return;
    }
    const Tile_Map& map = into.map();
    if (columns > map.columns() || rows > map.rows())
        add_problem(r, "Its " + std::to_string(columns) + " x " + std::to_string(rows) +
                           " cells do not fit this map of " + std::to_string(map.columns()) + " x " +
                           std::to_string(map.rows()) + "; the rest was left out.");

    const long long expected = (long long)columns * rows;
    // A size that lies cannot make a small layer unpack into gigabytes.
    const layer_data::Decoded cells = layer_data::decode(data->GetText() ? data->GetText() : "", encoding,
                                                         size_t(std::min(expected, layer_data::most_cells)));
    if (!cells.failure.empty()) {
        add_problem(r, "Its tile layer could not be unpacked: " + cells.failure + ", so no cell was read.");
        return;
    }
    const long long read_count = (long long)cells.cells.size();
    const int bad = cells.bad;
    int unknown = 0;
    int flipped = 0;
    for (long long index = 0; index < std::min(read_count, expected); ++index) {
        const uint32_t value = cells.cells[size_t(index)];
        if (value & hexagonal_bit) ++flipped;
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
        into.place(x, y, int(tile), turn_of(value));
        ++r.cells;
    }
    if (bad > 0) add_problem(r, std::to_string(bad) + " cells held no valid number and were left empty.");
    if (unknown > 0)
        add_problem(r, std::to_string(unknown) + " cells named tiles this tileset does not have and were left empty.");
    if (flipped > 0)
        add_problem(r, std::to_string(flipped) + " cells were turned for a hexagonal map; they show without that turn.");
    if (read_count < expected)
        add_problem(r, "Its tile layer ends after " + std::to_string(read_count) + " of " + std::to_string(expected) +
                           " cells.");
    else if (read_count > expected)
        add_problem(r, "Its tile layer holds more cells than its size; the extra ones were left out.");
}
}  // namespace


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

    // What is not the first tile layer (objects, image and group layers,
    // further tile layers and tilesets, properties) is kept as the file has
    // it when the map is written back, so it is no loss to leave it aside.
    const XMLElement* tileset = root->FirstChildElement("tileset");
    read_layer(root, tileset, into, tile_count, r);
    Terrain_Set terrain;
    std::string terrain_problems;
    if (terrain_file::read(tileset, tile_count, terrain, terrain_problems)) into.place_terrain(terrain);
    if (!terrain_problems.empty()) add_problem(r, terrain_problems);
    r.whole = r.problems.empty();
    return r;
}
