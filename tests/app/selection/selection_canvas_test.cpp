// The selection on the real canvas: selectors, Work selection, the copy
// buffer across tilesets, Scroll and Freehand rotate, driven through the
// editor's own loops with pushed events.
#include "support/editor_fixture.h"

#include "app/tool_options.h"
#include "app/undo_control.h"
#include "model/tile/transforms.h"
#include "app/selection/selection_tools.h"
#include "features/selection/buffer_pane.h"
#include "platform/ui_colors.h"
#include "model/selection/mask_ops.h"
#include "ui/info_panes.h"
#include "ui/options.h"
#include "ui/dialog.h"
#include "ui/textlist_dialog_item.h"
#include "ui/ui_globals.h"

namespace {
const Color red(220, 20, 30);
const Color blue(10, 40, 230);

class Selecting : public Drawing {
protected:
    static Canvas_View& view() { return g_editor->canvas(); }
    static Rectangle selected_box() { return mask_ops::bounds(*view().tile_selection().mask()); }
    static bool selected(int x, int y) { return mask_ops::is_selected(*view().tile_selection().mask(), x, y); }
    static void undo() { key(SDLK_Z, SDL_KMOD_CTRL); }
    static void with_shift(const std::vector<SDL_Point>& cells) {
        SDL_SetModState(SDL_KMOD_SHIFT);
        stroke(cells);
        SDL_SetModState(SDL_KMOD_NONE);
    }
    static void fill_tile(Color c) {
        tile().fill(c);
        tile().update_texture();
    }
    // Pixels set by hand become a step of their own, as a stroke would.
    static void keep_edit() {
        tile().update_texture();
        g_editor->undo().record(command_pen);
    }
};
}  // namespace

TEST_F(Selecting, ShiftAddsTheRightButtonRemovesAndAPlainDragReplaces) {
    use_tool(command_rectangle_selector);
    stroke({{1, 1}, {3, 3}});
    with_shift({{6, 6}, {7, 7}});
    EXPECT_TRUE(selected(1, 1));
    EXPECT_TRUE(selected(7, 7));
    stroke({{2, 2}, {6, 6}}, SDL_BUTTON_RIGHT);
    EXPECT_TRUE(selected(1, 1));
    EXPECT_FALSE(selected(2, 2));
    EXPECT_FALSE(selected(6, 6));
    EXPECT_TRUE(selected(7, 7));
    stroke({{1, 1}, {5, 5}});
    EXPECT_EQ(selected_box(), (Rectangle{1, 1, 5, 5}));
    // The veil covers what is not selected.
    const Color inside = on_screen(2, 2);
    EXPECT_NE(on_screen(9, 9), inside);
    stroke({{10, 10}});
    EXPECT_FALSE(view().tile_selection().active());
    EXPECT_EQ(on_screen(9, 9), inside);

    use_tool(command_circle_selector);
    stroke({{8, 8}, {11, 10}});
    EXPECT_TRUE(selected(8, 10));
    EXPECT_TRUE(selected(11, 8));
    EXPECT_FALSE(selected(8, 11));
    EXPECT_FALSE(selected(12, 8));

    // The wand takes the area under the pointer.
    fill_tile(red);
    use_tool(command_wand_selector);
    stroke({{0, 0}});
    EXPECT_EQ(selected_box(), (Rectangle{0, 0, 24, 24}));

    // The brush selector paints the mask along the path and takes away with the right button.
    use_tool(command_brush_selector);
    g_tool_options->select_brush_size(1);
    stroke({{0, 6}, {5, 6}});
    for (int x = 0; x <= 5; ++x) EXPECT_TRUE(selected(x, 6)) << x;
    stroke({{2, 6}, {3, 6}}, SDL_BUTTON_RIGHT);
    EXPECT_TRUE(selected(1, 6));
    EXPECT_FALSE(selected(2, 6));
    EXPECT_FALSE(selected(3, 6));
    EXPECT_TRUE(selected(4, 6));
}

