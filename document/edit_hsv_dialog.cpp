#include "document/edit_hsv_dialog.h"

#include "document/adjust.h"
#include "document/adjust_items.h"
#include "ui/button_dialog_item.h"
#include "ui/dialog.h"
#include "ui/dialog_rows.h"
#include "ui/text_dialog.h"
#include "ui/textlist_dialog_item.h"

namespace {
constexpr uint32_t mode_id = 30;
constexpr uint32_t slider_id = 41;

// The last choice, offered again next time.
int last_mode = adjust::hue;
int last_position = adjust::position_of(adjust::hue, 0);
}  // namespace

bool edit_hsv(Tile& tile) {
    Dialog dialog("Edit HSV");
    auto mode_row = make_list_row(mode_id, last_mode, adjust::mode_list);
    const auto& mode_item = static_cast<const Textlist_Dialog_Item&>(*mode_row->item_with(mode_id + 1));
    auto slider = std::make_unique<Adjust_Slider_Item>(slider_id, mode_item, last_mode, last_position);
    Adjust_Slider_Item& s = *slider;

    auto preview_row = std::make_unique<Dialog_Row>();
    preview_row->add(std::make_unique<Adjust_Preview_Item>(tile, s));
    dialog.add_row(std::move(preview_row));
    dialog.add_row(std::move(mode_row));
    auto label_row = std::make_unique<Dialog_Row>();
    label_row->add(std::make_unique<Adjust_Label_Item>(s));
    dialog.add_row(std::move(label_row));
    auto slider_row = std::make_unique<Dialog_Row>();
    slider_row->add(std::make_unique<Button_Dialog_Item>(slider_id - 1, slider_id, button_less));
    slider_row->add(std::move(slider));
    slider_row->add(std::make_unique<Button_Dialog_Item>(slider_id + 1, slider_id, button_more));
    dialog.add_row(std::move(slider_row));
    dialog.finish(true);

    const bool accepted = dialog.run();
    s.sync();
    last_mode = s.mode();
    last_position = s.get_value();
    if (!accepted) return false;
    adjust::apply_to_tile(tile, s.mode(), s.amount());
    tile.update_texture();
    return true;
}
