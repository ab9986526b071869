// The main loop repaints the whole window once per event, so a repaint is the
// program's input latency. Each view is set against a bare clear and present
// of the same window in the same run. The kept frame makes a repaint cost what
// changed: each view is measured unchanged (a repaint with nothing new), drawn
// in full (the first frame, or everything changed), after a pointer move over
// the canvas, and for the heaviest canvas after one pixel of a stroke.
#include <benchmark/benchmark.h>

#include "app/canvas_view.h"
#include "model/core/commands.h"
#include "platform/frame_cache.h"
#include "platform/main_window.h"
#include "bench/bench_program.h"
#include "model/tile/tile.h"
#include "model/tileset/tileset.h"

namespace {
void BM_clear_and_present(benchmark::State& state) {
    Bench_Program program;
    for (auto _ : state) {
        g_main_window->clear();
        g_main_window->present();
    }
}

enum class Change { none, everything, pointer, pixel, tool };

void move_pointer(float x, float y) {
    SDL_Event e{};
    e.type = SDL_EVENT_MOUSE_MOTION;
    e.motion.x = x;
    e.motion.y = y;
    g_editor->handle(e);
}

void repaint_after(benchmark::State& state, Change change) {
    const Rectangle view = g_editor->canvas().view_rect();
    Tile& tile = *g_editor->canvas().tile();
    int step = 0;
    for (auto _ : state) {
        ++step;
        switch (change) {
            case Change::none:
                break;
            case Change::everything:
                g_main_window->frame_cache().invalidate();
                break;
            case Change::pointer:
                move_pointer(float(view.x + view.width / 2 + step % 7), float(view.y + view.height / 2 + step % 5));
                break;
            case Change::pixel:
                tile.set_pixel(step % tile.width(), 7, Color(uint8_t(step), 40, 200));
                break;
            case Change::tool:
                g_editor->run_command(step % 2 ? command_pen : command_flood_fill);
                break;
        }
        g_editor->repaint(true);
    }
}

void BM_repaint_default_view(benchmark::State& state) {
    Bench_Program program;
    repaint_after(state, Change(state.range(0)));
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
        for (int x = 0; x < 32; ++x) view.tile_selection().mask()->set_pixel(x, y, Color(255, 255, 255));
    view.tile_selection().set_active(true);
    repaint_after(state, Change(state.range(0)));
}
// The default view with a 64 x 64 tile of varied colours, which the "Preview"
// pane shows repeated at its real size.
void BM_repaint_preview_64(benchmark::State& state) {
    Bench_Program program;
    g_editor->tilesets().new_tileset(64, 64);
    g_editor->relayout();
    Tile& tile = *g_editor->canvas().tile();
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) tile.set_pixel(x, y, Color(uint8_t(x * 4), uint8_t(y * 4), uint8_t(x ^ y), uint8_t(128 + x)));
    tile.update_texture();
    repaint_after(state, Change(state.range(0)));
}

// The default view with the map in the "Preview": four 24 x 24 tiles laid
// over the whole 20 x 20 map, the current tile among them.
void BM_repaint_map_preview(benchmark::State& state) {
    Bench_Program program;
    Tileset& t = *g_editor->current();
    while (t.store().tile_count() < 4) t.store().add_tile();
    for (int k = 0; k < 4; ++k) t.store().tile_at(k)->fill(Color(uint8_t(60 * k), 120, uint8_t(200 - 40 * k)));
    for (int y = 0; y < t.map().map().rows(); ++y)
        for (int x = 0; x < t.map().map().columns(); ++x) t.map().place(x, y, (x + 2 * y) % 4, (x + y) % 8);
    t.map().in_preview = true;
    g_editor->show_current_tile();
    repaint_after(state, Change(state.range(0)));
}
}  // namespace

BENCHMARK(BM_clear_and_present)->Unit(benchmark::kMillisecond)->MinTime(1.0);
// The argument is the change before each repaint: 0 nothing, 1 everything,
// 2 a pointer move over the canvas, 3 one pixel of the tile, 4 another tool
// (its whole options page changes).
BENCHMARK(BM_repaint_default_view)->Unit(benchmark::kMillisecond)->MinTime(1.0)->Arg(0)->Arg(1)->Arg(2)->Arg(4);
BENCHMARK(BM_repaint_heaviest_canvas)->Unit(benchmark::kMillisecond)->MinTime(1.0)->Arg(0)->Arg(1)->Arg(2)->Arg(3);
BENCHMARK(BM_repaint_preview_64)->Unit(benchmark::kMillisecond)->MinTime(1.0)->Arg(0)->Arg(2)->Arg(3);
// 0: unchanged; 2: after a pointer move; 3: after one pixel of the tile the map shows.
BENCHMARK(BM_repaint_map_preview)->Unit(benchmark::kMillisecond)->MinTime(1.0)->Arg(0)->Arg(2)->Arg(3);
