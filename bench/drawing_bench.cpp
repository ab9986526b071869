// The drawing tools' worst cases: a long pen drag with a full repaint per
// event, a flood fill along a one-pixel-wide spiral, and one undo and redo.
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
#include "model/paint/distance_grid.h"
#include "model/paint/painter.h"
#include "model/tile/tile.h"
#include "model/tile/tile_store.h"
#include "model/tileset/tileset.h"
#include "model/tileset/undo_history.h"
#include "model/selection/tile_selection.h"
#include "bench/bench_program.h"
#include "bench/canvas_drag.h"
#include "ui/backdrop.h"


namespace {

// A corridor one pixel wide winding from the corner to the middle, walls
// between its turns: the fill needs one wave level per corridor pixel.
void make_spiral(Tile& t) {
    const Color wall(0, 0, 0);
    const Color open(255, 255, 255);
    t.fill(wall);
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

void BM_fill_spiral_64(benchmark::State& state) {
    Tile source(64, 64);
    make_spiral(source);
    Tile work(64, 64);
    Painter painter;
    Distance_Grid grid;
    for (auto _ : state) {
        source.copy_into(work);
        painter.fill(grid, 0, 0, Color(200, 0, 0), work, work, false);
        benchmark::DoNotOptimize(work.pixels());
    }
    int deepest = 0;
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) deepest = std::max(deepest, grid.get(x, y) < Distance_Grid::wall ? grid.get(x, y) : 0);
    state.counters["wave_levels"] = deepest;
}

void BM_undo_redo_64(benchmark::State& state) {
    Tile_Store store(64, 64, 256);
    store.add_tile();
    Undo_History history;
    history.start(store);
    Tile_Selection selection;
    selection.follow_tile(store.current_tile());
    store.current_tile()->fill(Color(1, 2, 3));
    history.record(command_pen, store, &selection);
    for (auto _ : state) {
        history.undo(store, selection);
        history.redo(store, selection);
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * 2);
}

// The real program with a 64 x 64 tile at pixel size 8 and the pen in red.
struct Program : Bench_Program {
    Program() {
        g_editor->tilesets().new_tileset(64, 64);
        g_editor->canvas().set_pixel_size(8);
        g_editor->canvas().centre();
        g_editor->run_command(command_pen);
        g_editor->drawing().context().take_color(0, Color(200, 30, 30));
    }
};

void BM_pen_drag_64_px8(benchmark::State& state) {
    Program program;
    std::vector<double> per_event;
    for (auto _ : state) {
        const std::vector<double> times = drag_per_event_ms();
        per_event.insert(per_event.end(), times.begin(), times.end());
        g_editor->undo().undo();
    }
    std::sort(per_event.begin(), per_event.end());
    state.counters["median_ms_per_event"] = per_event.empty() ? 0 : per_event[per_event.size() / 2];
    state.counters["p95_ms_per_event"] = per_event.empty() ? 0 : per_event[per_event.size() * 95 / 100];
}

}  // namespace

BENCHMARK(BM_fill_spiral_64)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_undo_redo_64)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_pen_drag_64_px8)->Unit(benchmark::kMillisecond)->Iterations(3);
