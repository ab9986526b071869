#include "ui/message_box.h"

#include <gtest/gtest.h>

#include "platform/globals.h"
#include "support/headless.h"
#include "tests/ui/event_script.h"
#include "ui/ui_globals.h"

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
    // A question is answered by "Ok" (y) or "Cancel" (Escape).
    script.then([] { push_key('y'); }).then([] { push_key(27); });
    EXPECT_TRUE(g_message_box->ask("Quit", "Quit Mosswick?"));
    EXPECT_FALSE(g_message_box->ask("Quit", "Quit Mosswick?"));
}
