#include "model/tileset/undo_history.h"

#include <gtest/gtest.h>

#include <vector>

#include "model/core/commands.h"
#include "model/tile/tile.h"
#include "model/tile/tile_store.h"
#include "model/tileset/undo_target.h"

namespace {
// The editor's side of undo, kept in plain fields.
struct Fake_Target : Undo_Target {
    Fake_Target() : mask(4, 4) { mask.fill(Color(0, 0, 0)); }
    const Tile* selection_mask() const override { return &mask; }
    bool has_selection() const override { return selected; }
    const Tile* floating_area() const override { return floating; }
    int floating_x() const override { return 1; }
    int floating_y() const override { return 2; }
    void run_command(int command) override { ran.push_back(command); }
    void tile_changed() override { ++changes; }
    void restore_selection(const Tile* m) override {
        if (m) {
            m->copy_into(mask);
            selected = true;
        } else {
            mask.fill(Color(0, 0, 0));
            selected = false;
        }
    }
    void restore_floating_area(const Tile* area, int x, int y) override {
        if (!area) return;
        restored = area->get_pixel(0, 0);
        restored_x = x;
        restored_y = y;
    }

    Tile mask;
    bool selected = false;
    const Tile* floating = nullptr;
    std::vector<int> ran;
    int changes = 0;
    Color restored;
    int restored_x = 0;
    int restored_y = 0;
};

struct History : ::testing::Test {
    History() : store(4, 4, 256) {
        store.add_tile();
        history.start(store);
    }
    Tile& tile() { return *store.current_tile(); }
    // A stroke: the tile changes, then the pen's command is recorded.
    void stroke(uint8_t shade) {
        tile().fill(Color(shade, shade, shade));
        history.record(command_pen, store, &target);
    }

    Tile_Store store;
    Undo_History history;
    Fake_Target target;
};
}  // namespace

TEST_F(History, TwentyStrokesKeepEighteenAndSeventeenUndosReachTheFloor) {
    for (int i = 1; i <= 20; ++i) stroke(uint8_t(i * 10));
    EXPECT_EQ(history.count(), 18);
    for (int i = 0; i < 17; ++i) EXPECT_TRUE(history.undo(store, target)) << i;
    EXPECT_FALSE(history.undo(store, target));
    EXPECT_EQ(history.position(), 0);
    // The floor is the third stroke: the first two fell off the front.
    EXPECT_EQ(tile().get_pixel(0, 0), Color(30, 30, 30));
}

TEST_F(History, UndoAndRedoRestoreThePixels) {
    stroke(50);
    stroke(90);
    EXPECT_TRUE(history.undo(store, target));
    EXPECT_EQ(tile().get_pixel(1, 1), Color(50, 50, 50));
    EXPECT_TRUE(history.undo(store, target));
    EXPECT_EQ(tile().get_pixel(1, 1), Color());
    EXPECT_TRUE(history.redo(store, target));
    EXPECT_TRUE(history.redo(store, target));
    EXPECT_EQ(tile().get_pixel(1, 1), Color(90, 90, 90));
    EXPECT_FALSE(history.redo(store, target));
    // Strokes have no undo or redo commands of their own to run... except
    // their own number, which the dispatch treats as choosing the tool.
    EXPECT_EQ(target.ran, (std::vector<int>{command_pen, command_pen}));
}

TEST_F(History, UndoOfNextTileRunsChangeTileAndReturnsToTheEarlierTile) {
    stroke(70);
    store.add_tile();  // now on tile 1
    store.go_to(0);
    ASSERT_TRUE(store.next());
    EXPECT_FALSE(history.record_if_inverse(command_next_tile, store, &target));
    EXPECT_EQ(history.at(history.position()).undo_command(), command_change_tile);
    EXPECT_EQ(history.at(history.position()).tile_index(), 1);
    EXPECT_TRUE(history.undo(store, target));
    EXPECT_EQ(target.ran, (std::vector<int>{command_change_tile}));
    EXPECT_EQ(store.current_index(), 0);
    EXPECT_EQ(tile().get_pixel(0, 0), Color(70, 70, 70));
    // Redo goes forward to tile 1 again; "Change tile" has no inverse to run.
    EXPECT_TRUE(history.redo(store, target));
    EXPECT_EQ(store.current_index(), 1);
    EXPECT_EQ(target.ran.size(), 1u);
}

TEST_F(History, RecordIfInverseIgnoresCommandsWithoutOne) {
    EXPECT_FALSE(history.record_if_inverse(command_pen, store, &target));
    EXPECT_EQ(history.count(), 1);
    EXPECT_TRUE(history.record_if_inverse(command_scroll_left, store, &target));
    EXPECT_EQ(history.at(1).undo_command(), command_scroll_right);
    EXPECT_EQ(history.at(1).redo_command(), command_scroll_left);
}

TEST_F(History, CommandsThatChangeNothingRecordNothing) {
    EXPECT_FALSE(history.record(command_dropper, store, &target));
    EXPECT_FALSE(history.record(command_save, store, &target));
    EXPECT_EQ(history.count(), 1);
}

TEST_F(History, UndoRestoresTheSelectionMaskOrDeselects) {
    // A stroke made while a selection was active keeps the mask.
    target.selected = true;
    target.mask.set_pixel(2, 2, Color(255, 255, 255));
    stroke(40);
    ASSERT_NE(history.at(1).undo_command(), -1);
    // The next one is made without a selection.
    target.selected = false;
    target.mask.fill(Color(0, 0, 0));
    stroke(80);
    stroke(120);
    history.undo(store, target);  // back onto the stroke without a selection
    EXPECT_FALSE(target.selected);
    history.undo(store, target);  // back onto the stroke with the selection
    EXPECT_TRUE(target.selected);
    EXPECT_TRUE(target.mask.is_white(2, 2));
    EXPECT_FALSE(target.mask.is_white(1, 1));
}

TEST_F(History, SelectionCommandsAlwaysKeepTheMask) {
    EXPECT_FALSE(history.record(command_rectangle_selector, store, &target));
    const auto& node = static_cast<const ImageUndoNode&>(history.at(1));
    EXPECT_NE(node.mask(), nullptr);
}

TEST_F(History, WorkSelectionRecordsTheFloatingAreaOnlyWhenThereIsOne) {
    EXPECT_FALSE(history.record(command_work_selection, store, &target));
    EXPECT_EQ(history.count(), 1);
    Tile area(2, 2);
    area.fill(Color(5, 6, 7));
    target.floating = &area;
    EXPECT_TRUE(history.record(command_work_selection, store, &target));
    EXPECT_EQ(history.at(1).undo_command(), -1);
    EXPECT_EQ(history.at(1).redo_command(), -1);
    stroke(10);
    history.undo(store, target);
    EXPECT_EQ(target.restored, Color(5, 6, 7));
    EXPECT_EQ(target.restored_x, 1);
    EXPECT_EQ(target.restored_y, 2);
}

TEST_F(History, RestartLeavesOneRecordOfTheCurrentTile) {
    stroke(10);
    stroke(20);
    history.restart(store);
    EXPECT_EQ(history.count(), 1);
    EXPECT_FALSE(history.undo(store, target));
}
