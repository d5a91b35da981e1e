// The number texts run for every cell shown; these figures say what one costs.
#include <benchmark/benchmark.h>

#include "base/NumberFormat.h"
#include "core/Catalogue.h"

static void BM_NumFormat(benchmark::State& state) {
    double x = 1234.5678;
    for (auto _ : state) benchmark::DoNotOptimize(Num_Format(x, 0, 1));
}
BENCHMARK(BM_NumFormat);

static void BM_NumberText(benchmark::State& state) {
    double x = 0.1 + 0.2;
    for (auto _ : state) benchmark::DoNotOptimize(NumberText(x));
}
BENCHMARK(BM_NumberText);

static void BM_MaskFixed(benchmark::State& state) {
    double x = 2.675;
    for (auto _ : state) benchmark::DoNotOptimize(Format_Mask(x, kMask2));
}
BENCHMARK(BM_MaskFixed);
