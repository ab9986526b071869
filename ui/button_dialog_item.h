#pragma once

#include "ui/dialog_item.h"

// The fixed table of buttons. A row with sprite -1 is a drawn text button of
// the given size; a sprite button takes its sprite's size (width 0, height 0).
struct Button_Record {
    const char* label;
    int32_t sprite;
    int32_t width;
    int32_t height;
    int32_t type;
};

enum Button_Kind : int32_t {
    button_ok = 0,
    button_cancel = 1,
    button_less = 2,
    button_more = 3,
    button_radio_uncheck = 4,
    button_radio_check = 5,
    button_red = 6,
    button_green = 7,
    button_blue = 8,
    button_alpha = 9,
    button_saturation = 10,
    button_lightness = 11,
    button_middle = 12,
    button_left = 13,
    button_right = 14,
    button_kind_count = 15,
};

extern const Button_Record button_table[button_kind_count];

// A push button or sprite button: a press inside gives {its type, host}.
class Button_Dialog_Item : public Dialog_Item {
public:
    Button_Dialog_Item(uint32_t id, uint32_t host, int32_t kind);

    Dialog_Event hit(int x, int y) override;
    // Sprite buttons sit 2 pixels lower than the text they line up with;
    // the text buttons of a button bar get no offset.
    void set_position(int x, int y) override;
    void draw() override;
    void save(Token_Stream& stream) const override;
    // The kind read is not taken: a push button stays the button it was built as.
    void load(Token_Stream& stream) override;

    int32_t kind;

protected:
    const Button_Record& record() const { return button_table[kind]; }
};
