#include "model/tileset/undo_history.h"

#include <gtest/gtest.h>

#include "model/core/commands.h"
#include "model/selection/tile_selection.h"
#include "model/tile/tile.h"
#include "model/tile/tile_store.h"

namespace {

struct History : ::testing::Test {
    History() : store(4, 4, 256) {
        store.add_tile();
        history.start(store);
        selection.follow_tile(store.current_tile());
    }
    Tile& tile() { return *store.current_tile(); }
    // A stroke: the tile changes, then the pen's command is recorded.
    void stroke(uint8_t shade) {
        tile().fill(Color(shade, shade, shade));
        history.record(command_pen, store, &selection);
    }

    Tile_Store store;
    Undo_History history;
    Tile_Selection selection;
};

TEST_F(History, TwentyStrokesKeepEighteenAndSeventeenUndosReachTheFloor) {
    for (int i = 1; i <= 20; ++i) stroke(uint8_t(i * 10));
    EXPECT_EQ(history.count(), 18);
    for (int i = 0; i < 17; ++i) EXPECT_TRUE(history.undo(store, selection)) << i;
    EXPECT_FALSE(history.undo(store, selection));
    EXPECT_EQ(history.command_to_undo(), -1);
    // The floor is the third stroke: the first two fell off the front.
    EXPECT_EQ(tile().get_pixel(0, 0), Color(30, 30, 30));
}

TEST_F(History, UndoAndRedoRestoreThePixelsAndNameTheStrokesTool) {
    stroke(50);
    stroke(90);
    EXPECT_EQ(history.command_to_undo(), command_pen);
    EXPECT_TRUE(history.undo(store, selection));
    EXPECT_EQ(tile().get_pixel(1, 1), Color(50, 50, 50));
    EXPECT_TRUE(history.undo(store, selection));
    EXPECT_EQ(tile().get_pixel(1, 1), Color());
    EXPECT_TRUE(history.redo(store, selection));
    EXPECT_TRUE(history.redo(store, selection));
    EXPECT_EQ(tile().get_pixel(1, 1), Color(90, 90, 90));
    EXPECT_FALSE(history.redo(store, selection));
    EXPECT_EQ(history.command_to_redo(), -1);
}

TEST_F(History, UndoBringsBackTheSelectionAndTheFloatingImage) {
    // A stroke made while a selection was active keeps the mask.
    selection.mask()->set_pixel(2, 2, Color(255, 255, 255));
    selection.set_active(true);
    stroke(40);
    // The next one is made without a selection, the one after with an image floating.
    selection.clear();
    stroke(80);
    Tile area(2, 2);
    area.fill(Color(5, 6, 7));
    selection.paste(area, 1, 2, &tile());
    EXPECT_TRUE(history.record(command_work_selection, store, &selection));
    selection.commit(&tile());
    stroke(120);

    history.undo(store, selection);  // the image floats again, not yet stamped
    ASSERT_NE(selection.floating_image(), nullptr);
    EXPECT_EQ(selection.floating_image()->get_pixel(0, 0), Color(5, 6, 7));
    EXPECT_EQ(selection.float_x(), 1);
    EXPECT_EQ(selection.float_y(), 2);
    EXPECT_EQ(tile().get_pixel(1, 2), Color(80, 80, 80));
    history.undo(store, selection);
    EXPECT_EQ(selection.floating_image(), nullptr);
    EXPECT_FALSE(selection.active());
    history.undo(store, selection);
    EXPECT_TRUE(selection.active());
    EXPECT_TRUE(selection.mask()->is_white(2, 2));
    EXPECT_FALSE(selection.mask()->is_white(1, 1));
    // "Work selection" without a floating image records nothing.
    EXPECT_FALSE(history.record(command_work_selection, store, &selection));
}

}  // namespace
