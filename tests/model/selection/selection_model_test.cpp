// The selection's model: masks, the copy buffer and floating images.
#include <gtest/gtest.h>

#include "model/paint/distance_grid.h"
#include "model/tile/tile.h"
#include "model/selection/copy_buffer.h"
#include "model/selection/floating.h"
#include "model/selection/mask_ops.h"

namespace {
int selected_count(const Tile& mask) {
    int n = 0;
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x) n += mask_ops::is_selected(mask, x, y);
    return n;
}

}  // namespace

TEST(SelectionMask, ShapesAddAndSubtractAndInvertFlipsEveryPixel) {
    Tile mask(10, 8);
    mask_ops::clear(mask);
    EXPECT_FALSE(mask_ops::any_selected(mask));
    EXPECT_TRUE(mask_ops::bounds(mask).empty());
    mask_ops::apply_rectangle(mask, 6, 5, 2, 1, true);  // corners in any order
    EXPECT_EQ(selected_count(mask), 5 * 5);
    EXPECT_EQ(mask_ops::bounds(mask), (Rectangle{2, 1, 5, 5}));
    mask_ops::apply_rectangle(mask, 3, 2, 5, 4, false);
    EXPECT_EQ(selected_count(mask), 25 - 9);
    EXPECT_FALSE(mask_ops::is_selected(mask, 4, 3));
    EXPECT_EQ(mask_ops::bounds(mask), (Rectangle{2, 1, 5, 5}));
    // Out of the tile nothing is selected, and shapes past the edge are cut.
    EXPECT_FALSE(mask_ops::is_selected(mask, -1, 0));
    mask_ops::apply_ellipse(mask, 9, 0, 3, 2, true);
    EXPECT_TRUE(mask_ops::is_selected(mask, 9, 0));
    EXPECT_EQ(mask_ops::bounds(mask).x + mask_ops::bounds(mask).width, 10);

    const int before = selected_count(mask);
    mask_ops::invert(mask);
    EXPECT_EQ(selected_count(mask), 10 * 8 - before);
    EXPECT_TRUE(mask_ops::is_selected(mask, 4, 3));
}

TEST(SelectionMask, TheWandTakesTheFourConnectedAreaAndNotTouchingCorners) {
    // Two red blocks meeting only at a corner, on blue.
    Tile tile(6, 6);
    tile.fill(Color(0, 0, 255));
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 3; ++x) tile.set_pixel(x, y, Color(255, 0, 0));
    for (int y = 3; y < 6; ++y)
        for (int x = 3; x < 6; ++x) tile.set_pixel(x, y, Color(255, 0, 0, 40));
    Tile mask(6, 6);
    mask_ops::clear(mask);
    Distance_Grid grid;
    mask_ops::apply_wand(mask, tile, grid, 1, 1, true);
    EXPECT_EQ(selected_count(mask), 9);
    EXPECT_EQ(mask_ops::bounds(mask), (Rectangle{0, 0, 3, 3}));
    mask_ops::apply_wand(mask, tile, grid, 5, 5, true);
    EXPECT_EQ(selected_count(mask), 18);
    mask_ops::apply_wand(mask, tile, grid, 0, 0, false);
    EXPECT_EQ(selected_count(mask), 9);
    EXPECT_TRUE(mask_ops::is_selected(mask, 3, 3));
    mask_ops::apply_wand(mask, tile, grid, 6, 0, true);  // outside: nothing
    EXPECT_EQ(selected_count(mask), 9);
    // Alpha counts: a cleared background is not the black outline across it.
    tile.fill(Color(0, 0, 0, 0));
    for (int y = 0; y < 6; ++y) tile.set_pixel(2, y, Color(0, 0, 0));
    mask_ops::clear(mask);
    mask_ops::apply_wand(mask, tile, grid, 0, 0, true);
    EXPECT_EQ(mask_ops::bounds(mask), (Rectangle{0, 0, 2, 6}));
}

