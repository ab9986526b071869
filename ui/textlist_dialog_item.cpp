#include "ui/textlist_dialog_item.h"

#include <algorithm>

#include "platform/text_writer.h"

namespace {
// Entries up to the "$"; a text without one ends where the text ends.
std::vector<std::string> split_list(const char* text) {
    std::vector<std::string> entries;
    std::string entry;
    for (const char* c = text; *c && *c != '$'; ++c) {
        if (*c == ',') {
            entries.push_back(entry);
            entry.clear();
        } else {
            entry += *c;
        }
    }
    entries.push_back(entry);
    return entries;
}
}  // namespace

Textlist_Dialog_Item::Textlist_Dialog_Item(uint32_t id, uint32_t host, int32_t value,
                                           const char* list_text)
    : Dialog_Item(id, host),
      list(std::make_unique<std::vector<std::string>>(split_list(list_text))) {
    choice = Range(value, 0, int32_t(list->size()) - 1);
    area.height = writer->line_height();
    update();
}

void Textlist_Dialog_Item::update() {
    int widest = 0;
    for (const std::string& entry : *list) widest = std::max(widest, writer->measure(entry.c_str()));
    area.width = widest;
}

void Textlist_Dialog_Item::receive(int32_t type) {
    if (type == item_increase)
        choice.set(choice.value + 1);
    else if (type == item_decrease)
        choice.set(choice.value - 1);
    else
        return;
    update();
}

const char* Textlist_Dialog_Item::current() const {
    if (choice.value < 0 || size_t(choice.value) >= list->size()) return nullptr;
    return (*list)[size_t(choice.value)].c_str();
}

void Textlist_Dialog_Item::draw() {
    if (const char* text = current()) writer->write_at(area.x, area.y, text);
}