TEST_F(Selecting, EveryCommandIsRecordedWithItsMaskAndRefusalsSayWhy) {
    // The selector pages show the colour "Fill" paints with.
    set_colors(red, blue);
    use_tool(command_wand_selector);
    g_editor->repaint(false);
    const Rectangle swatch = g_tool_options->fill_color_pane().client_area();
    EXPECT_EQ(read_pixel(swatch.x + swatch.width / 2, swatch.y + swatch.height / 2), red);

    for (int c : {command_copy, command_cut, command_paste, command_clone, command_fill, command_clear})
        expect_refused(c);
    EXPECT_EQ(g_editor->execute(command_deselect), -1);  // nothing to drop: silent

    fill_tile(blue);
    use_tool(command_rectangle_selector);
    stroke({{2, 2}, {5, 4}});
    set_colors(red, blue);
    g_editor->run_command(command_fill);
    EXPECT_EQ(tile().get_pixel(2, 2), red);
    EXPECT_EQ(tile().get_pixel(6, 2), blue);
    g_editor->run_command(command_invert_selection);
    EXPECT_TRUE(selected(0, 0));
    EXPECT_FALSE(selected(3, 3));
    g_editor->run_command(command_clear);
    EXPECT_EQ(tile().get_pixel(0, 0).alpha, 0);
    EXPECT_EQ(tile().get_pixel(3, 3), red);
    key(SDLK_SPACE);
    EXPECT_FALSE(view().tile_selection().active());

    undo();  // Deselect
    EXPECT_TRUE(selected(0, 0));
    EXPECT_FALSE(selected(3, 3));
    undo();  // Clear
    EXPECT_EQ(tile().get_pixel(0, 0), blue);
    undo();  // Invert
    EXPECT_EQ(selected_box(), (Rectangle{2, 2, 4, 3}));
    undo();  // Fill
    EXPECT_EQ(tile().get_pixel(2, 2), blue);
    EXPECT_EQ(selected_box(), (Rectangle{2, 2, 4, 3}));

    // Cut leaves a hole and keeps the pixels; Clone floats a copy in place.
    key(SDLK_X, SDL_KMOD_CTRL);
    EXPECT_EQ(tile().get_pixel(3, 3).alpha, 0);
    EXPECT_EQ(g_editor->selection().buffer().count(), 1);
    undo();
    stroke({{2, 2}, {3, 3}});
    g_editor->run_command(command_clone);
    EXPECT_EQ(g_editor->current_tool(), command_work_selection);
    ASSERT_NE(view().tile_selection().floating_image(), nullptr);
    EXPECT_EQ(view().tile_selection().float_x(), 2);
    // The selection's pixels as an image, as a brush would take them.
    EXPECT_EQ(g_editor->selection().selection_image()->width(), 2);
    g_editor->run_command(command_clear);  // throws the floating image away
    EXPECT_EQ(view().tile_selection().floating_image(), nullptr);
    EXPECT_EQ(tile().get_pixel(2, 2), blue);

    // The clone style places a clone: at the tile's corner, or resized to the tile.
    for (int style : {1, 2}) {
        static_cast<Textlist_Dialog_Item*>(g_options->dialog().find(131))->choice.value = style;
        g_options->load();
        use_tool(command_rectangle_selector);
        stroke({{2, 2}, {3, 3}});
        g_editor->run_command(command_clone);
        const Tile_Selection& marks = view().tile_selection();
        ASSERT_NE(marks.floating_image(), nullptr);
        EXPECT_EQ(std::make_pair(marks.float_x(), marks.float_y()), std::make_pair(0, 0)) << style;
        EXPECT_EQ(marks.floating_image()->width(), style == 2 ? tile().width() : 2) << style;
        g_editor->run_command(command_clear);
    }
}

TEST_F(Selecting, WorkSelectionLiftsCopiesClonesAndKeepsByItsMode) {
    const Color blank(0, 0, 0, 0);
    fill_tile(blank);
    for (int x = 2; x <= 4; ++x) tile().set_pixel(x, 2, red);
    use_tool(command_rectangle_selector);
    stroke({{2, 2}, {4, 2}});
    use_tool(command_work_selection);
    EXPECT_TRUE(view().tile_selection().active());  // choosing the tool keeps what it moves
    stroke({{3, 2}, {3, 6}});
    EXPECT_EQ(tile().get_pixel(3, 2), blank);  // lifted
    EXPECT_EQ(on_screen(3, 6), red);
    // A click beside the image leaves a copy where it stood and brings it to the pointer.
    stroke({{10, 10}});
    EXPECT_EQ(tile().get_pixel(3, 6), red);
    EXPECT_EQ(on_screen(10, 10), red);
    undo();
    EXPECT_EQ(tile().get_pixel(3, 6), blank);
    EXPECT_EQ(view().tile_selection().float_y(), 6);
    undo();
    EXPECT_EQ(tile().get_pixel(3, 2), red);
    EXPECT_EQ(view().tile_selection().floating_image(), nullptr);
    EXPECT_TRUE(selected(3, 2));

    // "Fixed": the pixels stay and a copy moves. "Persistent": it keeps floating under other tools.
    g_tool_options->set_selection_mode(Selection_Tools::fixed);
    stroke({{3, 2}, {3, 8}});
    EXPECT_EQ(tile().get_pixel(3, 2), red);
    g_tool_options->set_selection_mode(Selection_Tools::persistent);
    use_tool(command_pen);
    EXPECT_NE(view().tile_selection().floating_image(), nullptr);
    EXPECT_EQ(tile().get_pixel(3, 8), blank);
    g_tool_options->set_selection_mode(Selection_Tools::standard);
    use_tool(command_work_selection);
    use_tool(command_pen);
    EXPECT_EQ(view().tile_selection().floating_image(), nullptr);
    EXPECT_EQ(tile().get_pixel(3, 8), red);
}

