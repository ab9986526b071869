// Resampling a 64 x 64 tile to a smaller and a larger size.
#include <benchmark/benchmark.h>

#include <random>

#include "model/tile/tile.h"

namespace {

void BM_resample_64(benchmark::State& state) {
    Tile source(64, 64);
    std::mt19937 random(3);
    for (int k = 0; k < source.pixel_count(); ++k) source.pixels()[k] = Color::from_word(random());
    const int side = static_cast<int>(state.range(0));
    Tile destination(side, side);
    for (auto _ : state) {
        source.copy_into(destination);
        benchmark::DoNotOptimize(destination.pixels());
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * side * side);
}

}  // namespace

BENCHMARK(BM_resample_64)->Arg(32)->Arg(48)->Arg(128);

BENCHMARK_MAIN();
