// Writing and reading a 256-tile 64 x 64 tileset through the tileset file,
// next to a plain fwrite/fread of the same number of bytes in the same run.
// Wall-clock time: saving waits for the data to reach the disk.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include <unistd.h>

#include "model/tileset/tileset_file.h"

namespace {

constexpr int tile_side = 64;
constexpr int tile_total = 256;

std::string bench_path(const char* name) {
    return (std::filesystem::temp_directory_path() /
            ("mosswick_bench_" + std::to_string(getpid()) + "_" + name))
        .string();
}

Tile_Store& filled_store() {
    static Tile_Store store(tile_side, tile_side, tile_total);
    if (store.tile_count() == 0) {
        std::mt19937 random(7);
        for (int i = 0; i < tile_total; ++i) {
            store.add_tile();
            Color* p = store.current_tile()->pixels();
            for (int k = 0; k < tile_side * tile_side; ++k) p[k] = Color::from_word(random());
        }
    }
    return store;
}

size_t file_bytes() { return Tileset_File::header_size + filled_store().total_bytes(); }

void BM_tileset_write(benchmark::State& state) {
    const std::string path = bench_path("write.wst");
    for (auto _ : state) benchmark::DoNotOptimize(Tileset_File::write(filled_store(), path));
    state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(file_bytes()));
    std::filesystem::remove(path);
}

void BM_plain_fwrite(benchmark::State& state) {
    const std::string path = bench_path("fwrite.bin");
    const std::vector<char> bytes(file_bytes(), 'x');
    for (auto _ : state) {
        std::FILE* f = std::fopen(path.c_str(), "wb");
        benchmark::DoNotOptimize(std::fwrite(bytes.data(), bytes.size(), 1, f));
        std::fclose(f);
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(bytes.size()));
    std::filesystem::remove(path);
}

void BM_tileset_read(benchmark::State& state) {
    const std::string path = bench_path("read.wst");
    Tileset_File::write(filled_store(), path);
    for (auto _ : state) benchmark::DoNotOptimize(Tileset_File::read(path));
    state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(file_bytes()));
    std::filesystem::remove(path);
}

void BM_plain_fread(benchmark::State& state) {
    const std::string path = bench_path("fread.bin");
    std::vector<char> bytes(file_bytes(), 'x');
    std::FILE* out = std::fopen(path.c_str(), "wb");
    std::fwrite(bytes.data(), bytes.size(), 1, out);
    std::fclose(out);
    for (auto _ : state) {
        std::FILE* f = std::fopen(path.c_str(), "rb");
        benchmark::DoNotOptimize(std::fread(bytes.data(), bytes.size(), 1, f));
        std::fclose(f);
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(bytes.size()));
    std::filesystem::remove(path);
}

}  // namespace

BENCHMARK(BM_tileset_write)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_plain_fwrite)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_tileset_read)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_plain_fread)->Unit(benchmark::kMillisecond)->UseRealTime();
