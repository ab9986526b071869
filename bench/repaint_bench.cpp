// The main loop repaints the whole window once per event, so a repaint is the
// program's input latency. Each view is set against a bare clear and present
// of the same window in the same run.
#include <benchmark/benchmark.h>

#include "app/canvas_view.h"
#include "app/main_window.h"
#include "bench_program.h"
#include "document/tile.h"

namespace {
void BM_clear_and_present(benchmark::State& state) {
    Bench_Program program;
    for (auto _ : state) {
        g_main_window->clear();
        g_main_window->present();
    }
}

void BM_repaint_default_view(benchmark::State& state) {
    Bench_Program program;
    for (auto _ : state) g_editor->repaint(true);
}

// A 64 x 64 tile of varied colours, fully visible at pixel size 8, with a
// selection covering its left half: every cell, grid line, veil and edge.
void BM_repaint_heaviest_canvas(benchmark::State& state) {
    Bench_Program program;
    g_editor->tilesets().new_tileset(64, 64);
    Canvas_View& view = g_editor->canvas();
    Tile& tile = *view.tile();
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) tile.set_pixel(x, y, Color(uint8_t(x * 4), uint8_t(y * 4), uint8_t(x ^ y), uint8_t(128 + x)));
    tile.update_texture();
    view.set_pixel_size(8);
    view.centre();
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 32; ++x) view.selection()->set_pixel(x, y, Color(255, 255, 255));
    view.set_has_selection(true);
    for (auto _ : state) g_editor->repaint(true);
}
}  // namespace

BENCHMARK(BM_clear_and_present)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_repaint_default_view)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_repaint_heaviest_canvas)->Unit(benchmark::kMillisecond)->MinTime(1.0);