TEST(CopyBuffer, CopiesTheBoundingBoxWithUnselectedPixelsTransparentAndKeepsEarlierCopies) {
    Tile tile(8, 8);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x) tile.set_pixel(x, y, Color(uint8_t(x * 30), uint8_t(y * 30), 7));
    Tile mask(8, 8);
    mask_ops::clear(mask);
    Copy_Buffer buffer;
    EXPECT_FALSE(buffer.copy(tile, mask));
    EXPECT_TRUE(buffer.empty());
    mask.set_pixel(2, 3, mask_ops::selected);
    mask.set_pixel(4, 5, mask_ops::selected);
    ASSERT_TRUE(buffer.copy(tile, mask));
    const Tile& copied = *buffer.current();
    ASSERT_EQ(copied.width(), 3);
    ASSERT_EQ(copied.height(), 3);
    EXPECT_EQ(copied.get_pixel(0, 0), tile.get_pixel(2, 3));
    EXPECT_EQ(copied.get_pixel(2, 2), tile.get_pixel(4, 5));
    EXPECT_EQ(copied.get_pixel(1, 1), Color(0, 0, 0, 0));

    for (int i = 0; i < Copy_Buffer::kept + 3; ++i) {
        mask_ops::clear(mask);
        mask.set_pixel(i % 8, 0, mask_ops::selected);
        buffer.copy(tile, mask);
    }
    EXPECT_EQ(buffer.count(), Copy_Buffer::kept);
    const Tile* older = buffer.at(3);
    ASSERT_TRUE(buffer.make_current(3));
    EXPECT_EQ(buffer.current(), older);
    EXPECT_FALSE(buffer.make_current(Copy_Buffer::kept));
}

TEST(CopyBuffer, ClonesAreCentredAnchoredOrResizedForLargerAndSmallerImages) {
    Copy_Buffer buffer;
    Tile small(4, 2);
    small.fill(Color(9, 9, 9));
    small.set_pixel(0, 0, Color(0, 0, 0, 0));
    buffer.keep(small, 0, 0, 4, 2);
    Placement p = buffer.place(16, 16, Copy_Buffer::centre);
    EXPECT_EQ(std::make_pair(p.x, p.y), std::make_pair(6, 7));
    p = buffer.place(16, 16, Copy_Buffer::top_left);
    EXPECT_EQ(std::make_pair(p.x, p.y), std::make_pair(0, 0));
    p = buffer.place(16, 16, Copy_Buffer::resize);
    ASSERT_EQ(p.image->width(), 16);
    EXPECT_EQ(p.image->height(), 16);
    EXPECT_EQ(p.image->get_pixel(15, 15), Color(9, 9, 9));
    EXPECT_EQ(p.image->alpha(0, 0), 0);  // transparent stays transparent

    Tile large(20, 10);
    large.fill(Color(1, 2, 3));
    buffer.keep(large, 0, 0, 20, 10);
    p = buffer.place(8, 8, Copy_Buffer::centre);
    EXPECT_EQ(std::make_pair(p.x, p.y), std::make_pair(-6, -1));  // overhangs evenly
    EXPECT_EQ(p.image->width(), 20);
    p = buffer.place(8, 8, Copy_Buffer::resize);
    EXPECT_EQ(p.image->width(), 8);
    EXPECT_EQ(p.image->get_pixel(7, 7), Color(1, 2, 3));
    EXPECT_FALSE(Copy_Buffer().place(8, 8, Copy_Buffer::centre).image);
}

TEST(FloatingImage, WrapsAcrossEveryEdgeAndLiftLeavesAHole) {
    EXPECT_EQ(floating::wrap(-1, 8), 7);
    EXPECT_EQ(floating::wrap(-17, 8), 7);
    EXPECT_EQ(floating::wrap(8, 8), 0);

    Tile tile(8, 8);
    tile.fill(Color(0, 0, 0, 0));
    Tile image(3, 2);
    image.fill(Color(200, 0, 0));
    image.set_pixel(1, 0, Color(0, 0, 0, 0));
    floating::stamp_wrapped(tile, image, 7, -1);  // over the right and the top edge
    EXPECT_EQ(tile.get_pixel(7, 7), Color(200, 0, 0));
    EXPECT_EQ(tile.alpha(0, 7), 0);  // transparent pixel left the tile alone
    EXPECT_EQ(tile.get_pixel(1, 7), Color(200, 0, 0));
    EXPECT_EQ(tile.get_pixel(7, 0), Color(200, 0, 0));
    EXPECT_EQ(tile.get_pixel(1, 0), Color(200, 0, 0));

    Tile mask(8, 8);
    mask_ops::clear(mask);
    mask.set_pixel(7, 7, mask_ops::selected);
    mask.set_pixel(6, 6, mask_ops::selected);
    int x = 0;
    int y = 0;
    const std::unique_ptr<Tile> lifted = floating::lift(tile, mask, x, y);
    ASSERT_TRUE(lifted);
    EXPECT_EQ(x, 6);
    EXPECT_EQ(y, 6);
    EXPECT_EQ(lifted->get_pixel(1, 1), Color(200, 0, 0));
    EXPECT_EQ(tile.alpha(7, 7), 0);
    mask_ops::clear(mask);
    EXPECT_FALSE(floating::lift(tile, mask, x, y));
}
