#include "ui/dialog_row.h"

#include <algorithm>

Dialog_Item& Dialog_Row::add(std::unique_ptr<Dialog_Item> item) {
    list.push_back(std::move(item));
    return *list.back();
}

void Dialog_Row::layout(int x, int y) {
    area.x = x;
    area.y = y;
    int width = 0;
    int height = 0;
    for (const auto& item : list) {
        item->set_position(x, y);
        item->update();
        x += item->area.width + gap;
        width += item->area.width;
        height = std::max(height, item->area.height);
    }
    if (!list.empty()) width += gap * int(list.size() - 1);
    area.width = width;
    area.height = height;
}

void Dialog_Row::layout_as_button_bar(const Rectangle& rect) {
    area = Rectangle{rect.x, rect.y + rect.height - bar_offset, rect.width, bar_height};
    if (list.empty()) return;
    Dialog_Item& first = *list[0];
    const int y = rect.y + rect.height - first.area.height - gap;
    if (list.size() == 1) {
        first.set_position(rect.x + (rect.width - first.area.width) / 2, y);
        return;
    }
    first.set_position(rect.x + gap, y);
    Dialog_Item& second = *list[1];
    second.set_position(rect.x + rect.width - second.area.width - gap, y);
}

void Dialog_Row::draw_all() {
    for (const auto& item : list) item->draw();
}

void Dialog_Row::begin_all() {
    for (const auto& item : list) item->begin();
}

void Dialog_Row::cancel_all() {
    for (const auto& item : list) item->cancel();
}

void Dialog_Row::set_writer(Text_Writer* writer) {
    for (const auto& item : list) item->set_writer(writer);
}

int32_t Dialog_Row::value_of(uint32_t id) const {
    const Dialog_Item* item = item_with(id);
    return item ? item->get_value() : -1;
}

Dialog_Item* Dialog_Row::item_with(uint32_t id) const {
    for (const auto& item : list)
        if (item->id == id) return item.get();
    return nullptr;
}

Dialog_Event Dialog_Row::hit(int x, int y) {
    for (const auto& item : list) {
        const Dialog_Event event = item->hit(x, y);
        if (event.type != item_unknown) return event;
    }
    return Dialog_Event{};
}

void Dialog_Row::save_all(Token_Stream& stream) const {
    for (const auto& item : list) item->save(stream);
}

void Dialog_Row::load_all(Token_Stream& stream) {
    for (const auto& item : list) item->load(stream);
}
