#include <gtest/gtest.h>

#include "app/globals.h"
#include "app/main_window.h"
#include "app/sprites.h"
#include "ui/image_pool.h"
#include "support/headless.h"
#include "ui/button_dialog_item.h"
#include "ui/dialog.h"
#include "ui/dialog_rows.h"
#include "ui/number_dialog_item.h"
#include "ui/text_dialog.h"
#include "ui/text_writer.h"
#include "ui/textlist_dialog_item.h"

class DialogLayout : public Headless {
protected:
    static Text_Writer& regular() { return g_main_window->writer(font_regular); }
};

TEST_F(DialogLayout, ItemsSizeThemselvesFromTheButtonTableAndTheirText) {
    EXPECT_EQ(Button_Dialog_Item(0, 0, button_ok).area, (Rectangle{0, 0, 60, 27}));
    EXPECT_EQ(Button_Dialog_Item(0, 0, button_cancel).area.width, 85);
    EXPECT_EQ(Button_Dialog_Item(0, 0, button_left).area.width, 70);
    EXPECT_EQ(Button_Dialog_Item(0, 0, button_right).area.width, 85);
    const Button_Dialog_Item more(0, 0, button_more);
    EXPECT_EQ(more.area.width, g_main_window->pool().sprite_width(sprite_button_more));
    EXPECT_EQ(more.area.height, g_main_window->pool().sprite_height(sprite_button_more));

    const Text_Dialog text("ab\rcdef\rg");
    EXPECT_EQ(text.area.width, regular().measure("cdef"));
    EXPECT_EQ(text.area.height, 3 * regular().line_height());
    EXPECT_EQ(text.id, Dialog_Item::no_id);
    EXPECT_EQ(text.get_value(), -1);

    Number_Dialog_Item number(5, Dialog_Item::no_id, -120, -200, 200);
    EXPECT_EQ(number.area.width, regular().measure("-120"));
    number.number.value = 7;
    number.update();
    EXPECT_EQ(number.area.width, regular().measure("7"));

    Textlist_Dialog_Item list(3, Dialog_Item::no_id, 1, "a,Longest entry,bc$");
    EXPECT_EQ(list.entries().size(), 3u);
    EXPECT_EQ(list.choice, (Range{1, 0, 2}));
    EXPECT_EQ(list.area.width, regular().measure("Longest entry"));
    EXPECT_EQ(list.area.height, regular().line_height());
}

TEST_F(DialogLayout, RowsPlaceItemsSevenPixelsApartAndSpriteButtonsTwoLower) {
    auto row = make_number_row(10, 64, 0, 255, "Grid intensity:");
    row->layout(30, 40);
    const auto& items = row->items();
    ASSERT_EQ(items.size(), 4u);
    int x = 30;
    int width = 0;
    for (const auto& item : items) {
        EXPECT_EQ(item->area.x, x);
        x += item->area.width + 7;
        width += item->area.width;
    }
    EXPECT_EQ(items[0]->area.y, 40);
    EXPECT_EQ(items[1]->area.y, 42);  // "Less"
    EXPECT_EQ(items[2]->area.y, 40);  // the number
    EXPECT_EQ(items[3]->area.y, 42);  // "More"
    EXPECT_EQ(row->area, (Rectangle{30, 40, width + 3 * 7, regular().line_height()}));
    // Ids and hosts: buttons n and n + 2 aim at the number n + 1.
    EXPECT_EQ(items[1]->id, 10u);
    EXPECT_EQ(items[1]->host, 11u);
    EXPECT_EQ(items[2]->id, 11u);
    EXPECT_EQ(items[3]->id, 12u);
    EXPECT_EQ(items[3]->host, 11u);
    EXPECT_EQ(row->value_of(11), 64);
    EXPECT_EQ(row->value_of(99), -1);
}

