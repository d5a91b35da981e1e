// The judgement of a model group of 1,000 motors, from the query to the last
// verdict, on a generated catalogue and the horizontal ballscrew template.
#include <benchmark/benchmark.h>

#include "bench/BenchCatalogue.h"
#include "selection/MotorPage.h"

namespace {

constexpr int kMotors = 1000;

// A sized document and the motor page on the generated group.
struct Setup {
    BenchCatalogue catalogue{"judge", Catalogue_Generated(1, 1, kMotors)};
    MotorPage page;

    Setup() {
        MotorPage_Load(page);
        MotorPage_PickSeries(page, 0);
    }
    ~Setup() { MotorPage_Unload(); }
};

void BM_QueryAndJudge(benchmark::State& state) {
    Setup setup;
    for (auto _ : state) {
        MotorPage_PickModel(setup.page, 0);
        MotorPage_Judge(setup.page);
        benchmark::DoNotOptimize(setup.page.vsfData.Cell(kMotors + 1, 0).text.data());
    }
    state.SetItemsProcessed(state.iterations() * kMotors);
}
BENCHMARK(BM_QueryAndJudge)->Unit(benchmark::kMillisecond);

void BM_JudgeOnly(benchmark::State& state) {
    Setup setup;
    for (auto _ : state) {
        MotorPage_Judge(setup.page);
        benchmark::DoNotOptimize(setup.page.vsfData.Cell(kMotors + 1, 0).text.data());
    }
    state.SetItemsProcessed(state.iterations() * kMotors);
}
BENCHMARK(BM_JudgeOnly)->Unit(benchmark::kMillisecond);

}  // namespace
