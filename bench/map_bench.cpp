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

// Two terrains over every corner of the map, one of the sixteen
// combinations without a tile: its cells are marked missing.
void paint_terrains(Tileset& t) {
    Terrain_Set set;
    set.add_terrain(), set.add_terrain();
    for (int k = 0; k < tile_kinds; ++k)
        if (k != 5)
            set.set_corners(k, {uint8_t(k / 8 + 1), uint8_t(k / 4 % 2 + 1), uint8_t(k / 2 % 2 + 1), uint8_t(k % 2 + 1)});
    t.map().set_terrain(set);
    t.map().begin_stroke();
    for (int y = 0; y <= 80; ++y)
        for (int x = 0; x <= 80; ++x) t.map().paint_terrain(x, y, 1 + (x * 7 + y * 13) % 5 / 4);
    t.map().end_stroke();
}

// 0: nothing changed between repaints; 1: one cell painted before each;
// 2: terrains everywhere with their marks, one corner painted before each;
// 3: as 2 on the lowest of three full layers, all shown.
void BM_map_view_repaint(benchmark::State& state) {
    Bench_Program program;
    Tileset& t = full_map(false);
    if (state.range(0) >= 2) paint_terrains(t);
    if (state.range(0) == 3) {
        for (int layer = 1; layer <= 2; ++layer) {
            t.map().add_layer();
            for (int y = 0; y < 80; ++y)
                for (int x = 0; x < 80; ++x) t.map().place(x, y, (x * layer + y) % tile_kinds);
        }
        t.map().choose_layer(0);
    }
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
        } else if (state.range(0) >= 2) {
            ++step;
            t.map().begin_stroke();
            t.map().paint_terrain(step % 81, (step / 81) % 81, 1 + step % 2);
            t.map().end_stroke();
        }
        Backdrop::paint();
        g_main_window->present();
    }
    state.counters["seams"] = double(view.seam_list().size());
    state.counters["missing"] = double(view.missing_cells().size());
}

// A terrain stroke through the map window: 2,000 motion events zig-zagging
// over a full map of 6 x 6 tiles with a two-terrain set of all sixteen
// combinations, timed per cell the stroke touched (four around each corner).
void BM_terrain_drag(benchmark::State& state) {
    Bench_Program program;
    Tileset& t = full_map(false);
    Terrain_Set set;
    set.add_terrain(), set.add_terrain();
    for (int k = 0; k < tile_kinds; ++k)
        set.set_corners(k, {uint8_t(k / 8 + 1), uint8_t(k / 4 % 2 + 1), uint8_t(k / 2 % 2 + 1), uint8_t(k % 2 + 1)});
    t.map().set_terrain(set);
    Map_View view(t.map(), t.store(), "bench");
    press_key(view, SDLK_T);
    const Rectangle p = view.picture();
    const int cell = p.width / 80;
    auto event = [&](Uint32 type, int i) {
        SDL_Event e{};
        e.type = type;
        const float x = float(p.x + cell * (1 + (i * 3) % 78)), y = float(p.y + cell * (1 + (i / 26) % 78));
        e.button.button = SDL_BUTTON_LEFT;
        e.button.x = x, e.button.y = y;
        if (type == SDL_EVENT_MOUSE_MOTION) e.motion.x = x, e.motion.y = y, e.motion.state = SDL_BUTTON_LMASK;
        view.handle(e);
    };
    int terrain = 1;
    for (auto _ : state) {
        // Each run paints the other terrain, so every corner changes.
        terrain = 3 - terrain;
        state.PauseTiming();
        SDL_Event pick{};
        pick.type = SDL_EVENT_MOUSE_BUTTON_DOWN;
        pick.button.button = SDL_BUTTON_LEFT;
        pick.button.x = float(view.terrain_swatch(terrain).x + 2), pick.button.y = float(view.terrain_swatch(terrain).y + 2);
        view.handle(pick);
        state.ResumeTiming();
        event(SDL_EVENT_MOUSE_BUTTON_DOWN, 0);
        for (int i = 1; i <= 2000; ++i) event(SDL_EVENT_MOUSE_MOTION, i);
        event(SDL_EVENT_MOUSE_BUTTON_UP, 2000);
    }
    // About four cells around each of the 2,000 corners.
    state.counters["cells"] = 4 * 2000;
    state.counters["per_cell"] = benchmark::Counter(double(state.iterations()) * 4 * 2000,
                                                    benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
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
    ->ReportAggregatesOnly(true)->Arg(0)->Arg(1)->Arg(2)->Arg(3);
// 0: every edge a seam; 1: no seams, every pair compared whole.
BENCHMARK(BM_terrain_drag)->Unit(benchmark::kMillisecond)->Iterations(6);
BENCHMARK(BM_seam_check)->Unit(benchmark::kMillisecond)->MinTime(0.5)->Repetitions(5)
    ->ReportAggregatesOnly(true)->Arg(0)->Arg(1);
