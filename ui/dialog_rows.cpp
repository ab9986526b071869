#include "ui/dialog_rows.h"

#include "ui/button_dialog_item.h"
#include "ui/image_dialog_item.h"
#include "ui/number_dialog_item.h"
#include "ui/radiobutton_dialog_item.h"
#include "ui/text_dialog.h"
#include "ui/textlist_dialog_item.h"

std::unique_ptr<Dialog_Row> make_text_row(const char* text) {
    auto row = std::make_unique<Dialog_Row>();
    row->add(std::make_unique<Text_Dialog>(text));
    return row;
}

std::unique_ptr<Dialog_Row> make_image_row(int sprite) {
    auto row = std::make_unique<Dialog_Row>();
    row->add(std::make_unique<Image_Dialog_Item>(sprite));
    return row;
}

std::unique_ptr<Dialog_Row> make_image_row(Texture& texture) {
    auto row = std::make_unique<Dialog_Row>();
    row->add(std::make_unique<Image_Dialog_Item>(texture));
    return row;
}

std::unique_ptr<Dialog_Row> make_tick_row(uint32_t id, bool checked, const char* label) {
    auto row = std::make_unique<Dialog_Row>();
    row->add(std::make_unique<Radiobutton_Dialog_Item>(id, id + 1, checked));
    row->add(std::make_unique<Text_Dialog>(label));
    return row;
}

std::unique_ptr<Dialog_Row> make_number_row(uint32_t id, int32_t value, int32_t min, int32_t max,
                                            const char* label) {
    auto row = std::make_unique<Dialog_Row>();
    row->add(std::make_unique<Text_Dialog>(label));
    row->add(std::make_unique<Button_Dialog_Item>(id, id + 1, button_less));
    row->add(std::make_unique<Number_Dialog_Item>(id + 1, Dialog_Item::no_id, value, min, max));
    row->add(std::make_unique<Button_Dialog_Item>(id + 2, id + 1, button_more));
    return row;
}

std::unique_ptr<Dialog_Row> make_list_row(uint32_t id, int32_t value, const char* list_text) {
    auto row = std::make_unique<Dialog_Row>();
    row->add(std::make_unique<Button_Dialog_Item>(id, id + 1, button_more));
    row->add(std::make_unique<Textlist_Dialog_Item>(id + 1, Dialog_Item::no_id, value, list_text));
    return row;
}

std::unique_ptr<Dialog_Row> make_button_bar(bool with_cancel) {
    auto row = std::make_unique<Dialog_Row>();
    row->add(std::make_unique<Button_Dialog_Item>(Dialog_Item::no_id, Dialog_Item::no_id, button_ok));
    if (with_cancel)
        row->add(std::make_unique<Button_Dialog_Item>(Dialog_Item::no_id, Dialog_Item::no_id,
                                                      button_cancel));
    return row;
}
