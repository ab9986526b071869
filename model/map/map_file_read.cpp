// Reading a map file: every tile layer of a fixed size in any encoding the
// map tools write, and the terrain set; what cannot be read stays in the
// file as it is and is said in the reading's problems.
#include <tinyxml2.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "model/map/gid.h"
#include "model/map/layer_data.h"
#include "model/map/map_editor.h"
#include "model/map/map_file.h"
#include "model/map/terrain_file.h"

namespace {
using namespace tinyxml2;

void add_problem(Map_File::Reading& r, const std::string& line) {
    if (!r.problems.empty()) r.problems += "\r";
    r.problems += line;
}

int attribute(const XMLElement* e, const char* name, int fallback) {
    int value = fallback;
    return e && e->QueryIntAttribute(name, &value) == XML_SUCCESS ? value : fallback;
}

// The highest layer id in the map, groups and other kinds of layers included
// (they share the ids).
int highest_id(const XMLElement* parent) {
    int highest = 0;
    for (const XMLElement* e = parent->FirstChildElement(); e; e = e->NextSiblingElement()) {
        const std::string name = e->Name();
        if (name != "layer" && name != "objectgroup" && name != "imagelayer" && name != "group") continue;
        highest = std::max({highest, attribute(e, "id", 0), name == "group" ? highest_id(e) : 0});
    }
    return highest;
}

// One tile layer's cells into the map; false (and a problem said) when no
// cell of it could be read. `what` names the layer in the problems.
bool read_layer(const XMLElement* root, const XMLElement* layer, int first_gid, int tile_count,
                const std::string& what, Tile_Map& map, Map_File::Reading& r) {
    const int columns = attribute(layer, "width", attribute(root, "width", 0));
    const int rows = attribute(layer, "height", attribute(root, "height", 0));
    const XMLElement* data = layer->FirstChildElement("data");
    const char* encoding_text = data ? data->Attribute("encoding") : nullptr;
    const char* compression_text = data ? data->Attribute("compression") : nullptr;
    layer_data::Encoding encoding;
    if (!data || data->FirstChildElement() ||
        !layer_data::encoding_of(encoding_text ? encoding_text : "", compression_text ? compression_text : "",
                                 encoding)) {
        add_problem(r, what + " is stored in a way this editor does not read (" +
                           std::string(encoding_text ? encoding_text : "XML") +
                           (compression_text ? std::string(", ") + compression_text : std::string()) +
                           "), so no cell was read.");
        return false;
    }
    if (columns <= 0 || rows <= 0) {
        add_problem(r, what + " has no valid size, so no cell was read.");
        return false;
    }
    if (columns > map.columns() || rows > map.rows())
        add_problem(r, "Its " + std::to_string(columns) + " x " + std::to_string(rows) +
                           " cells do not fit this map of " + std::to_string(map.columns()) + " x " +
                           std::to_string(map.rows()) + "; the rest was left out.");

    const long long expected = (long long)columns * rows;
    // A size that lies cannot make a small layer unpack into gigabytes.
    const layer_data::Decoded cells = layer_data::decode(data->GetText() ? data->GetText() : "", encoding,
                                                         size_t(std::min(expected, layer_data::most_cells)));
    if (!cells.failure.empty()) {
        add_problem(r, what + " could not be unpacked: " + cells.failure + ", so no cell was read.");
        return false;
    }
    const long long read_count = (long long)cells.cells.size();
    int unknown = 0;
    int flipped = 0;
    for (long long index = 0; index < std::min(read_count, expected); ++index) {
        const uint32_t value = cells.cells[size_t(index)];
        if (value & gid::hexagonal_bit) ++flipped;
        const long long id = value & ~gid::flag_bits;
        if (id == 0) continue;
        const long long tile = id - first_gid;
        const int x = int(index % columns);
        const int y = int(index / columns);
        if (tile < 0 || tile >= tile_count) {
            ++unknown;
            continue;
        }
        if (map.is_outside(x, y)) continue;
        map.set(x, y, int(tile), gid::turn_of(value));
        ++r.cells;
    }
    if (cells.bad > 0) add_problem(r, std::to_string(cells.bad) + " cells held no valid number and were left empty.");
    if (unknown > 0)
        add_problem(r, std::to_string(unknown) + " cells named tiles this tileset does not have and were left empty.");
    if (flipped > 0)
        add_problem(r, std::to_string(flipped) + " cells were turned for a hexagonal map; they show without that turn.");
    if (read_count < expected)
        add_problem(r, what + " ends after " + std::to_string(read_count) + " of " + std::to_string(expected) +
                           " cells.");
    else if (read_count > expected)
        add_problem(r, what + " holds more cells than its size; the extra ones were left out.");
    return true;
}

// The map's tile layers (those at its top level; layers in groups stay in
// the file as they are).
void read_layers(const XMLElement* root, const XMLElement* tileset, Map_Editor& into, int tile_count,
                 Map_File::Reading& r) {
    const int first_gid = attribute(tileset, "firstgid", 1);
    int next_id = std::max(attribute(root, "nextlayerid", 1), highest_id(root) + 1);
    std::vector<const XMLElement*> elements;
    std::vector<std::string> ids;
    for (const XMLElement* l = root->FirstChildElement("layer"); l; l = l->NextSiblingElement("layer")) {
        elements.push_back(l);
        ids.push_back(l->Attribute("id") ? l->Attribute("id") : "");
    }
    const std::vector<int> keys = gid::layer_keys(ids);
    std::vector<Map_Layer> layers;
    std::vector<int> known;
    if (attribute(root, "infinite", 0) != 0) {
        add_problem(r, "It is an infinite map, kept in chunks; this editor reads maps of a fixed size only, so no cell was read.");
        elements.clear();
    }
    for (size_t i = 0; i < elements.size(); ++i) {
        const char* name = elements[i]->Attribute("name");
        Map_Layer layer(name ? name : "", into.map().columns(), into.map().rows(), keys[i] > 0 ? keys[i] : 0);
        const std::string what =
            elements.size() == 1 ? std::string("Its tile layer") : "Its tile layer \"" + layer.name + "\"";
        if (int(layers.size()) >= Map_Editor::most_layers) {
            add_problem(r, what + " is past the " + std::to_string(Map_Editor::most_layers) +
                               " layers this editor shows; it stays in the file as it is.");
            continue;
        }
        if (!read_layer(root, elements[i], first_gid, tile_count, what, layer.cells, r)) continue;
        if (layer.id == 0) layer.id = next_id++;
        layer.visible = attribute(elements[i], "visible", 1) != 0;
        layer.file_key = keys[i];
        known.push_back(keys[i]);
        layers.push_back(std::move(layer));
    }
    into.place_layers(std::move(layers), std::move(known), next_id);
}
}  // namespace

Map_File::Reading Map_File::read(const std::string& path, Map_Editor& into, uint32_t tile_width,
                                 uint32_t tile_height, int tile_count) {
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

    // What is no tile layer (objects, image and group layers, further
    // tilesets, properties) is kept as the file has it when the map is
    // written back, so it is no loss to leave it aside.
    const XMLElement* tileset = root->FirstChildElement("tileset");
    read_layers(root, tileset, into, tile_count, r);
    Terrain_Set terrain;
    std::string terrain_problems;
    if (terrain_file::read(tileset, tile_count, terrain, terrain_problems)) into.place_terrain(terrain);
    if (!terrain_problems.empty()) add_problem(r, terrain_problems);
    r.whole = r.problems.empty();
    return r;
}
