// The map's list of layers: chosen, added, removed, renamed, moved, shown;
// placed from a map file or another map.
#include <algorithm>
#include <string>
#include <utility>

#include "model/map/map_editor.h"

void Map_Editor::choose_layer(int index) {
    if (index < 0 || index >= layer_count() || index == current) return;
    end_stroke();
    current = index;
    ++changes;
}

bool Map_Editor::add_layer() {
    if (layer_count() >= most_layers) return false;
    end_stroke();
    // "Layer 2", "Layer 3"...: the first number no layer is named with.
    std::string name;
    for (int n = 2; name.empty(); ++n) {
        const std::string candidate = "Layer " + std::to_string(n);
        if (std::none_of(layer_list.begin(), layer_list.end(), [&](const auto& l) { return l->name == candidate; }))
            name = candidate;
    }
    auto layer = std::make_shared<Map_Layer>(name, live().columns(), live().rows(), next_id++);
    Map_Edit edit;
    edit.change = Map_Edit::Layers::added;
    edit.layer = current + 1;
    edit.kept = layer;
    layer_list.insert(layer_list.begin() + edit.layer, layer);
    current = edit.layer;
    record_layers(std::move(edit));
    return true;
}

bool Map_Editor::remove_layer() {
    if (layer_count() <= 1) return false;
    end_stroke();
    Map_Edit edit;
    edit.change = Map_Edit::Layers::removed;
    edit.layer = current;
    edit.kept = layer_list[size_t(current)];
    layer_list.erase(layer_list.begin() + current);
    current = std::max(current - 1, 0);
    record_layers(std::move(edit));
    return true;
}

bool Map_Editor::rename_layer(int index, const std::string& name) {
    if (index < 0 || index >= layer_count() || name.empty() || layer(index).name == name) return false;
    end_stroke();
    Map_Edit edit;
    edit.change = Map_Edit::Layers::renamed;
    edit.layer = index;
    edit.name_before = layer(index).name;
    edit.name_after = name;
    layer_list[size_t(index)]->name = name;
    current = index;
    record_layers(std::move(edit));
    return true;
}

bool Map_Editor::move_layer(int index, int to) {
    if (index < 0 || index >= layer_count() || to < 0 || to >= layer_count() || index == to) return false;
    end_stroke();
    Map_Edit edit;
    edit.change = Map_Edit::Layers::moved;
    edit.layer = index;
    edit.moved_to = to;
    std::shared_ptr<Map_Layer> moving = layer_list[size_t(index)];
    layer_list.erase(layer_list.begin() + index);
    layer_list.insert(layer_list.begin() + to, std::move(moving));
    current = to;
    record_layers(std::move(edit));
    return true;
}

void Map_Editor::show_layer(int index, bool visible) {
    if (index < 0 || index >= layer_count() || layer(index).visible == visible) return;
    layer_list[size_t(index)]->visible = visible;
    ++changes;
    count_edit();  // the file keeps it
}

void Map_Editor::place_layers(std::vector<Map_Layer> layers, std::vector<int> keys, int next) {
    end_stroke();
    steps.clear();
    const int columns = live().columns(), rows = live().rows();
    next_id = std::max(next, 1);
    layer_list.clear();
    for (Map_Layer& l : layers) {
        if (int(layer_list.size()) >= most_layers) break;
        auto placed = std::make_shared<Map_Layer>(l.name, columns, rows, l.id);
        placed->visible = l.visible;
        placed->file_key = l.file_key;
        for (int y = 0; y < std::min(rows, l.cells.rows()); ++y)
            for (int x = 0; x < std::min(columns, l.cells.columns()); ++x)
                placed->cells.set(x, y, l.cells.at(x, y), l.cells.turn_at(x, y));
        next_id = std::max(next_id, l.id + 1);
        layer_list.push_back(std::move(placed));
    }
    if (layer_list.empty()) layer_list.push_back(std::make_shared<Map_Layer>(first_layer_name, columns, rows, next_id++));
    file_keys = std::move(keys);
    current = 0;
    ++changes;
    count_edit();
}

void Map_Editor::layers_filed(const std::vector<int>& ids) {
    if (ids.size() != layer_list.size()) return;
    file_keys = ids;
    for (size_t i = 0; i < ids.size(); ++i) {
        layer_list[i]->id = layer_list[i]->file_key = ids[i];
        next_id = std::max(next_id, ids[i] + 1);
    }
}

int Map_Editor::take_layers(const Map_Editor& other) {
    int left_out = 0;
    std::vector<Map_Layer> layers;
    for (const auto& l : other.layer_list) {
        layers.push_back(*l);
        const Tile_Map& cells = l->cells;
        for (int y = 0; y < cells.rows(); ++y)
            for (int x = 0; x < cells.columns(); ++x)
                if (cells.at(x, y) != Tile_Map::empty && live().is_outside(x, y)) ++left_out;
    }
    place_layers(std::move(layers), other.file_keys, other.next_id);
    current = std::min(other.current, layer_count() - 1);
    return left_out;
}
