#pragma once

#include <memory>
#include <vector>

#include "ui/button_dialog_item.h"

class Radiobutton_Dialog_Item;

// Radio buttons that exclude each other: checking one unchecks the rest.
class Radio_Group {
public:
    void join(Radiobutton_Dialog_Item* item) { members.push_back(item); }
    void leave(Radiobutton_Dialog_Item* item);
    void check_only(Radiobutton_Dialog_Item* item);

private:
    std::vector<Radiobutton_Dialog_Item*> members;
};

// A radio button; checked when its kind is "Radio check". On its own it is a
// tick box that every press toggles. In a group a press on an unchecked
// button checks it and unchecks the others, and a press on the checked one
// is refused, so a group always keeps exactly one choice.
class Radiobutton_Dialog_Item : public Button_Dialog_Item {
public:
    Radiobutton_Dialog_Item(uint32_t id, uint32_t host, bool checked,
                            std::shared_ptr<Radio_Group> group = nullptr);
    ~Radiobutton_Dialog_Item() override;

    int32_t get_value() const override { return kind == button_radio_check ? 1 : 0; }
    // Inside and accepted: {Radio, -1}, the change already made.
    Dialog_Event hit(int x, int y) override;
    void begin() override;
    // Restores the check the button had when the dialog opened.
    void cancel() override;
    // Anything but "Radio check" reads as unchecked.
    void load(Token_Stream& stream) override;

    bool checked() const { return kind == button_radio_check; }
    void set_checked(bool on) { kind = on ? button_radio_check : button_radio_uncheck; }

private:
    std::shared_ptr<Radio_Group> group;
};
