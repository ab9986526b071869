// The brush pad beside the tool options: the temporary brush, "Move to pad",
// "Delete brush", the pad pane's clicks and drawing, stamping with a pad
// brush, and the pad kept in "brushpad.dat" across real start-ups.
#include <sys/stat.h>

#include <algorithm>

#include "app/application.h"
#include "features/brushpad/brush_pad_pane.h"
#include "platform/debug_log.h"
#include "app/tool_options.h"
#include "app/undo_control.h"
#include "model/core/safe_file.h"
#include "support/editor_fixture.h"

namespace fs = std::filesystem;

namespace {
const Color red(220, 20, 30);
const Color green(30, 200, 40);
const Color blue(10, 40, 230);
const Color black(0, 0, 0);
const Color white(255, 255, 255);
const Color yellow(250, 230, 20);
const Color clear(0, 0, 0, 0);

// 3 x 2:  red   clear  blue
//         clear green  red
std::unique_ptr<Tile> make_brush() {
    auto t = std::make_unique<Tile>(3, 2);
    const Color pixels[6] = {red, clear, blue, clear, green, red};
    for (int i = 0; i < 6; ++i) t->set_pixel(i % 3, i / 3, pixels[i]);
    return t;
}

std::unique_ptr<Tile> solid(int w, int h, Color c) {
    auto t = std::make_unique<Tile>(w, h);
    t->fill(c);
    return t;
}

Brush_Pad_Pane& pad_pane() { return g_tool_options->brush_pad(); }
const Brush_Pad& pad() { return g_tool_options->brush_pad().store(); }

class BrushPad : public Drawing {
protected:
    static void click(int x, int y, Uint8 button = SDL_BUTTON_LEFT) {
        push_click(x, y, button);
        pump();
    }
    static void click(const Rectangle& r) {
        push_click(r);
        pump();
    }
    // Refused with a note, nothing recorded, the pad unchanged.
    static void expect_refused(int command) {
        const int count = pad().count();
        Editor_Fixture::expect_refused(command);
        EXPECT_EQ(pad().count(), count);
    }
    void restart() {
        Application::shut_down();
        Application::start_up();
        ASSERT_TRUE(g_editor->begin());
        g_editor->canvas().repaint = [] {
            Backdrop::paint();
            g_main_window->present();
        };
        drop_pending_events();
    }
    fs::path pad_file() const { return work_dir / "data" / "brushpad.dat"; }
};

// Checks the 3 x 2 brush at the corner (x, y): the given colours where the
// brush is drawn, black where it is clear and all around it.
void expect_brush_at(int x, int y, Color a, Color b, Color c, Color d) {
    const Tile& t = *g_editor->canvas().tile();
    EXPECT_EQ(t.get_pixel(x, y), a);
    EXPECT_EQ(t.get_pixel(x + 1, y), black);
    EXPECT_EQ(t.get_pixel(x + 2, y), b);
    EXPECT_EQ(t.get_pixel(x, y + 1), black);
    EXPECT_EQ(t.get_pixel(x + 1, y + 1), c);
    EXPECT_EQ(t.get_pixel(x + 2, y + 1), d);
    for (int i = -1; i <= 3; ++i) {
        EXPECT_EQ(t.get_pixel(x + i, y - 1), black) << i;
        EXPECT_EQ(t.get_pixel(x + i, y + 2), black) << i;
    }
    EXPECT_EQ(t.get_pixel(x - 1, y), black);
    EXPECT_EQ(t.get_pixel(x + 3, y + 1), black);
}
}  // namespace

