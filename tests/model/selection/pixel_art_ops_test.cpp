// Freehand rotation and anti-aliasing on small hand-made tiles.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "model/tile/tile.h"
#include "model/tile/transforms.h"
#include "model/selection/anti_alias.h"
#include "model/selection/free_rotation.h"
#include "model/selection/mask_ops.h"

namespace {
const Color ink(20, 30, 200);
const Color paper(250, 250, 240);

// One character a pixel: '#' ink, '.' paper.
void draw(Tile& tile, const std::vector<std::string>& rows) {
    for (int y = 0; y < int(rows.size()); ++y)
        for (int x = 0; x < int(rows[size_t(y)].size()); ++x)
            tile.set_pixel(x, y, rows[size_t(y)][size_t(x)] == '#' ? ink : paper);
}

std::set<uint32_t> colours_of(const Tile& t) {
    std::set<uint32_t> found;
    for (int i = 0; i < t.pixel_count(); ++i) found.insert(t.pixels()[i].word());
    return found;
}
}  // namespace

TEST(FreeRotation, QuarterTurnsAreExactAndOtherAnglesInventNoColour) {
    Tile source(7, 7);
    for (int y = 0; y < 7; ++y)
        for (int x = 0; x < 7; ++x) source.set_pixel(x, y, Color(uint8_t(x * 36), uint8_t(y * 36), 9));
    Tile turned(7, 7);
    rotate_nearest(source, turned, 90, nullptr);
    Tile expected(7, 7);
    source.copy_into(expected);
    rotate(expected);
    for (int i = 0; i < 49; ++i) ASSERT_EQ(turned.pixels()[i], expected.pixels()[i]) << i;
    rotate_nearest(source, turned, 360, nullptr);
    for (int i = 0; i < 49; ++i) ASSERT_EQ(turned.pixels()[i], source.pixels()[i]) << i;

    rotate_nearest(source, turned, 33, nullptr);
    std::set<uint32_t> allowed = colours_of(source);
    allowed.insert(Color(0, 0, 0, 0).word());
    for (uint32_t c : colours_of(turned)) EXPECT_TRUE(allowed.count(c)) << std::hex << c;
    EXPECT_EQ(turned.get_pixel(3, 3), source.get_pixel(3, 3));  // the centre stays
}

TEST(FreeRotation, ASelectionTurnsAboutItsOwnCentreAndLeavesTheRest) {
    Tile source(8, 8);
    draw(source, {"........", ".###....", "........", "........", "........", "........", "......#.", "........"});
    Tile mask(8, 8);
    mask_ops::clear(mask);
    mask_ops::apply_rectangle(mask, 1, 1, 3, 1, true);  // the bar of three
    Tile turned(8, 8);
    rotate_nearest(source, turned, 90, &mask);
    // Upright about its middle pixel (2, 1): it now reaches from y 0 to 2.
    EXPECT_EQ(turned.get_pixel(2, 0), ink);
    EXPECT_EQ(turned.get_pixel(2, 1), ink);
    EXPECT_EQ(turned.get_pixel(2, 2), ink);
    EXPECT_EQ(turned.alpha(1, 1), 0);  // where the bar was
    EXPECT_EQ(turned.get_pixel(6, 6), ink);  // unselected: untouched
    EXPECT_EQ(turned.get_pixel(0, 0), paper);
}

TEST(AntiAlias, SoftensTheOutsideCornersOfThickStepsOnly) {
    Tile tile(8, 6);
    const std::vector<std::string> steps{"###.....", "####....", "#####...", "........", "........", "........"};
    draw(tile, steps);
    EXPECT_EQ(anti_alias(tile, nullptr), 2);
    const Color half(uint8_t((20 + 250 + 1) / 2), uint8_t((30 + 250 + 1) / 2), uint8_t((200 + 240 + 1) / 2));
    EXPECT_EQ(tile.get_pixel(3, 0), half);
    EXPECT_EQ(tile.get_pixel(4, 1), half);
    EXPECT_EQ(tile.get_pixel(3, 1), ink);  // the figure itself is not eaten into
    EXPECT_EQ(tile.get_pixel(5, 2), paper);

    // Lines one pixel wide, straight edges and flat areas stay as they are.
    for (const std::vector<std::string>& rows :
         {std::vector<std::string>{"#.......", ".#......", "..#.....", "...#....", "....#...", "........"},
          std::vector<std::string>{"##......", "..##....", "....##..", "........", "........", "........"},
          std::vector<std::string>{"########", "########", "........", "........", "........", "........"},
          std::vector<std::string>{"........", "........", "........", "........", "........", "........"}}) {
        draw(tile, rows);
        EXPECT_EQ(anti_alias(tile, nullptr), 0) << rows[0] << "/" << rows[1];
    }

    // With a selection only its pixels change.
    draw(tile, steps);
    Tile mask(8, 6);
    mask_ops::clear(mask);
    mask.set_pixel(4, 1, mask_ops::selected);
    EXPECT_EQ(anti_alias(tile, &mask), 1);
    EXPECT_EQ(tile.get_pixel(3, 0), paper);
    EXPECT_EQ(tile.get_pixel(4, 1), half);
}