TEST_F(DialogLayout, ButtonBarsCentreOneButtonAndSpreadTwo) {
    auto one = make_button_bar(false);
    one->layout_as_button_bar(Rectangle{100, 50, 201, 300});
    EXPECT_EQ(one->area, (Rectangle{100, 50 + 300 - 34, 201, 27}));
    // (201 - 60) / 2 truncates to 70; text buttons get no 2-pixel offset.
    EXPECT_EQ(one->items()[0]->area, (Rectangle{170, 50 + 300 - 27 - 7, 60, 27}));

    auto two = make_button_bar(true);
    two->layout_as_button_bar(Rectangle{100, 50, 400, 300});
    EXPECT_EQ(two->items()[0]->area, (Rectangle{107, 316, 60, 27}));
    EXPECT_EQ(two->items()[1]->area, (Rectangle{100 + 400 - 85 - 7, 316, 85, 27}));

    // A third button is not placed by the bar.
    two->add(std::make_unique<Button_Dialog_Item>(1, 1, button_left));
    two->items()[2]->set_position(3, 4);
    two->layout_as_button_bar(Rectangle{0, 0, 400, 300});
    EXPECT_EQ(two->items()[2]->area.x, 3);
}

TEST_F(DialogLayout, FrameIsTheRowsPlusFourteenAndRowsStackWithoutGaps) {
    Dialog dialog("Layout");
    dialog.add_text("First line of text\rsecond");
    dialog.add_tick_row(40, true, "A tick");
    dialog.add_number_row(90, 8, 0, 255, "Number:");
    dialog.add_list_row(30, 0, "one,two,three$");
    dialog.finish(true);

    const auto& rows = dialog.container().rows();
    ASSERT_EQ(rows.size(), 5u);
    const Rectangle frame = dialog.pane().outer_area();
    const Rectangle client = dialog.pane().get_area();
    EXPECT_EQ(rows[0]->area.x, client.x);
    EXPECT_EQ(rows[0]->area.y, client.y - 2);
    int content_height = 0;
    int widest = 0;
    for (size_t i = 1; i < 4; ++i) {
        EXPECT_EQ(rows[i]->area.y, rows[i - 1]->area.y + rows[i - 1]->area.height);
        EXPECT_EQ(rows[i]->area.x, client.x);
    }
    for (size_t i = 0; i < 4; ++i) {
        content_height += rows[i]->area.height;
        widest = std::max(widest, rows[i]->area.width);
    }
    // The bar row was measured as a plain row of "Ok" and "Cancel".
    widest = std::max(widest, 60 + 7 + 85);
    EXPECT_EQ(frame.width, widest + 14);
    EXPECT_EQ(frame.height - 21, content_height + 27 + 14);
    // Centred in the window.
    EXPECT_EQ(frame.x, (1232 - frame.width) / 2);
    EXPECT_EQ(frame.y, (664 - frame.height) / 2);
    // The bar sits at the bottom of the frame, below the last content row.
    EXPECT_EQ(rows[4]->area, (Rectangle{frame.x, frame.y + frame.height - 34, frame.width, 27}));
    EXPECT_GE(rows[4]->area.y, rows[3]->area.y + rows[3]->area.height);
    EXPECT_EQ(rows[4]->items()[0]->area.x, frame.x + 7);

    // After an event the rows are laid out again where they stand.
    const Rectangle first = rows[0]->area;
    dialog.update_all();
    EXPECT_EQ(rows[0]->area, first);
    EXPECT_EQ(rows[4]->area.y, frame.y + frame.height - 34);
}

TEST_F(DialogLayout, AOneLineMessageIsAsWideAsItsText) {
    const char* text = "A message long enough to be wider than the button";
    Dialog dialog("Note");
    dialog.add_text(text);
    dialog.finish(false);
    EXPECT_EQ(dialog.pane().outer_area().width, regular().measure(text) + 14);
    EXPECT_EQ(dialog.pane().outer_area().height, regular().line_height() + 27 + 14 + 21);
}
