#include "ui/options.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/headless.h"
#include "tests/ui/event_script.h"
#include "ui/dialog.h"
#include "ui/textlist_dialog_item.h"

namespace fs = std::filesystem;

class OptionsTest : public Headless {
protected:
    void write_file(const std::string& bytes) const {
        std::ofstream out(work_dir / "data" / "options.dlg", std::ios::binary);
        out << bytes;
    }
    void write_stream(const std::string& text) const {
        ::write_stream((work_dir / "data" / "options.dlg").string(), text);
    }
    static void click_item(Options& o, uint32_t id) { push_click(o.dialog().find(id)->area); }
    static std::string defaults_text() {
        return "13,3,2,0,2,4,-1,5,-1,4,-1,3,7,0,7,-1,2,64,0,255,3,5,-1,-1,2,2,1,21,3,"
               "-1,2,2,1,21,3,-1,2,6,1,8,3,-1,2,6,1,8,3,3,0,0,2,0,1:";
    }
};

TEST_F(OptionsTest, AcceptWritesTheWholeDialogAndEditReloads) {
    Options options;
    options.load();
    {
        Event_Script script;
        // "More" on the pixel size list wraps from 10 to 3.
        script.then([&] { click_item(options, 80); }).then([] { push_key('y'); });
        EXPECT_TRUE(options.edit());
    }
    EXPECT_EQ(options.get(Options::editor_pixel_size), 3);
    std::string text = defaults_text();
    text.replace(text.find("3,7,0,7"), 7, "3,0,0,7");
    std::ifstream in(work_dir / "data" / "options.dlg", std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), {});
    ASSERT_EQ(bytes.size(), text.size() + 4);
    EXPECT_EQ(uint8_t(bytes[0]), text.size() & 255);
    EXPECT_EQ(uint8_t(bytes[1]), text.size() >> 8);
    EXPECT_EQ(bytes.substr(4), text);

    // The next start reads the file back.
    Options again;
    again.load();
    EXPECT_EQ(again.get(Options::editor_pixel_size), 3);
}

// Integer by integer: length 0 loads nothing, missing integers read 0,
// surplus ones are ignored and digits convert as far as they are digits.
TEST_F(OptionsTest, OddFilesLoadIntegerByInteger) {
    const std::string text = defaults_text();
    std::string garbage = text;
    garbage.replace(garbage.find("64,0,255"), 8, "1x9,ab,25z");
    const struct {
        std::string stream;
        int pixel_size, grid, precise;
    } cases[] = {{"", 10, 64, 2},
                 {"13,3,1,0,2,5:", 3, 0, 1},
                 {text.substr(0, text.size() - 1) + ",9,9,9:", 10, 64, 2},
                 {garbage, 10, 1, 2}};
    for (const auto& c : cases) {
        if (c.stream.empty())
            write_file(std::string(4, '\0'));
        else
            write_stream(c.stream);
        Options o;
        o.load();
        EXPECT_EQ(o.get(Options::editor_pixel_size), c.pixel_size) << c.stream;
        EXPECT_EQ(o.get(Options::grid_intensity), c.grid) << c.stream;
        EXPECT_EQ(o.get(Options::precise_brush), c.precise) << c.stream;
        EXPECT_EQ(o.dialog().value_of(91), c.grid) << c.stream;
    }
}

TEST_F(OptionsTest, DamagedValuesAreHeldInsideTheSettingsRanges) {
    std::string text = defaults_text();
    text.replace(text.find("3,7,0,7"), 7, "3,2147483647,0,2147483647");
    text.replace(text.find("64,0,255"), 8, "-5,-9,99999");
    text.replace(text.find("2,2,1,21"), 8, "0,0,0,0");
    write_stream(text);
    Options o;
    o.load();
    EXPECT_EQ(o.get(Options::editor_pixel_size), 10);
    EXPECT_EQ(o.get(Options::grid_intensity), 0);
    EXPECT_EQ(o.get(Options::repeat_x_tiles), 1);
    // The items keep the bounds they were built with, so the list still names an entry.
    EXPECT_STREQ(static_cast<Textlist_Dialog_Item*>(o.dialog().find(81))->current(), "Editor pixel size: 10 [restart]");
}

using OptionsDeathTest = OptionsTest;

// The child is forked from this test, so it works in this test's directory and
// leaves nothing behind when the fatal error ends it.
TEST_F(OptionsDeathTest, ATruncatedFileIsTheFatalBlockError) {
    write_stream(defaults_text());
    fs::resize_file(work_dir / "data" / "options.dlg", 20);
    EXPECT_EXIT({ Options o; }, testing::ExitedWithCode(1), "");
    write_file("\x05\x00");
    EXPECT_EXIT({ Options o; }, testing::ExitedWithCode(1), "");
}
