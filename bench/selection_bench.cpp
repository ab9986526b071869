// The selection's worst cases: a long drag of a floating 64 x 64 image that
// wraps across the edges, timed beside a pen drag in the same run; the wand
// along a one-pixel-wide spiral; one freehand rotation step of a 64 x 64 tile.
#include <benchmark/benchmark.h>

#include <SDL3/SDL.h>

#include <algorithm>
#include <vector>

#include "app/canvas_view.h"
#include "model/core/commands.h"
#include "app/editor.h"
#include "platform/globals.h"
#include "app/strokes/drawing_tools.h"
#include "app/undo_control.h"
#include "bench/bench_program.h"
#include "bench/canvas_drag.h"
#include "model/paint/distance_grid.h"
#include "model/tile/tile.h"
#include "model/selection/free_rotation.h"
#include "model/selection/mask_ops.h"
#include "ui/backdrop.h"

namespace {

// A corridor one pixel wide winding from the corner to the middle.
void make_spiral(Tile& t) {
    t.fill(Color(0, 0, 0));
    const Color open(255, 255, 255);
    int left = 0, top = 0, right = t.width() - 1, bottom = t.height() - 1;
    while (left <= right && top <= bottom) {
        for (int x = left; x <= right; ++x) t.set_pixel(x, top, open);
        for (int y = top; y <= bottom; ++y) t.set_pixel(right, y, open);
        if (top + 2 > bottom) break;
        for (int x = right; x >= left; --x) t.set_pixel(x, bottom, open);
        if (left + 2 > right) break;
        for (int y = bottom; y >= top + 2; --y) t.set_pixel(left, y, open);
        t.set_pixel(left + 1, top + 2, open);
        left += 2, top += 2, right -= 2, bottom -= 2;
    }
}

void BM_wand_spiral_64(benchmark::State& state) {
    Tile tile(64, 64);
    make_spiral(tile);
    Tile mask(64, 64);
    Distance_Grid grid;
    for (auto _ : state) {
        mask_ops::clear(mask);
        mask_ops::apply_wand(mask, tile, grid, 0, 0, true);
        benchmark::DoNotOptimize(mask.pixels());
    }
}

void BM_free_rotate_64(benchmark::State& state) {
    Tile source(64, 64);
    for (int i = 0; i < source.pixel_count(); ++i) source.pixels()[i] = Color(uint8_t(i), uint8_t(i >> 4), 90);
    Tile turned(64, 64);
    double degrees = 0;
    for (auto _ : state) {
        rotate_nearest(source, turned, degrees, nullptr);
        degrees += 7.3;
        benchmark::DoNotOptimize(turned.pixels());
    }
}

double median_drag_ms() {
    std::vector<double> per_event = drag_per_event_ms();
    std::sort(per_event.begin(), per_event.end());
    return per_event.empty() ? 0 : per_event[per_event.size() / 2];
}

// The pen drag and the floating drag in the same program and run: the
// floating image covers the whole tile, so every cell changes at every move.
void BM_floating_drag_vs_pen_64_px8(benchmark::State& state) {
    Bench_Program program;
    g_editor->tilesets().new_tileset(64, 64);
    g_editor->canvas().set_pixel_size(8);
    g_editor->canvas().centre();
    Tile image(64, 64);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) image.set_pixel(x, y, Color(uint8_t(x * 4), uint8_t(y * 4), 120));
    double pen = 0;
    double floating = 0;
    for (auto _ : state) {
        g_editor->run_command(command_pen);
        g_editor->drawing().context().take_color(0, Color(200, 30, 30));
        pen = median_drag_ms();
        g_editor->undo().undo();
        g_editor->canvas().tile_selection().paste(image, 0, 0, g_editor->canvas().tile());
        g_editor->run_command(command_work_selection);
        floating = median_drag_ms();
        g_editor->canvas().tile_selection().replace_float(nullptr, 0, 0);
        g_editor->undo().undo();
    }
    state.counters["pen_median_ms"] = pen;
    state.counters["floating_median_ms"] = floating;
    state.counters["floating_over_pen"] = pen > 0 ? floating / pen : 0;
}

}  // namespace

BENCHMARK(BM_wand_spiral_64)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_free_rotate_64)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_floating_drag_vs_pen_64_px8)->Unit(benchmark::kMillisecond)->Iterations(3);
