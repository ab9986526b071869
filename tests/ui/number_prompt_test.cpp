#include "ui/number_prompt.h"

#include <gtest/gtest.h>

#include "support/headless.h"
#include "tests/ui/event_script.h"
#include "ui/dialog.h"
#include "platform/text_writer.h"
#include "ui/ui_style.h"

class NumberPrompt : public Headless {
protected:
    static void type(const char* keys) {
        for (const char* c = keys; *c; ++c) push_text_key(*c);
    }
};

TEST_F(NumberPrompt, TypedDigitsReplaceTheValueAndReturnAccepts) {
    Event_Script script;
    script.then([] {
        type("-12");
        push_key(SDLK_BACKSPACE);
        type("7");
        push_key(13);
    });
    EXPECT_EQ(Number_Prompt::ask(300, 300, 5, -20, 20), -17);
    // Return at once keeps the value offered.
    Event_Script keep;
    keep.then([] { push_key(13); });
    EXPECT_EQ(Number_Prompt::ask(300, 300, 5, 0, 20), 5);
}

TEST_F(NumberPrompt, AnEntryOutsideTheBoundsIsRefusedVisibly) {
    const int x = 300;
    const int y = 300;
    // The lower right corner of the box, clear of its text.
    const int corner_x = x - 4 + 150 - 3;
    const int corner_y = y - 4 + 57 - 3;
    Event_Script script;
    script.then([] {
        type("300");
        push_key(13);
    }).then([] { push_key(27); });
    EXPECT_EQ(Number_Prompt::ask(x, y, 64, 0, 255), std::nullopt);
    EXPECT_FALSE(script.ran_out());
    EXPECT_EQ(read_pixel(corner_x, corner_y), prompt_refused_color);
}
