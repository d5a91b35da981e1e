// The recommendation over the whole catalogue, from the first query to the
// ranked pairs: the catalogue the build carries, and a generated one of
// 10,000 motors in 20 model groups, against the horizontal ballscrew.
#include <benchmark/benchmark.h>

#include "bench/BenchCatalogue.h"
#include "selection/MotorPage.h"
#include "selection/Recommend.h"
#include "selection/mdlDataBase.h"

namespace {

void Run(benchmark::State& state) {
    Series_Connect();
    std::size_t pairs = 0;
    for (auto _ : state) {
        const RecommendResult result = Recommend({});
        pairs = result.pairs.size();
        benchmark::DoNotOptimize(result.pairs.data());
    }
    state.counters["pairs"] = static_cast<double>(pairs);
    MotorPage_Unload();
}

void BM_RecommendBundled(benchmark::State& state) {
    const BenchCatalogue catalogue("recommend-bundled", std::filesystem::path(TORVANE_BINARY_DIR) / "Series.db");
    Run(state);
}
BENCHMARK(BM_RecommendBundled)->Unit(benchmark::kMillisecond);

void BM_RecommendGenerated10000(benchmark::State& state) {
    const BenchCatalogue catalogue("recommend-generated", Catalogue_Generated(2, 10, 500));
    Run(state);
    state.SetItemsProcessed(state.iterations() * 10000);
}
BENCHMARK(BM_RecommendGenerated10000)->Unit(benchmark::kMillisecond);

}  // namespace
