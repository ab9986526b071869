#include "model/paint/distance_grid.h"

void Distance_Grid::resize(int width, int height) {
    grid_width = width > 0 ? width : 0;
    grid_height = height > 0 ? height : 0;
    const size_t count = size_t(grid_width) * size_t(grid_height);
    cells.resize(count);
    if (queue.capacity() < count) queue.reserve(count);
}

void Distance_Grid::expand() {
    queue.clear();
    for (size_t i = 0; i < cells.size(); ++i)
        if (cells[i] == 1) queue.push_back(int32_t(i));
    // Neighbours left, up, right, down; each open cell joins the queue once.
    size_t head = 0;
    while (head < queue.size()) {
        const int32_t index = queue[head++];
        const int32_t level = cells[size_t(index)];
        if (level >= wall) break;
        const int x = index % grid_width;
        const int y = index / grid_width;
        const int nx[4] = {x - 1, x, x + 1, x};
        const int ny[4] = {y, y - 1, y, y + 1};
        for (int k = 0; k < 4; ++k) {
            if (get(nx[k], ny[k]) != open) continue;
            const int32_t next = ny[k] * grid_width + nx[k];
            cells[size_t(next)] = level + 1;
            queue.push_back(next);
        }
    }
}
