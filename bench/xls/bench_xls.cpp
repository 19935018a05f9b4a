// The file engine inside one process: cost per cell and per file, for songs of 500 to 65,536 rows.
#include "bench/xls/Songs.h"

#include <benchmark/benchmark.h>
#include <map>

using namespace zvonika::xls;
using namespace zvonika::bench;

namespace {

const Bytes& songFile(int rows) {
    static std::map<int, Bytes> files;
    Bytes& file = files[rows];
    if (file.empty()) file = makeSong(rows).save();
    return file;
}

int rowsOf(const benchmark::State& state) {
    return static_cast<int>(state.range(0));
}

void open(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(Workbook::open(songFile(rowsOf(state))));
    state.SetComplexityN(state.range(0));
}

void openChangeSave(benchmark::State& state) {
    for (auto _ : state) {
        Workbook song = Workbook::open(songFile(rowsOf(state)));
        changeTenCells(song);
        benchmark::DoNotOptimize(song.save());
    }
    state.SetComplexityN(state.range(0));
}

/// Every cell of the song is changed, then all of it is written.
void changeAllSave(benchmark::State& state) {
    for (auto _ : state) {
        Workbook song = Workbook::open(songFile(rowsOf(state)));
        for (int row = 0; row < rowsOf(state); ++row)
            for (const int column : {0, 1, 2, 3, 8, 12, 13, 21, 22})
                song.setValue(0, {row, column}, double(row + column) + 0.125);
        benchmark::DoNotOptimize(song.save());
    }
    state.SetComplexityN(state.range(0));
}

void readAll(benchmark::State& state) {
    const Workbook song = Workbook::open(songFile(rowsOf(state)));
    std::size_t cells = 0;
    for (auto _ : state)
        song.forEachValue(0, [&](CellRef, const Value&) { ++cells; });
    state.SetItemsProcessed(static_cast<std::int64_t>(cells));
    state.SetComplexityN(state.range(0));
}

CellRef next(std::uint32_t& random, int rows) {
    random = random * 1664525 + 1013904223;
    return {static_cast<int>((random >> 8) % static_cast<unsigned>(rows)), static_cast<int>(random >> 30)};
}

void getCell(benchmark::State& state) {
    const Workbook song = Workbook::open(songFile(rowsOf(state)));
    std::uint32_t random = 1;
    for (auto _ : state)
        benchmark::DoNotOptimize(song.value(0, next(random, rowsOf(state))));
}

void setCell(benchmark::State& state) {
    Workbook song = Workbook::open(songFile(rowsOf(state)));
    const Value values[] = {std::u16string(u"dis1,"), 0.125, std::u16string(u"zpěv"), 7.0};
    std::uint32_t random = 1;
    for (auto _ : state)
        song.setValue(0, next(random, rowsOf(state)), values[random % 4]);
}

} // namespace

BENCHMARK(open)
    ->RangeMultiplier(2)
    ->Range(512, 65536)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(openChangeSave)
    ->RangeMultiplier(2)
    ->Range(512, 65536)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(changeAllSave)
    ->RangeMultiplier(4)
    ->Range(512, 65536)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(readAll)
    ->RangeMultiplier(2)
    ->Range(512, 65536)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(getCell)->Arg(500)->Arg(65536);
BENCHMARK(setCell)->Arg(500)->Arg(65536);

BENCHMARK_MAIN();