TEST_F(BrushPad, APadBrushStampsAtItsHotspotWithBothButtons) {
    set_colors(white, yellow);
    ASSERT_TRUE(g_editor->use_as_brush(*make_brush(), 0, 1));
    g_editor->run_command(command_move_to_pad);
    ASSERT_EQ(pad().count(), 1);
    ASSERT_FALSE(pad_pane().has_temporary());

    // "Brush": the hotspot (0, 1) under the pointer puts the corner at (5, 4).
    stroke({{5, 5}});
    expect_brush_at(5, 4, red, blue, green, red);
    EXPECT_EQ(on_screen(6, 5), green);
    ASSERT_TRUE(g_editor->undo().undo());
    stroke({{5, 5}}, SDL_BUTTON_RIGHT);
    expect_brush_at(5, 4, yellow, yellow, yellow, yellow);
    ASSERT_TRUE(g_editor->undo().undo());

    // Under the pointer the stamp shows its outline, placed by the hotspot:
    // the edge of each cell it would paint is drawn, a clear one's is not.
    const SDL_Point o = g_editor->canvas().origin();
    const int s = g_editor->canvas().pixel_size();
    auto edge_of = [&](int tx, int ty) { return read_pixel(o.x + tx * s + 1, o.y + ty * s + s / 2); };
    push_motion(5, 5);
    pump();
    g_editor->repaint(false);
    const Color painted_cell = edge_of(5, 4), clear_cell = edge_of(6, 4);
    const SDL_Point p = cell_centre(5, 5);
    push_motion(p.x, p.y);
    pump();
    g_editor->repaint(false);
    EXPECT_NE(edge_of(5, 4), painted_cell);
    EXPECT_EQ(edge_of(6, 4), clear_cell);
}

TEST_F(BrushPad, UseAsBrushMoveToPadAndDeleteBrushWithTheirRefusals) {
    // Away from the stamp brush both pad commands ask for it.
    expect_refused(command_move_to_pad);
    expect_refused(command_delete_brush);

    // "Use as brush" takes the selected pixels (the unselected ones of their
    // box clear) and refuses without a selection.
    expect_refused(command_use_as_brush);
    Canvas_View& view = g_editor->canvas();
    const auto brush = make_brush();
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            if (brush->get_pixel(x, y) != clear) {
                view.tile()->set_pixel(20 + x, 20 + y, brush->get_pixel(x, y));
                view.tile_selection().mask()->set_pixel(20 + x, 20 + y, white);
            }
    view.tile_selection().set_active(true);
    EXPECT_EQ(g_editor->execute(command_use_as_brush), command_use_as_brush);
    EXPECT_FALSE(view.tile_selection().active()) << "the selection would clip every stamp";

    // The temporary brush: the stamp brush is chosen and draws with it,
    // centred, before it is on the pad.
    set_colors(white, yellow);
    EXPECT_EQ(g_editor->current_tool(), command_stamp_brush);
    stroke({{10, 10}});
    expect_brush_at(9, 10, red, blue, green, red);
    // Not on the pad, so there is nothing selected to delete.
    expect_refused(command_delete_brush);

    g_editor->run_command(command_move_to_pad);
    EXPECT_EQ(pad().count(), 1);
    EXPECT_EQ(pad().selected(), 0);
    EXPECT_FALSE(pad_pane().has_temporary());
    // The pad's selected brush is the current one: it is already there.
    expect_refused(command_move_to_pad);

    // Picking the pad's brush drops the temporary one; then it is deleted.
    click(pad_pane().cell_rect(0));
    EXPECT_FALSE(pad_pane().has_temporary());
    g_editor->run_command(command_delete_brush);
    EXPECT_TRUE(pad().empty());
    expect_refused(command_delete_brush);
    // With nothing chosen the stamp is the built-in brush again.
    EXPECT_EQ(&g_tool_options->stamp_image(), static_cast<const Tile*>(&g_tool_options->brush()));
}

