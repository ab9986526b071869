#pragma once

#include <algorithm>
#include <cmath>
#include <cstdlib>

// The points of a line from (x1, y1) to (x2, y2), both ends included: n steps
// of a single-precision float increment, each point rounded to the nearest
// cell with halves away from zero. The pen joins its pointer positions with
// the same walk, so a stroke looks like a drawn line.
template <typename Visit>
void for_each_line_point(int x1, int y1, int x2, int y2, Visit&& visit) {
    if (x1 == x2 && y1 == y2) {
        visit(x1, y1);
        return;
    }
    const int n = std::max(std::abs(x2 - x1), std::abs(y2 - y1));
    const float sx = float(x2 - x1) / float(n);
    const float sy = float(y2 - y1) / float(n);
    float fx = float(x1);
    float fy = float(y1);
    for (int i = 0; i <= n; ++i) {
        visit(int(std::round(fx)), int(std::round(fy)));
        fx += sx;
        fy += sy;
    }
}
