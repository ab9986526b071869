#include "ui/number_dialog_item.h"

#include <cstdio>

#include "ui/number_prompt.h"
#include "platform/text_writer.h"

Number_Dialog_Item::Number_Dialog_Item(uint32_t id, uint32_t host, int32_t value, int32_t min,
                                       int32_t max)
    : Dialog_Item(id, host), number(value, min, max) {
    area.height = writer->line_height();
    update();
}

void Number_Dialog_Item::update() {
    char digits[16];
    std::snprintf(digits, sizeof digits, "%d", number.value);
    area.width = writer->measure(digits);
}

Dialog_Event Number_Dialog_Item::hit(int x, int y) {
    if (!area.contains(x, y)) return Dialog_Event{};
    const std::optional<int32_t> entered =
        Number_Prompt::ask(area.x, area.y, number.value, number.min, number.max);
    if (!entered || *entered == number.value) return Dialog_Event{};
    number.value = *entered;
    return Dialog_Event{item_self, -1};
}

void Number_Dialog_Item::receive(int32_t type) {
    if (type == item_increase)
        number.set(number.value + 1);
    else if (type == item_decrease)
        number.set(number.value - 1);
}

void Number_Dialog_Item::draw() {
    writer->set_cursor(area.x, area.y);
    writer->printf("%d", number.value);
}
