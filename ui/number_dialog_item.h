#pragma once

#include "ui/dialog_item.h"
#include "ui/range.h"

// A decimal number with bounds. "More" and "Less" buttons step it with
// wrap-around; a press on the number itself opens the number entry prompt.
class Number_Dialog_Item : public Dialog_Item {
public:
    Number_Dialog_Item(uint32_t id, uint32_t host, int32_t value, int32_t min, int32_t max);

    int32_t get_value() const override { return number.value; }
    void update() override;
    // {Self, -1} when the prompt changed the number, else {Unknown, -1}.
    Dialog_Event hit(int x, int y) override;
    void receive(int32_t type) override;
    void draw() override;
    void begin() override { state = uint32_t(number.value); }
    void cancel() override { number.value = int32_t(state); }
    void save(Token_Stream& stream) const override { number.save(stream); }
    void load(Token_Stream& stream) override { number.load_value(stream); }

    Range number;
};
