#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/debug_log.h"
#include "platform/globals.h"
#include "support/headless.h"
#include "tests/ui/event_script.h"
#include "ui/dialog.h"
#include "ui/dialog_item.h"
#include "ui/message_box.h"
#include "ui/number_dialog_item.h"
#include "ui/radiobutton_dialog_item.h"
#include "ui/textlist_dialog_item.h"
#include "ui/ui_globals.h"

namespace fs = std::filesystem;

class DialogRun : public Headless {
protected:
    // A dialog with every kind of row; its data file is "test.dlg".
    static std::unique_ptr<Dialog> make_dialog(bool with_file = true) {
        auto d = with_file ? std::make_unique<Dialog>("Test", "test.dlg") : std::make_unique<Dialog>("Test");
        d->add_text("Settings");
        d->add_tick_row(40, false, "Tick");
        d->add_number_row(90, 20, 0, 21, "Number:");
        d->add_list_row(30, 0, "one,two,three$");
        d->finish(true);
        return d;
    }
    static void click_item(Dialog& d, uint32_t id) { push_click(d.find(id)->area); }
    static void click_bar(Dialog& d, size_t index) {
        const Rectangle a = d.container().rows().back()->items()[index]->area;
        push_click(a.x + 3, a.y + 3);
    }
    fs::path data_file() const { return work_dir / "data" / "test.dlg"; }
};

// Escape keeps the changed values without saving them; Cancel puts back the
// values of the opening; a quit or a close request ends the loop.
TEST_F(DialogRun, EscapeNeitherSavesNorRevertsCancelRestoresAndQuitEndsTheLoop) {
    auto d = make_dialog();
    Event_Script script;
    script.then([&] { click_item(*d, 30); }).then([] { push_key(27); });
    EXPECT_FALSE(d->run());
    EXPECT_EQ(d->value_of(31), 1);
    script.then([&] { click_item(*d, 30); }).then([] { push_quit(); });
    EXPECT_FALSE(d->run());
    EXPECT_EQ(d->value_of(31), 2);
    script.then([] { push_close_request(); });
    EXPECT_FALSE(d->run());
    EXPECT_EQ(d->result().type, item_unknown);
    script.then([&] { click_item(*d, 90); })
        .then([&] { click_item(*d, 40); })
        .then([&] { click_item(*d, 30); })
        .then([&] { click_bar(*d, 1); });
    EXPECT_FALSE(d->run());
    EXPECT_FALSE(script.ran_out());
    EXPECT_EQ(d->result().type, item_cancel);
    EXPECT_EQ(d->value_of(91), 20);
    EXPECT_EQ(d->value_of(40), 0);
    EXPECT_EQ(d->value_of(31), 2);
    EXPECT_FALSE(fs::exists(data_file()));
}

TEST_F(DialogRun, StepsWrapAroundAndTicksToggle) {
    auto d = make_dialog();
    Event_Script script;
    // 20 -> 21 -> 0 (past the maximum) -> 21 (below the minimum).
    script.then([&] { click_item(*d, 92); })
        .then([&] { click_item(*d, 92); })
        .then([&] { click_item(*d, 90); })
        .then([&] { click_item(*d, 30); })
        .then([&] { click_item(*d, 30); })
        .then([&] { click_item(*d, 30); })
        .then([&] { click_item(*d, 40); })
        .then([&] { click_bar(*d, 0); });
    EXPECT_TRUE(d->run());
    EXPECT_FALSE(script.ran_out());
    EXPECT_EQ(d->value_of(91), 21);
    // Three presses of "More" on a three-entry list come back to the first.
    EXPECT_EQ(d->value_of(31), 0);
    EXPECT_EQ(d->value_of(40), 1);
}

TEST_F(DialogRun, SaveFailuresAreReported) {
    Message_Box* box = g_message_box;
    g_message_box = nullptr;  // the warning then goes to the debug log
    auto d = make_dialog();
    fs::create_directory(data_file());
    {
        Event_Script script;
        script.then([] { push_key(13); });
        EXPECT_TRUE(d->run());
    }
    EXPECT_NE(g_debug_log->lines().back().find("(W!) Can't save dialog data."), std::string::npos);
    fs::remove(data_file());

    g_message_box = box;
}
