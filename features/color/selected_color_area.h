#pragma once

#include <memory>

#include "features/color/swatch.h"
#include "ui/button_dialog_item.h"
#include "ui/pane.h"

// The colour being edited in the colour editor: the edited colour in the
// upper field, the colour it is compared with (the one under the pointer)
// in the lower one, and a line per channel with "Less", the value and
// "More". A press on a value asks for a new number.
class Selected_Color_Area : public Pane {
public:
    static constexpr int row_height = 21;
    static constexpr int field_width = 34;
    // How far one "Less" or "More" press moves a channel.
    static constexpr int step = 1;

    Selected_Color_Area(int x, int y, int width, int body_height);
    ~Selected_Color_Area() override;

    void draw() override;
    void set_color(Color c) { edited = c; }
    Color color() const { return edited; }
    void set_compare(Color c) { compared = c; }
    // True when the press changed the colour.
    bool press(int x, int y);

    Rectangle button_area(int index) const;  // 0..3 "Less", 4..7 "More" by channel row
    Rectangle value_area(int row) const;

private:
    uint8_t& channel(int row);

    Color edited;
    Color compared;
    Swatch swatch;
    std::unique_ptr<Button_Dialog_Item> buttons[8];
};