TEST_F(Selecting, ScrollDragWrapsAndFreehandRotateStartsFromThePressEveryMove) {
    fill_tile(Color(0, 0, 0, 0));
    tile().set_pixel(0, 0, red);
    tile().set_pixel(20, 11, blue);
    keep_edit();
    use_tool(command_scroll);
    stroke({{5, 5}, {4, 5}, {3, 4}});
    EXPECT_EQ(tile().get_pixel(22, 23), red);
    const auto& offset = static_cast<const Location_Info&>(g_tool_options->row(tool_pages::row_offset));
    EXPECT_EQ(offset.first(), -2);
    EXPECT_EQ(offset.second(), -1);
    undo();
    EXPECT_EQ(tile().get_pixel(0, 0), red);

    // A quarter turn about the centre, after a detour, is exactly "Rotate".
    Tile expected(24, 24);
    tile().copy_into(expected);
    rotate(expected);
    use_tool(command_freehand_rotate);
    stroke({{21, 12}, {2, 2}, {20, 20}, {11, 21}});
    for (int i = 0; i < expected.pixel_count(); ++i) ASSERT_EQ(tile().pixels()[i], expected.pixels()[i]) << i;
    const auto& degrees = static_cast<const Number_Info&>(g_tool_options->row(tool_pages::row_degrees));
    EXPECT_EQ(degrees.value(), 90);
    undo();
    EXPECT_EQ(tile().get_pixel(20, 11), blue);
    // Measured from the pointer, not its cell: from the middle of the right
    // edge to the middle of the bottom edge is a quarter turn, read as 90.
    const SDL_Point o = view().origin();
    const int s = view().pixel_size();
    Event_Script script;
    script.then([=] { push_motion(o.x + 12 * s, o.y + 47 * s / 2, SDL_BUTTON_LMASK); }).then([=] {
        push_button(o.x + 12 * s, o.y + 47 * s / 2, false);
    });
    push_button(o.x + 47 * s / 2, o.y + 12 * s, true);
    pump();
    EXPECT_EQ(degrees.value(), 90);
    // The Scroll page's location follows the pointer.
    use_tool(command_scroll);
    stroke({{5, 5}, {7, 9}});
    const auto& location = static_cast<const Location_Info&>(g_tool_options->row(tool_pages::row_location));
    EXPECT_EQ(std::make_pair(location.first(), location.second()), std::make_pair(7, 9));
}

TEST_F(Selecting, AnotherTileClearsTheSelection) {
    ASSERT_TRUE(g_options && g_options->is_on(Options::clear_selection));
    g_editor->run_command(command_add_new_tile);
    use_tool(command_rectangle_selector);
    stroke({{1, 1}, {4, 4}});
    g_editor->run_command(command_previous_tile);
    EXPECT_FALSE(view().tile_selection().active());
}

// The floating image is a layer over the cells: it shows wrapped where it
// crosses the edge, blended by its alpha, and leaves no trace where it was.
TEST_F(Selecting, AFloatingImageShowsWrappedAndBlendedAndMovesWithoutATrace) {
    fill_tile(Color(0, 0, 0));
    const int w = tile().width();
    const Color untouched = on_screen(1, 3);
    Tile image(2, 1);
    image.set_pixel(0, 0, red);
    image.set_pixel(1, 0, Color(10, 40, 230, 128));
    view().tile_selection().paste(image, w - 1, 3, view().tile());
    EXPECT_EQ(on_screen(w - 1, 3), red);
    const Color half = on_screen(0, 3);  // the wrapped, half-transparent pixel
    EXPECT_GT(half.blue, 100);
    EXPECT_LT(half.blue, 230);
    EXPECT_EQ(on_screen(1, 3), untouched);

    view().tile_selection().replace_float(&image, 4, 5);
    EXPECT_EQ(on_screen(w - 1, 3), untouched);
    EXPECT_EQ(on_screen(0, 3), untouched);
    EXPECT_EQ(on_screen(4, 5), red);
    EXPECT_EQ(tile().get_pixel(4, 5), Color(0, 0, 0)) << "floating, not stamped";
}

// A copy that is all transparent shows its size in the copy buffer pane: its
// area is light grey over the box's dark grey.
TEST_F(Selecting, AClearCopyShowsItsSizeInTheBuffer) {
    fill_tile(Color(0, 0, 0, 0));
    use_tool(command_rectangle_selector);
    stroke({{0, 0}, {3, 3}});
    key(SDLK_C, SDL_KMOD_CTRL);
    stroke({{0, 0}, {1, 1}});
    key(SDLK_C, SDL_KMOD_CTRL);
    use_tool(command_work_selection);
    g_editor->repaint(true);
    const Rectangle copy = g_tool_options->buffer_pane().thumbnail(1);
    EXPECT_EQ(read_pixel(copy.x + copy.width / 2, copy.y + copy.height / 2), ui_colors[ui_grey_169]);
}
