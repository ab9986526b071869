#include "platform/text_writer.h"

#include <gtest/gtest.h>

#include "platform/globals.h"
#include "platform/main_window.h"
#include "support/headless.h"

class TextWriter : public Headless {
protected:
    Text_Writer& writer() { return g_main_window->writer(font_regular); }
};

TEST_F(TextWriter, LineBreaksReturnToTheStartingColumnAndControlsDoNotAdvance) {
    Text_Writer& t = writer();
    // The widest line counts; prefixes stop at controls, which have no width.
    EXPECT_EQ(t.measure("ab\rcdef"), t.measure("cdef"));
    EXPECT_EQ(t.measure("a\tb"), t.char_width('a') + t.char_width('b'));
    EXPECT_EQ(t.measure_prefix("ab\rcd", 5), t.measure("ab"));
    EXPECT_EQ(t.char_width(char(200)), 0);
    g_main_window->clear();
    t.set_cursor(100, 40);
    EXPECT_EQ(t.write("ab\rc\td"), 6);
    EXPECT_EQ(t.x(), 100 + t.char_width('c') + t.char_width('d'));
    EXPECT_EQ(t.y(), 40 + t.line_height());
    EXPECT_EQ(t.put_char('\t'), 0);
    EXPECT_EQ(t.x(), 100 + t.char_width('c') + t.char_width('d'));

    t.set_cell(2, 3);
    EXPECT_EQ(t.x(), 2 * 16);
    EXPECT_EQ(t.y(), 3 * 23);
    t.printf("%d-%s", 42, "x");
    EXPECT_EQ(t.x(), 32 + t.measure("42-x"));

    // Text is ink on the background, not a block.
    int ink = 0;
    for (int y = 40; y < 40 + 2 * t.line_height(); ++y)
        for (int x = 100; x < 100 + t.measure("ab"); ++x) ink += read_pixel(x, y) != Color(137, 137, 137);
    EXPECT_GT(ink, 10);
    EXPECT_LT(ink, t.measure("ab") * t.line_height());
}
