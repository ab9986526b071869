#include "ui/radiobutton_dialog_item.h"

#include <algorithm>

void Radio_Group::leave(Radiobutton_Dialog_Item* item) { std::erase(members, item); }

void Radio_Group::check_only(Radiobutton_Dialog_Item* item) {
    for (Radiobutton_Dialog_Item* member : members) member->set_checked(member == item);
}

Radiobutton_Dialog_Item::Radiobutton_Dialog_Item(uint32_t id, uint32_t host, bool checked,
                                                 std::shared_ptr<Radio_Group> group)
    : Button_Dialog_Item(id, host, checked ? button_radio_check : button_radio_uncheck),
      group(std::move(group)) {
    if (this->group) this->group->join(this);
}

Radiobutton_Dialog_Item::~Radiobutton_Dialog_Item() {
    if (group) group->leave(this);
}

Dialog_Event Radiobutton_Dialog_Item::hit(int x, int y) {
    if (!area.contains(x, y)) return Dialog_Event{};
    if (!group) {
        set_checked(!checked());
    } else {
        if (checked()) return Dialog_Event{};
        group->check_only(this);
    }
    return Dialog_Event{item_radio, -1};
}

void Radiobutton_Dialog_Item::begin() { state = uint32_t(kind); }

void Radiobutton_Dialog_Item::cancel() { kind = int32_t(state); }

void Radiobutton_Dialog_Item::load(Token_Stream& stream) {
    set_checked(stream.read_number() == button_radio_check);
}
