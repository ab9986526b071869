#include "model/map/map_file.h"

#include <tinyxml2.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "model/core/safe_file.h"
#include "model/map/gid.h"
#include "model/map/layer_data.h"
#include "model/map/map_editor.h"
#include "model/map/map_text.h"
#include "model/map/terrain_file.h"

namespace {
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

}  // namespace

std::string Map_File::map_path(const std::string& tileset_path) { return beside(tileset_path, ".tmx"); }
std::string Map_File::sheet_path(const std::string& tileset_path) { return beside(tileset_path, ".bmp"); }

namespace {
using namespace tinyxml2;

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

// The layer's cells as global tile ids, row by row, over the area given.
std::vector<uint32_t> gids_of(const Tile_Map& map, int columns, int rows, int first_gid) {
    std::vector<uint32_t> gids;
    gids.reserve(size_t(columns) * size_t(rows));
    for (int y = 0; y < rows; ++y)
        for (int x = 0; x < columns; ++x) {
            const int tile = map.at(x, y);
            gids.push_back(tile == Tile_Map::empty ? 0 : uint32_t(tile + first_gid) | gid::flags_of(map.turn_at(x, y)));
        }
    return gids;
}

// The ids every kind of layer in the map holds, groups and their layers included.
void used_ids(const XMLElement* parent, std::vector<int>& ids) {
    for (const XMLElement* e = parent->FirstChildElement(); e; e = e->NextSiblingElement()) {
        const std::string name = e->Name();
        if (name != "layer" && name != "objectgroup" && name != "imagelayer" && name != "group") continue;
        int id = 0;
        if (e->QueryIntAttribute("id", &id) == XML_SUCCESS) ids.push_back(id);
        if (name == "group") used_ids(e, ids);
    }
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

// What a layer becomes in the file.
struct Written_Layer {
    int id = 0;
    int columns = 0;
    int rows = 0;
    std::vector<uint32_t> gids;
};

// The area the layer must cover: its own as the tag gives it, grown to hold
// every placed cell.
void layer_size(const std::string& tag, const Tile_Map& map, int& columns, int& rows) {
    columns = std::atoi(map_text::attribute(tag, "width").c_str());
    rows = std::atoi(map_text::attribute(tag, "height").c_str());
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

std::string csv_data(const Written_Layer& w) {
    return "<data encoding=\"csv\">" + layer_data::encode(w.gids, w.columns, layer_data::Encoding::csv) + "</data>";
}

// A new layer's element.
std::string new_layer_element(const Map_Layer& layer, const Written_Layer& w) {
    return "<layer id=\"" + std::to_string(w.id) + "\" name=\"" + map_text::escaped(layer.name) + "\" width=\"" +
           std::to_string(w.columns) + "\" height=\"" + std::to_string(w.rows) + "\"" +
           (layer.visible ? "" : " visible=\"0\"") + ">\n  " + csv_data(w) + "\n </layer>";
}

// The element the layer was read from with its id, name, visibility, size
// and cells replaced; its other attributes, properties and layout stay, and
// its cells keep the encoding they were read in.
std::string edited_layer_element(const std::string& element, const Map_Layer& layer, Written_Layer& w,
                                 int first_gid) {
    const map_text::Element e = map_text::child(element, 0, element.size(), "layer");
    const std::string tag = element.substr(e.tag_begin, e.tag_end - e.tag_begin);
    layer_size(tag, layer.cells, w.columns, w.rows);
    w.gids = gids_of(layer.cells, w.columns, w.rows, first_gid);
    std::string new_tag = tag;
    auto set = [&](const char* name, const std::string& value) {
        if (map_text::attribute(new_tag, name) != value) new_tag = map_text::with_attribute(new_tag, name, value);
    };
    set("id", std::to_string(w.id));
    set("name", map_text::escaped(layer.name));
    set("width", std::to_string(w.columns));
    set("height", std::to_string(w.rows));
    if (!layer.visible)
        set("visible", "0");
    else if (!map_text::attribute(new_tag, "visible").empty())
        new_tag = map_text::without_attribute(new_tag, "visible");
    if (e.empty) return new_tag.substr(0, new_tag.rfind("/>")) + ">" + csv_data(w) + "</layer>";
    std::string out = element;
    const map_text::Element cells = map_text::child(element, e.tag_end, e.content_end, "data");
    if (!cells.found) {
        out.insert(e.content_end, csv_data(w));
    } else {
        const std::string data_tag = element.substr(cells.tag_begin, cells.tag_end - cells.tag_begin);
        layer_data::Encoding kept = layer_data::Encoding::csv;
        if (!cells.empty && layer_data::encoding_of(map_text::attribute(data_tag, "encoding"),
                                                    map_text::attribute(data_tag, "compression"), kept))
            out.replace(cells.tag_end, cells.content_end - cells.tag_end, layer_data::encode(w.gids, w.columns, kept));
        else
            out.replace(cells.tag_begin, cells.end - cells.tag_begin, csv_data(w));
    }
    return out.replace(e.tag_begin, tag.size(), new_tag);
}

// Whether every layer's cells read back from the text as written.
bool reads_back(const std::string& text, const std::vector<Written_Layer>& written) {
    XMLDocument check;
    if (check.Parse(text.c_str(), text.size()) != XML_SUCCESS || !check.RootElement()) return false;
    for (const Written_Layer& w : written) {
        const XMLElement* layer = check.RootElement()->FirstChildElement("layer");
        while (layer && layer->IntAttribute("id", -1) != w.id) layer = layer->NextSiblingElement("layer");
        // Read as a reader sizes it: a tag the text edit misread shows here.
        const XMLElement* root = check.RootElement();
        if (!layer || layer->IntAttribute("width", root->IntAttribute("width", 0)) != w.columns ||
            layer->IntAttribute("height", root->IntAttribute("height", 0)) != w.rows)
            return false;
        const XMLElement* data = layer->FirstChildElement("data");
        const char* cells = data ? data->GetText() : nullptr;
        layer_data::Encoding encoding;
        if (!cells || !layer_data::encoding_of(data->Attribute("encoding") ? data->Attribute("encoding") : "",
                                               data->Attribute("compression") ? data->Attribute("compression") : "",
                                               encoding))
            return false;
        const layer_data::Decoded back = layer_data::decode(cells, encoding, w.gids.size());
        if (!back.failure.empty() || back.bad > 0 || back.cells != w.gids) return false;
    }
    return true;
}

// Where a removed element's text starts: the blank line it stood on goes too.
size_t line_start(const std::string& text, size_t at) {
    size_t start = at;
    while (start > 0 && (text[start - 1] == ' ' || text[start - 1] == '\t')) --start;
    return start > 0 && text[start - 1] == '\n' ? start - 1 : at;
}

// The source with only the map's tag, its tile layers and the terrain set
// (when changed) edited: the map's layers, in its order, fill the places of
// the layers it read (removed ones included), places left over go, layers
// left over follow the last; layers it did not read stay untouched. Empty
// when the source is no map this can edit. The ids the layers got are put
// in ids.
std::string edited(const std::string& source, const Map_Editor& map, uint32_t tile_width, uint32_t tile_height,
                   const std::string& sheet, std::vector<int>& ids) {
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

    // The layers where the text has them, and their ids as the reader saw
    // them: a file on which the two disagree is no file to edit.
    std::vector<map_text::Element> elements;
    for (size_t from = root.tag_end;;) {
        const map_text::Element e = map_text::child(source, from, root.content_end, "layer");
        if (!e.found) break;
        elements.push_back(e);
        from = e.end;
    }
    std::vector<std::string> file_ids;
    for (const XMLElement* l = root_element->FirstChildElement("layer"); l; l = l->NextSiblingElement("layer"))
        file_ids.push_back(l->Attribute("id") ? l->Attribute("id") : "");
    if (file_ids.size() != elements.size()) return {};
    for (size_t j = 0; j < elements.size(); ++j)
        if (map_text::attribute(source.substr(elements[j].tag_begin, elements[j].tag_end - elements[j].tag_begin), "id") !=
            file_ids[j])
            return {};
    const std::vector<int> keys = gid::layer_keys(file_ids);
    // The element each layer was read from, if the file still has it.
    const int count = map.layer_count();
    std::vector<int> source_of(size_t(count), -1);
    std::vector<bool> claimed(elements.size(), false);
    for (int i = 0; i < count; ++i)
        for (size_t j = 0; j < elements.size(); ++j)
            if (map.layer(i).file_key != 0 && keys[j] == map.layer(i).file_key && !claimed[j]) {
                source_of[size_t(i)] = int(j);
                claimed[j] = true;
                break;
            }
    // Ids: a layer read keeps the file's; any other takes its own unless the
    // file has it, then the next free one.
    std::vector<int> taken;
    used_ids(root_element, taken);
    int next = std::max(root_element->IntAttribute("nextlayerid", 1), map.next_layer_id());
    for (int t : taken) next = std::max(next, t + 1);
    ids.assign(size_t(count), 0);
    for (int i = 0; i < count; ++i)
        if (source_of[size_t(i)] >= 0 && keys[size_t(source_of[size_t(i)])] > 0) ids[size_t(i)] = keys[size_t(source_of[size_t(i)])];
    for (int i = 0; i < count; ++i) {
        if (ids[size_t(i)] != 0) continue;
        const int own = map.layer(i).id;
        const bool free = own > 0 && std::find(taken.begin(), taken.end(), own) == taken.end() &&
                          std::find(ids.begin(), ids.end(), own) == ids.end();
        ids[size_t(i)] = free ? own : next++;
        next = std::max(next, ids[size_t(i)] + 1);
    }

    std::vector<Edit> edits;
    std::vector<Written_Layer> written;
    written.resize(size_t(count));
    std::vector<std::string> texts;
    for (int i = 0; i < count; ++i) {
        Written_Layer& w = written[size_t(i)];
        w.id = ids[size_t(i)];
        const int from = source_of[size_t(i)];
        if (from >= 0) {
            const map_text::Element& e = elements[size_t(from)];
            texts.push_back(edited_layer_element(source.substr(e.tag_begin, e.end - e.tag_begin), map.layer(i), w, first_gid));
        } else {
            w.columns = map.layer(i).cells.columns();
            w.rows = map.layer(i).cells.rows();
            w.gids = gids_of(map.layer(i).cells, w.columns, w.rows, first_gid);
            texts.push_back(new_layer_element(map.layer(i), w));
        }
    }
    // The places of the layers this map read (removed ones too), filled in
    // the map's order; places left over go, layers left over follow.
    std::vector<size_t> slots;
    const std::vector<int>& known = map.known_file_keys();
    for (size_t j = 0; j < elements.size(); ++j)
        if (claimed[j] || std::find(known.begin(), known.end(), keys[j]) != known.end()) slots.push_back(j);
    for (size_t k = texts.size(); k < slots.size(); ++k) {
        const size_t start = line_start(source, elements[slots[k]].tag_begin);
        edits.push_back({start, elements[slots[k]].end - start, ""});
    }
    if (slots.size() > texts.size()) slots.resize(texts.size());
    std::string after_slots;
    for (size_t i = 0; i < texts.size(); ++i) {
        if (i < slots.size()) {
            const map_text::Element& e = elements[slots[i]];
            edits.push_back({e.tag_begin, e.end - e.tag_begin, texts[i]});
        } else {
            after_slots += "\n " + texts[i];
        }
    }
    if (!after_slots.empty()) {
        if (!slots.empty())
            edits.push_back({elements[slots.back()].end, 0, after_slots});
        else if (!elements.empty())
            edits.push_back({elements.back().end, 0, after_slots});
        else
            edits.push_back({root.content_end, 0, after_slots.substr(1) + "\n"});
    }

    std::string root_tag = source.substr(root.tag_begin, root.tag_end - root.tag_begin);
    if (root_element->IntAttribute("nextlayerid", 0) < next)
        root_tag = map_text::with_attribute(root_tag, "nextlayerid", std::to_string(next));
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
    if (tileset.found) {
        Terrain_Set in_file;
        std::string ignored;
        const bool had = terrain_file::read(root_element->FirstChildElement("tileset"), 1 << 30, in_file, ignored);
        if (had ? !(in_file == map.terrain()) : !map.terrain().is_empty())
            edit_terrain(source, tileset, map.terrain(), edits);
    }
    // A loader of one game engine refuses maps without it.
    if (map_text::attribute(root_tag, "tiledversion").empty())
        root_tag = map_text::with_attribute(root_tag, "tiledversion", Map_File::tiled_version);
    int columns = 0, rows = 0;
    for (const Written_Layer& l : written) columns = std::max(columns, l.columns), rows = std::max(rows, l.rows);
    const int map_columns = std::atoi(map_text::attribute(root_tag, "width").c_str());
    const int map_rows = std::atoi(map_text::attribute(root_tag, "height").c_str());
    if (columns > map_columns) root_tag = map_text::with_attribute(root_tag, "width", std::to_string(columns));
    if (rows > map_rows) root_tag = map_text::with_attribute(root_tag, "height", std::to_string(rows));
    // Its cells are all in layers of a fixed size now.
    if (!map_text::attribute(root_tag, "infinite").empty() && map_text::attribute(root_tag, "infinite") != "0")
        root_tag = map_text::with_attribute(root_tag, "infinite", "0");
    edits.push_back({root.tag_begin, root.tag_end - root.tag_begin, root_tag});

    std::string out = source;
    // From the end, so each edit's place still holds; of two at one place the
    // longer (a removal) goes first, so a text added there stays.
    std::sort(edits.begin(), edits.end(),
              [](const Edit& a, const Edit& b) { return a.at != b.at ? a.at > b.at : a.length > b.length; });
    for (const Edit& e : edits) out.replace(e.at, e.length, e.text);
    // A file odd enough to defeat the edit (it is damaged, and the user agreed
    // to replace it) is written anew rather than written broken.
    return reads_back(out, written) ? out : std::string();
}

std::string new_file(const Map_Editor& map, uint32_t tile_width, uint32_t tile_height, const std::string& path,
                     std::vector<int>& ids) {
    XMLDocument doc;
    XMLElement* root = new_map(doc, file_name(Map_File::sheet_path(path)), tile_width, tile_height);
    if (!map.terrain().is_empty()) {
        XMLDocument piece;
        piece.Parse(("<wangsets>" + terrain_file::wangset_text(map.terrain(), "") + "</wangsets>").c_str());
        if (piece.RootElement()) root->FirstChildElement("tileset")->InsertEndChild(piece.RootElement()->DeepClone(&doc));
    }
    ids.clear();
    int next = 1;
    for (int i = 0; i < map.layer_count(); ++i) {
        const Map_Layer& l = map.layer(i);
        XMLElement* layer = root->InsertNewChildElement("layer");
        layer->SetAttribute("id", l.id);
        layer->SetAttribute("name", l.name.c_str());
        layer->SetAttribute("width", l.cells.columns());
        layer->SetAttribute("height", l.cells.rows());
        if (!l.visible) layer->SetAttribute("visible", 0);
        XMLElement* data = layer->InsertNewChildElement("data");
        data->SetAttribute("encoding", "csv");
        data->SetText(layer_data::encode(gids_of(l.cells, l.cells.columns(), l.cells.rows(), 1), l.cells.columns(),
                                         layer_data::Encoding::csv)
                          .c_str());
        ids.push_back(l.id);
        next = std::max(next, l.id + 1);
    }
    root->SetAttribute("width", map.map().columns());
    root->SetAttribute("height", map.map().rows());
    root->SetAttribute("nextlayerid", next);
    XMLPrinter printer;
    doc.Print(&printer);
    return std::string(printer.CStr(), size_t(printer.CStrSize() > 0 ? printer.CStrSize() - 1 : 0));
}
}  // namespace

bool Map_File::write(const Map_Editor& map, uint32_t tile_width, uint32_t tile_height, const std::string& path,
                     const std::string& source, std::vector<int>* layer_ids) {
    std::vector<int> ids;
    std::string text =
        source.empty() ? std::string() : edited(source, map, tile_width, tile_height, file_name(sheet_path(path)), ids);
    if (text.empty()) text = new_file(map, tile_width, tile_height, path, ids);
    // A derived name: never written through a link there.
    const bool written = safe_file::written(
        path, [&](std::FILE* file) { return std::fwrite(text.data(), 1, text.size(), file) == text.size(); },
        safe_file::Links::refuse);
    if (written && layer_ids) *layer_ids = ids;
    return written;
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
