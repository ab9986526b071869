#include <gtest/gtest.h>

#include <random>
#include <utility>
#include <vector>

#include "model/paint/distance_grid.h"
#include "model/paint/painter.h"
#include "model/tile/tile.h"

namespace {
const Color ink(250, 0, 0);
const Color white(255, 255, 255);

int count_of(const Tile& t, Color c) {
    int n = 0;
    for (int y = 0; y < t.height(); ++y)
        for (int x = 0; x < t.width(); ++x) n += t.get_pixel(x, y) == c;
    return n;
}
}  // namespace

// The area is found as a plain four-connected search finds it, comparing
// colours without their alpha.
TEST(Fill, MatchesAPlainFourConnectedSearchIgnoringAlpha) {
    const int n = 24;
    Tile t(n, n);
    std::mt19937 random(7);
    for (int y = 0; y < n; ++y)
        for (int x = 0; x < n; ++x)
            t.set_pixel(x, y, random() % 3 ? Color(255, 255, 255, uint8_t(random())) : Color(0, 0, 0));
    t.set_pixel(5, 5, white);
    // The expected area, found by a depth-first search of its own.
    std::vector<int> seen(n * n, 0);
    std::vector<std::pair<int, int>> stack{{5, 5}};
    seen[5 * n + 5] = 1;
    while (!stack.empty()) {
        const auto [x, y] = stack.back();
        stack.pop_back();
        const int dx[4] = {-1, 0, 1, 0}, dy[4] = {0, -1, 0, 1};
        for (int k = 0; k < 4; ++k) {
            const int nx = x + dx[k], ny = y + dy[k];
            if (nx < 0 || ny < 0 || nx >= n || ny >= n || seen[ny * n + nx]) continue;
            if (t.get_pixel(nx, ny).red != 255) continue;
            seen[ny * n + nx] = 1;
            stack.push_back({nx, ny});
        }
    }
    Painter p;
    Distance_Grid g;
    p.fill(g, 5, 5, ink, t, t, false);
    for (int y = 0; y < n; ++y)
        for (int x = 0; x < n; ++x) EXPECT_EQ(t.get_pixel(x, y) == ink, seen[y * n + x] == 1) << x << "," << y;
}

// The selection bounds the area, but a fill started outside it still paints
// its seed; the wand paints the mask whatever is selected.
TEST(Fill, StaysInTheSelectionYetPaintsItsSeedAndTheWandIgnoresIt) {
    Tile t(5, 5);
    t.fill(white);
    Tile mask(5, 5);
    mask.fill(Color(0, 0, 0));
    for (int x = 0; x < 3; ++x) mask.set_pixel(x, 0, white);
    Painter p;
    p.set_target(&t);
    p.set_mask(&mask);
    p.set_clip(true);
    Distance_Grid g;
    p.fill(g, 1, 0, ink, t, t, false);
    EXPECT_EQ(count_of(t, ink), 3);
    p.fill(g, 4, 4, ink, t, t, false);
    EXPECT_EQ(t.get_pixel(4, 4), ink);
    EXPECT_EQ(count_of(t, ink), 4);
    // The painter's own settings are back after the fill.
    EXPECT_TRUE(p.clipping());
    EXPECT_EQ(p.target_tile(), &t);

    mask.fill(Color(0, 0, 0));
    p.fill(g, 2, 2, white, t, mask, true);
    EXPECT_EQ(count_of(mask, white), 25 - 4);
    EXPECT_EQ(count_of(t, white), 25 - 4);
}
