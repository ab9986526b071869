#include <gtest/gtest.h>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "platform/sprites.h"
#include "platform/image_pool.h"
#include "support/headless.h"
#include "ui/button_dialog_item.h"
#include "ui/dialog.h"
#include "ui/dialog_rows.h"
#include "ui/number_dialog_item.h"
#include "ui/text_dialog.h"
#include "platform/text_writer.h"
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

TEST_F(DialogLayout, AOneLineMessageIsAsWideAsItsText) {
    const char* text = "A message long enough to be wider than the button";
    Dialog dialog("Note");
    dialog.add_text(text);
    dialog.finish(false);
    EXPECT_EQ(dialog.pane().outer_area().width, regular().measure(text) + 14);
    EXPECT_EQ(dialog.pane().outer_area().height, regular().line_height() + 27 + 14 + 21);
}
