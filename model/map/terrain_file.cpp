#include "model/map/terrain_file.h"

#include <tinyxml2.h>

#include <cstdio>
#include <cstring>
#include <sstream>

#include "model/map/map_text.h"

namespace terrain_file {

namespace {
// The wang id lists eight places clockwise from the top edge; a corner set
// uses the odd ones: top right, bottom right, bottom left, top left.
constexpr int corner_place[4] = {7, 1, 3, 5};  // for top left, top right, bottom right, bottom left

bool parse_color(const char* text, Color& into) {
    if (!text || text[0] != '#') return false;
    const size_t n = std::strlen(text);
    unsigned value = 0;
    if ((n != 7 && n != 9) || std::sscanf(text + 1, "%x", &value) != 1) return false;
    // "#aarrggbb" keeps alpha first; the terrain's colour is drawn opaque.
    into = Color(uint8_t(value >> 16), uint8_t(value >> 8), uint8_t(value));
    return true;
}

void problem(std::string& problems, const std::string& line) {
    if (!problems.empty()) problems += "\r";
    problems += line;
}
}  // namespace

bool read(const tinyxml2::XMLElement* tileset, int tile_count, Terrain_Set& into, std::string& problems) {
    const tinyxml2::XMLElement* sets = tileset ? tileset->FirstChildElement("wangsets") : nullptr;
    const tinyxml2::XMLElement* set = sets ? sets->FirstChildElement("wangset") : nullptr;
    while (set && !(set->Attribute("type") && std::strcmp(set->Attribute("type"), "corner") == 0))
        set = set->NextSiblingElement("wangset");
    if (!set) return false;
    Terrain_Set read_set;
    if (const char* name = set->Attribute("name")) read_set.name = name;
    int colors = 0;
    for (const auto* c = set->FirstChildElement("wangcolor"); c; c = c->NextSiblingElement("wangcolor")) {
        if (++colors > Terrain_Set::most_terrains) continue;
        Terrain_Set::Terrain t{c->Attribute("name") ? c->Attribute("name") : "", Color(128, 128, 128)};
        parse_color(c->Attribute("color"), t.color);
        read_set.terrains.push_back(t);
    }
    if (colors > Terrain_Set::most_terrains)
        problem(problems, "Its terrain set names " + std::to_string(colors) + " terrains; the editor keeps the first " +
                              std::to_string(Terrain_Set::most_terrains) + ".");
    int outside = 0;
    int unknown = 0;
    for (const auto* w = set->FirstChildElement("wangtile"); w; w = w->NextSiblingElement("wangtile")) {
        const int tile = w->IntAttribute("tileid", -1);
        if (tile < 0 || tile >= tile_count) {
            ++outside;
            continue;
        }
        int place[8] = {};
        std::stringstream list(w->Attribute("wangid") ? w->Attribute("wangid") : "");
        std::string item;
        for (int k = 0; k < 8 && std::getline(list, item, ','); ++k) place[k] = std::atoi(item.c_str());
        Terrain_Set::Corners corners{};
        for (int k = 0; k < 4; ++k) {
            const int terrain = place[corner_place[k]];
            if (terrain < 0 || terrain > read_set.terrain_count()) ++unknown;
            else corners[size_t(k)] = uint8_t(terrain);
        }
        read_set.set_corners(tile, corners);
    }
    if (outside > 0)
        problem(problems, std::to_string(outside) + " terrain tiles name tiles this tileset does not have.");
    if (unknown > 0) problem(problems, std::to_string(unknown) + " tile corners name no terrain of the set.");
    into = read_set;
    return true;
}

std::string wangset_text(const Terrain_Set& set, const std::string& indent) {
    std::string text = "<wangset name=\"" + map_text::escaped(set.name) + "\" type=\"corner\" tile=\"-1\">\n";
    for (const Terrain_Set::Terrain& t : set.terrains) {
        char color[8];
        std::snprintf(color, sizeof color, "#%02x%02x%02x", t.color.red, t.color.green, t.color.blue);
        text += indent + " <wangcolor name=\"" + map_text::escaped(t.name) + "\" color=\"" + color +
                "\" tile=\"-1\" probability=\"1\"/>\n";
    }
    for (const auto& [tile, c] : set.tiles()) {
        int place[8] = {};
        for (int k = 0; k < 4; ++k) place[corner_place[k]] = c[size_t(k)];
        std::string id;
        for (int k = 0; k < 8; ++k) {
            if (k) id += ',';
            id += std::to_string(place[k]);
        }
        text += indent + " <wangtile tileid=\"" + std::to_string(tile) + "\" wangid=\"" + id + "\"/>\n";
    }
    return text + indent + "</wangset>";
}

}  // namespace terrain_file
