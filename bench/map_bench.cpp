// The map editor's window with a full map: 80 x 80 cells of 6 x 6 tiles, the
// most cells a map has, with the seam checker on, beside a bare clear and
// present of the same window; and the seam check of such a map alone.
#include <benchmark/benchmark.h>

#include "platform/main_window.h"
#include "bench/bench_program.h"
#include "model/tileset/tileset.h"
#include "features/map/map_view.h"
#include "model/map/seam_check.h"
#include "ui/backdrop.h"

namespace {
constexpr int tile_kinds = 16;

// Sixteen 6 x 6 tiles. Mixed: each its own colour, laid so that every
// neighbour is another tile and every edge is a seam (the most marks to
// draw). Matching: the same border on all, so no edge is a seam and every
// pair is compared pixel by pixel.
Tileset& full_map(bool matching) {
    g_editor->tilesets().new_tileset(6, 6);
    Tileset& t = *g_editor->current();
    while (t.store().tile_count() < tile_kinds) t.store().add_tile();
    for (int k = 0; k < tile_kinds; ++k) {
        Tile& tile = *t.store().tile_at(k);
        for (int y = 0; y < 6; ++y)
            for (int x = 0; x < 6; ++x) {
                const bool border = x == 0 || y == 0 || x == 5 || y == 5;
                tile.set_pixel(x, y, matching && border ? Color(90, 140, 60)
                                                        : Color(uint8_t(k * 17), uint8_t(255 - k * 8), uint8_t(x * 40)));
            }
        tile.update_texture();
    }
    for (int y = 0; y < 80; ++y)
        for (int x = 0; x < 80; ++x) t.map().place(x, y, (x + y * 3) % tile_kinds);
    return t;
}

void press_key(Map_View& view, SDL_Keycode key) {
    SDL_Event e{};
    e.type = SDL_EVENT_KEY_DOWN;
    e.key.key = key;
    view.handle(e);
}

void BM_clear_and_present_beside_map(benchmark::State& state) {
    Bench_Program program;
    for (auto _ : state) {
        g_main_window->clear();
        g_main_window->present();
    }
}

// 0: nothing changed between repaints; 1: one cell painted before each.
void BM_map_view_repaint(benchmark::State& state) {
    Bench_Program program;
    Tileset& t = full_map(false);
    Map_View view(t.map(), t.store(), "bench");
    press_key(view, SDLK_S);
    press_key(view, SDLK_G);
    const Backdrop_Layer layer([](void* v) { static_cast<Map_View*>(v)->draw(); }, &view);
    g_editor->repaint(false);
    int step = 0;
    for (auto _ : state) {
        if (state.range(0) == 1) {
            ++step;
            t.map().begin_stroke();
            t.map().paint(step % 80, (step / 80) % 80, step % tile_kinds);
            t.map().end_stroke();
        }
        Backdrop::paint();
        g_main_window->present();
    }
    state.counters["seams"] = double(view.seam_list().size());
}

void BM_seam_check(benchmark::State& state) {
    Bench_Program program;
    Tileset& t = full_map(state.range(0) == 1);
    Seam_Check check;
    size_t seams = 0;
    for (auto _ : state) {
        seams = check.run(t.map().map(), t.store()).size();
        benchmark::DoNotOptimize(seams);
    }
    state.counters["seams"] = double(seams);
}
}  // namespace

BENCHMARK(BM_clear_and_present_beside_map)->Unit(benchmark::kMillisecond)->MinTime(0.5)->Repetitions(5)
    ->ReportAggregatesOnly(true);
BENCHMARK(BM_map_view_repaint)->Unit(benchmark::kMillisecond)->MinTime(0.5)->Repetitions(5)
    ->ReportAggregatesOnly(true)->Arg(0)->Arg(1);
// 0: every edge a seam; 1: no seams, every pair compared whole.
BENCHMARK(BM_seam_check)->Unit(benchmark::kMillisecond)->MinTime(0.5)->Repetitions(5)
    ->ReportAggregatesOnly(true)->Arg(0)->Arg(1);
