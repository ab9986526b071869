// The 310 x 40 logo of the about box: a small mossy tile mosaic and the
// program's name in large pixel letters on a dark green plate.
#include <cmath>
#include <string>
#include <vector>

#include "sprites.h"

namespace {

constexpr int scale = 3;

// The name as a bitmap: the dialog font's letters, emboldened by one column.
std::vector<std::string> lettering(const std::string& text, int advance)
{
    const int h = large_glyph_height();
    std::vector<std::string> rows(static_cast<std::size_t>(h), std::string(text.size() * advance + 2, '.'));
    for (std::size_t i = 0; i < text.size(); ++i)
        for (int y = 0; y < h; ++y) {
            const char* bits = large_glyph_row(text[i], y);
            for (int x = 0; x < large_glyph_width(); ++x)
                if (bits[x] == '#') {
                    const std::size_t at = i * advance + x;
                    if (at + 1 < rows[y].size()) {
                        rows[y][at] = '#';
                        rows[y][at + 1] = '#';
                    }
                }
        }
    return rows;
}

void plate(Area& a)
{
    const Rgb top{52, 88, 56}, bottom{22, 44, 28};
    for (int y = 0; y < a.h(); ++y)
        a.fill(0, y, a.w(), 1, mix(top, bottom, y * 100 / (a.h() - 1)));
    a.frame(0, 0, a.w(), a.h(), {120, 170, 104});
    a.frame(1, 1, a.w() - 2, a.h() - 2, {34, 60, 38});
    // Rounded corners.
    const int w = a.w(), h = a.h();
    for (int i = 0; i < 2; ++i) {
        a.set(i, 0, magenta);
        a.set(0, i, magenta);
        a.set(w - 1 - i, 0, magenta);
        a.set(w - 1, i, magenta);
        a.set(i, h - 1, magenta);
        a.set(0, h - 1 - i, magenta);
        a.set(w - 1 - i, h - 1, magenta);
        a.set(w - 1, h - 1 - i, magenta);
    }
    a.set(1, 1, {120, 170, 104});
    a.set(w - 2, 1, {120, 170, 104});
    a.set(1, h - 2, {120, 170, 104});
    a.set(w - 2, h - 2, {120, 170, 104});
}

// Four by four tiles, like a tileset of moss and stone.
void mosaic(Area& a, int left, int top)
{
    const Rgb tiles[] = {
        {96, 160, 72},  {72, 128, 60}, {128, 176, 84}, {140, 132, 112},
        {64, 120, 56},  {120, 170, 80}, {150, 144, 124}, {88, 150, 70},
        {132, 182, 90}, {150, 144, 124}, {76, 136, 62}, {110, 164, 78},
        {140, 132, 112}, {90, 152, 70}, {118, 172, 82}, {70, 124, 58},
    };
    for (int row = 0; row < 4; ++row)
        for (int col = 0; col < 4; ++col) {
            const Rgb c = tiles[row * 4 + col];
            const int x = left + col * 8, y = top + row * 8;
            a.fill(x, y, 7, 7, c);
            a.fill(x, y, 7, 1, lighter(c, 40));
            a.fill(x, y + 6, 7, 1, darker(c, 40));
        }
}

}  // namespace

void paint_logo(Canvas& canvas)
{
    Area a = sprite_area(canvas, "logo");
    plate(a);
    mosaic(a, 8, 4);

    const std::vector<std::string> rows = lettering("Mosswick", 9);
    // Only the rows that carry ink are used, so the letters fill the plate's height.
    int first = -1, last = -1;
    for (int y = 0; y < static_cast<int>(rows.size()); ++y)
        if (rows[y].find('#') != std::string::npos) {
            if (first < 0)
                first = y;
            last = y;
        }
    const int width = static_cast<int>(rows[0].size()) * scale;
    const int height = (last - first + 1) * scale;
    const int left = 48 + (a.w() - 48 - width) / 2;
    const int top = (a.h() - height) / 2;
    auto ink_at = [&](int x, int y) {
        const int gx = (x - left) / scale, gy = (y - top) / scale + first;
        if (x < left || y < top || gx >= static_cast<int>(rows[0].size()) || gy > last)
            return false;
        return rows[gy][gx] == '#';
    };
    // A soft shadow down and right, then the letters with a dark rim and a
    // light-to-moss gradient.
    for (int y = 0; y < a.h(); ++y)
        for (int x = 0; x < a.w(); ++x)
            if (ink_at(x - 2, y - 2))
                a.set(x, y, {12, 26, 16});
    a.shape_coloured([&](int x, int y, Rgb& c) {
        c = mix({226, 246, 170}, {92, 168, 70}, (y - top) * 100 / std::max(1, height - 1));
        return ink_at(x, y);
    }, {16, 36, 20});
}
