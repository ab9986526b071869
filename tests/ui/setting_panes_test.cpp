#include "ui/setting_panes.h"

#include <gtest/gtest.h>

#include "model/tile/tile.h"
#include "support/headless.h"
#include "ui/doubletile_dialog_item.h"

class SettingPanes : public Headless {
protected:
    static void press_item(Dialog_Pane& pane, uint32_t id, bool expect_change) {
        const Rectangle a = pane.container().find(id)->area;
        EXPECT_EQ(pane.press(a.x + 1, a.y + 1), expect_change) << id;
    }
};

TEST_F(SettingPanes, EachPaneHoldsOneRowAndStepsItsValue) {
    Number_Pane number(Rectangle{10, 10, 300, 30}, "Size", "Size:", 1, 3, 3);
    const Rectangle client = number.get_area();
    EXPECT_EQ(number.container().rows()[0]->area.x, client.x);
    EXPECT_EQ(number.container().rows()[0]->area.y, client.y - 2);
    press_item(number, 142, true);  // "More" past 3 wraps to 1
    EXPECT_EQ(number.value(), 1);
    press_item(number, 140, true);
    EXPECT_EQ(number.value(), 3);
    EXPECT_FALSE(number.press(client.x + client.width - 2, client.y + 20));
    EXPECT_EQ(number.value(), 3);

    Option_Pane option(Rectangle{10, 100, 300, 30}, "Precise", "a,b$", 1);
    press_item(option, 140, true);
    EXPECT_EQ(option.value(), 0);

    Tick_Pane tick(Rectangle{10, 200, 300, 30}, "Shadow", "Show shadow brush", true);
    EXPECT_EQ(tick.value(), 1);
    press_item(tick, 140, true);
    EXPECT_EQ(tick.value(), 0);

    // Moving a pane carries its row along.
    number.move_to(400, 300);
    EXPECT_EQ(number.container().rows()[0]->area.y, number.get_area().y - 2);
    EXPECT_EQ(number.container().find(140)->area.y, number.get_area().y);
}
