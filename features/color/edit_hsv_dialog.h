#pragma once

#include <memory>

class Adjust_Slider_Item;
class Dialog;
class Tile;

// The "Edit HSV" dialog: the tile as the chosen adjustment would leave it,
// the adjustment's choice and its amount slider. On "Ok" the adjustment is
// applied to the tile; the mode and amount are kept for the next time.
class Edit_HSV_Dialog {
public:
    static constexpr uint32_t mode_id = 30;
    static constexpr uint32_t slider_id = 41;

    explicit Edit_HSV_Dialog(Tile& tile);
    ~Edit_HSV_Dialog();
    Edit_HSV_Dialog(const Edit_HSV_Dialog&) = delete;
    Edit_HSV_Dialog& operator=(const Edit_HSV_Dialog&) = delete;

    // True when accepted and the tile was changed.
    bool run();
    Dialog& dialog() { return *frame; }

private:
    Tile& tile;
    std::unique_ptr<Dialog> frame;
    Adjust_Slider_Item* slider = nullptr;
};

bool edit_hsv(Tile& tile);
