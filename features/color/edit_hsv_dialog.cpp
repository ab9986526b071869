#include "features/color/edit_hsv_dialog.h"

#include "features/color/adjust_items.h"
#include "model/paint/adjust.h"
#include "ui/button_dialog_item.h"
#include "ui/dialog.h"
#include "ui/dialog_rows.h"
#include "ui/text_dialog.h"
#include "ui/textlist_dialog_item.h"

namespace {
// The last choice, offered again next time.
int last_mode = adjust::hue;
int last_position = adjust::position_of(adjust::hue, 0);
}  // namespace

Edit_HSV_Dialog::Edit_HSV_Dialog(Tile& tile) : tile(tile), frame(std::make_unique<Dialog>("Edit HSV")) {
    auto mode_row = make_list_row(mode_id, last_mode, adjust::mode_list);
    const auto& mode_item = static_cast<const Textlist_Dialog_Item&>(*mode_row->item_with(mode_id + 1));
    auto slider_item = std::make_unique<Adjust_Slider_Item>(slider_id, mode_item, last_mode, last_position);
    slider = slider_item.get();

    auto preview_row = std::make_unique<Dialog_Row>();
    preview_row->add(std::make_unique<Adjust_Preview_Item>(tile, *slider));
    frame->add_row(std::move(preview_row));
    frame->add_row(std::move(mode_row));
    auto label_row = std::make_unique<Dialog_Row>();
    label_row->add(std::make_unique<Adjust_Label_Item>(*slider));
    frame->add_row(std::move(label_row));
    auto slider_row = std::make_unique<Dialog_Row>();
    slider_row->add(std::make_unique<Button_Dialog_Item>(slider_id - 1, slider_id, button_less));
    slider_row->add(std::move(slider_item));
    slider_row->add(std::make_unique<Button_Dialog_Item>(slider_id + 1, slider_id, button_more));
    frame->add_row(std::move(slider_row));
    frame->finish(true);
}

Edit_HSV_Dialog::~Edit_HSV_Dialog() = default;

bool Edit_HSV_Dialog::run() {
    const bool accepted = frame->run();
    slider->sync();
    last_mode = slider->mode();
    last_position = slider->get_value();
    if (!accepted) return false;
    adjust::apply_to_tile(tile, slider->mode(), slider->amount());
    tile.update_texture();
    return true;
}

bool edit_hsv(Tile& tile) {
    Edit_HSV_Dialog dialog(tile);
    return dialog.run();
}
