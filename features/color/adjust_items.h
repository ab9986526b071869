#pragma once

#include <memory>

#include "model/tile/tile.h"
#include "ui/dialog_item.h"

class Textlist_Dialog_Item;

// The amount slider of "Edit HSV": a track with one pixel per position of
// the chosen mode's scale. A press on the track moves the knob there;
// "Less" and "More" step it by one. A new mode puts the knob where the
// tile stays unchanged.
class Adjust_Slider_Item : public Dialog_Item {
public:
    Adjust_Slider_Item(uint32_t id, const Textlist_Dialog_Item& mode_item, int mode, int position);

    int32_t get_value() const override { return position; }
    Dialog_Event hit(int x, int y) override;
    void receive(int32_t type) override;
    void draw() override;
    void begin() override { state = uint32_t(position); }
    void cancel() override { position = int(state); }

    // Follows the mode choice; called before every use.
    void sync();
    int mode() const { return shown_mode; }
    int amount() const;

private:
    const Textlist_Dialog_Item& modes;
    int shown_mode;
    int position;
};

// The slider's label: the mode's name, its amount and scaled position.
class Adjust_Label_Item : public Dialog_Item {
public:
    explicit Adjust_Label_Item(Adjust_Slider_Item& slider);
    void draw() override;

private:
    Adjust_Slider_Item& slider;
    char text[96] = {};
};

// The tile as the adjustment would leave it, magnified.
class Adjust_Preview_Item : public Dialog_Item {
public:
    static constexpr int box = 128;

    Adjust_Preview_Item(const Tile& source, Adjust_Slider_Item& slider);
    void draw() override;

private:
    const Tile& source;
    Adjust_Slider_Item& slider;
    std::unique_ptr<Tile> preview;
    int made_mode = -1;
    int made_amount = 0;
};
