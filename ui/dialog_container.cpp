#include "ui/dialog_container.h"

#include <algorithm>

Dialog_Row& Dialog_Container::add(std::unique_ptr<Dialog_Row> row) {
    list.push_back(std::move(row));
    return *list.back();
}

Dialog_Event Dialog_Container::hit(int x, int y) {
    for (const auto& row : list)
        if (row->area.contains(x, y)) return row->hit(x, y);
    return Dialog_Event{};
}

Dialog_Item* Dialog_Container::find(uint32_t id) const {
    for (const auto& row : list)
        if (Dialog_Item* item = row->item_with(id)) return item;
    return nullptr;
}

int32_t Dialog_Container::value_of(uint32_t id) const {
    const Dialog_Item* item = find(id);
    return item ? item->get_value() : -1;
}

void Dialog_Container::draw_all() {
    for (const auto& row : list) row->draw_all();
}

void Dialog_Container::begin_all() {
    for (const auto& row : list) row->begin_all();
}

void Dialog_Container::cancel_all() {
    for (const auto& row : list) row->cancel_all();
}

void Dialog_Container::layout(int x, int y, bool all_rows) {
    for (size_t i = 0; i < list.size(); ++i) {
        Dialog_Row& row = *list[i];
        if (i == 0 && !all_rows)
            row.layout(row.area.x, row.area.y);
        else
            row.layout(x, y);
        y = row.area.y + row.area.height;
    }
}

void Dialog_Container::save(Token_Stream& stream) const {
    stream.write_number(int32_t(list.size()));
    for (const auto& row : list) row->save_all(stream);
}

void Dialog_Container::load(Token_Stream& stream) {
    stream.read_number();
    for (const auto& row : list) row->load_all(stream);
}

int Dialog_Container::width() const {
    int widest = 0;
    for (const auto& row : list) widest = std::max(widest, row->area.width);
    return widest;
}

int Dialog_Container::height() const {
    int total = 0;
    for (const auto& row : list) total += row->area.height;
    return total;
}
