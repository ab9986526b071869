#include "ui/message_box.h"

#include <gtest/gtest.h>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "support/headless.h"
#include "tests/ui/event_script.h"
#include "ui/backdrop.h"
#include "ui/dialog.h"
#include "ui/ui_style.h"
#include "ui/ui_globals.h"
#include "platform/image_pool.h"
#include "platform/sprites.h"

// The program's own message box object, made by start-up after the window.
class MessageBoxTest : public Headless {};

TEST_F(MessageBoxTest, EveryWayOfClosingEndsAMessage) {
    const std::function<void()> closers[] = {
        [] { push_key(13); },
        [] { push_key(27); },
        [] { push_key('y'); },
        [] { push_close_request(); },
        [] { push_quit(); },
        // "Ok" is centred at the bottom of the centred box.
        [] { push_click(1232 / 2, 664 / 2 + 20); },
    };
    for (const auto& close : closers) {
        Event_Script script;
        script.then(close);
        g_message_box->note("Short note, quite a bit wider than the button");
        EXPECT_FALSE(script.ran_out());
    }
    Event_Script script;
    script.then([] { push_key(13); }).then([] { push_key(13); });
    g_message_box->warning("Careful");
    g_message_box->show_statistics("Tiles: 3\rFile size: 11");
    EXPECT_FALSE(script.ran_out());
    EXPECT_EQ(script.left(), 0u);
}

TEST_F(MessageBoxTest, TheQuestionIsAnsweredByOkOrCancel) {
    Event_Script yes;
    yes.then([] { push_key('y'); });
    EXPECT_TRUE(g_message_box->ask("Quit", "Quit Mosswick?"));
    Event_Script escape;
    escape.then([] { push_key(27); });
    EXPECT_FALSE(g_message_box->ask("Quit", "Quit Mosswick?"));
}

TEST_F(MessageBoxTest, BoxesDrawOverWhatLiesBehindThem) {
    int behind = 0;
    // A base paints the whole window, as the editor's frame does.
    Backdrop::set_base(
        [](void* n) {
            g_main_window->clear();
            ++*static_cast<int*>(n);
        },
        &behind);
    Dialog dialog("Note");
    dialog.add_text("Drawn over the editor");
    dialog.finish(false);
    push_key(13);
    dialog.run();
    Backdrop::set_base(nullptr, nullptr);
    EXPECT_EQ(behind, 1);
    EXPECT_EQ(Backdrop::depth(), 0);
    // The last frame shows the box's header at the frame's corner.
    const Rectangle frame = dialog.pane().outer_area();
    EXPECT_EQ(read_pixel(frame.x + 8, frame.y + 12), header_color);
    EXPECT_EQ(read_pixel(frame.x + 2, frame.y + frame.height - 2), pane_body_color);
    EXPECT_EQ(read_pixel(frame.x - 1, frame.y + frame.height - 2), ui_colors[background_color_index]);
}
