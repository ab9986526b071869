// Start-up with a full brush pad against an empty one: the whole start-up and
// shut-down of the program, and the pad's load alone (the file read, every
// number checked, each brush made with its texture).
#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <string>

#include "features/brushpad/brush_pad_pane.h"
#include "app/tool_options.h"
#include "bench/bench_program.h"
#include "model/brushpad/brush_pad_file.h"

namespace {
// The worst case: every brush 64 x 64 pixels of different colours, so no
// number is short.
void write_pad(const std::string& path, bool full) {
    Brush_Pad pad;
    std::mt19937 random(11);
    for (int i = 0; full && i < Brush_Pad::capacity; ++i) {
        Tile t(Brush_Pad::max_side, Brush_Pad::max_side);
        for (int k = 0; k < t.pixel_count(); ++k) t.pixels()[k] = Color::from_word(random() | 0x80000000u);
        pad.add(t, 31, 31);
    }
    pad.select(full ? 0 : -1);
    Brush_Pad_File::save(pad, path);
}

// Arg 0: an empty pad, 1: a full pad.
void BM_brush_pad_load(benchmark::State& state) {
    Bench_Program program;
    const std::string path = (program.dir / "data" / Brush_Pad_File::default_name).string();
    write_pad(path, state.range(0) == 1);
    Brush_Pad_Pane& pane = g_tool_options->brush_pad();
    for (auto _ : state) {
        pane.load(path);
        benchmark::DoNotOptimize(pane.store().count());
    }
    state.counters["bytes"] = double(std::filesystem::file_size(path));
}

void BM_start_up_with_pad(benchmark::State& state) {
    Bench_Program program;
    write_pad((program.dir / "data" / Brush_Pad_File::default_name).string(), state.range(0) == 1);
    for (auto _ : state) {
        Application::shut_down();
        Application::start_up();
    }
}
}  // namespace

BENCHMARK(BM_brush_pad_load)->Unit(benchmark::kMillisecond)->MinTime(1.0)->Arg(0)->Arg(1);
BENCHMARK(BM_start_up_with_pad)->Unit(benchmark::kMillisecond)->MinTime(2.0)->Arg(0)->Arg(1);