TEST_F(BrushPad, ThePanePagesShowsAndSelectsBrushesByClicks) {
    const Rectangle first_cell = pad_pane().cell_rect(0);
    // Seventeen brushes of different sizes and colours: two pages.
    for (int i = 0; i < 17; ++i) {
        const Color c(uint8_t(10 * i), uint8_t(200 - 5 * i), uint8_t(40 + i));
        ASSERT_EQ(pad_pane().store().add(*solid(8 + 3 * i, 4 + i, c), 0, 0), Brush_Pad::Add_Result::added);
    }
    auto colour_of = [](int i) { return Color(uint8_t(10 * i), uint8_t(200 - 5 * i), uint8_t(40 + i)); };
    pad_pane().store().select(-1);
    // Each brush centred in its cell, magnified up to four times: brush 0 (8 x 4) covers 32 x 16 pixels.
    g_editor->repaint(false);
    EXPECT_EQ(read_pixel(first_cell.x + 16, first_cell.y + 24), colour_of(0));
    EXPECT_NE(read_pixel(first_cell.x + 15, first_cell.y + 24), colour_of(0));
    const Rectangle third = pad_pane().cell_rect(2);

    // A click selects the brush and chooses the stamp brush, which draws with it.
    click(third);
    EXPECT_EQ(pad().selected(), 2);
    EXPECT_EQ(g_editor->current_tool(), command_stamp_brush);
    EXPECT_EQ(&g_tool_options->stamp_image(), pad().brush(2).image.get());
    // The second page holds brushes 16 and 17; a press on an empty cell
    // changes nothing, and the page does not go past the last.
    click(pad_pane().next_button());
    EXPECT_EQ(pad_pane().page(), 1);
    click(pad_pane().next_button());
    EXPECT_EQ(pad_pane().page(), 1);
    click(pad_pane().cell_rect(5));
    EXPECT_EQ(pad().selected(), 2);
    click(pad_pane().cell_rect(1));
    EXPECT_EQ(pad().selected(), 16);
    g_editor->repaint(false);
    EXPECT_EQ(read_pixel(first_cell.x + 32, first_cell.y + 32), colour_of(15));
    // Deleting the last brush shows the page of the one now selected.
    g_editor->run_command(command_delete_brush);
    EXPECT_EQ(pad().selected(), 15);
    g_editor->run_command(command_delete_brush);
    EXPECT_EQ(pad().selected(), 14);
    EXPECT_EQ(pad_pane().page(), 0);
    EXPECT_EQ(pad_pane().page_count(), 1);
}

// Kept across start-ups, written again only when changed (same inode, same
// old time), a failed write at shut-down told and the old file kept.
TEST_F(BrushPad, ThePadIsKeptAcrossStartUpsWrittenOnlyWhenChangedAndAFailedWriteIsTold) {
    ASSERT_TRUE(g_editor->use_as_brush(*make_brush(), 2, 0));
    g_editor->run_command(command_move_to_pad);
    restart();
    ASSERT_EQ(pad().count(), 1);
    EXPECT_EQ(pad().selected(), 0);
    EXPECT_EQ(pad().brush(0).hot_x, 2);
    EXPECT_EQ(pad().brush(0).image->get_pixel(1, 1), green);

    const fs::file_time_type old_time = fs::file_time_type::clock::now() - std::chrono::hours(24);
    fs::last_write_time(pad_file(), old_time);
    struct stat before {};
    ASSERT_EQ(stat(pad_file().c_str(), &before), 0);
    click(pad_pane().cell_rect(0));  // selects what is already selected
    restart();
    struct stat after {};
    ASSERT_EQ(stat(pad_file().c_str(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino);
    EXPECT_EQ(fs::last_write_time(pad_file()), old_time);

    const std::vector<unsigned char> kept = read_bytes(pad_file().string());
    ASSERT_TRUE(g_editor->use_as_brush(*make_brush()));
    g_editor->run_command(command_move_to_pad);
    safe_file::inject_fault(safe_file::Step::rename);
    // The editor is gone by then; the key waits in the queue for the message.
    push_key(SDLK_RETURN);
    Application::shut_down();
    SDL_PumpEvents();
    EXPECT_FALSE(SDL_HasEvent(SDL_EVENT_KEY_DOWN)) << "no message said the brushes are lost";
    safe_file::inject_fault(safe_file::Step::none);
    Application::start_up();
    ASSERT_TRUE(g_editor->begin());
    EXPECT_EQ(read_bytes(pad_file().string()), kept);
    EXPECT_EQ(pad().count(), 1);
}

// A refused file leaves the pad empty, is logged, and is never written over.
TEST_F(BrushPad, ARefusedFileLeavesThePadEmptyAndIsNeverWrittenOver) {
    const std::vector<unsigned char> hostile = {8, 0, 0, 0, '1', ',', '1', ',', '0', ',', '9', ':'};
    write_bytes(pad_file().string(), hostile);
    restart();
    EXPECT_TRUE(pad().empty());
    EXPECT_TRUE(pad_pane().file_refused());
    const auto& log = g_debug_log->lines();
    EXPECT_TRUE(std::any_of(log.begin(), log.end(),
                            [](const std::string& l) { return l.find("brushpad.dat refused") != std::string::npos; }));
    ASSERT_TRUE(g_editor->use_as_brush(*make_brush()));
    g_editor->run_command(command_move_to_pad);
    EXPECT_EQ(pad().count(), 1);
    restart();
    EXPECT_EQ(read_bytes(pad_file().string()), hostile);
}
