// The engineering checks of a sized document of 20 intervals against a motor
// of the bundled catalogue: reading the parts from the catalogue, computing
// the checks, and laying out the table and the chart, each on its own.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>
#include <string>

#include "calc/mdlCulcurate.h"
#include "core/Startup.h"
#include "core/Tables.h"
#include "selection/ChecksChart.h"
#include "selection/ChecksGrid.h"
#include "tests/selection/SizedDocument.h"

namespace {

// The sized document with ten moves out and back, TVM-A040S3 and TVD-A04 taken on.
struct Setup {
    std::filesystem::path folder = std::filesystem::temp_directory_path() / "torvane-bench-checks";
    ChosenParts parts;

    Setup() {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        std::filesystem::copy_file(std::filesystem::path(TORVANE_BINARY_DIR) / "Series.db", folder / "Series.db");
        setenv("TORVANE_APP_PATH", folder.c_str(), 1);
        Main_Prepare("");
        Document_Sized();
        for (int i = 1; i <= kPatarnRows; ++i) {
            const double speed = i % 2 == 0 ? 0 : i % 4 == 1 ? 2500 : -2500;
            Patarn[i] = {0, 0.05, speed, 0, 0, 0, 0, 3};
        }
        PatternRowCount = kPatarnRows;
        MotorSelected = kMotorChosen;
        SelectedJm = 4.14e-5;
        MotorModelText = "TVM-A040S3";
        DriverModelText = "TVD-A04";
        Culcurate_All();
        parts = Parts_OfDocument();
    }
    ~Setup() { std::filesystem::remove_all(folder); }
};

void BM_PartsRead(benchmark::State& state) {
    Setup setup;
    for (auto _ : state) benchmark::DoNotOptimize(Parts_OfDocument().curve.points.data());
}
BENCHMARK(BM_PartsRead)->Unit(benchmark::kMicrosecond);

void BM_ChecksCompute(benchmark::State& state) {
    Setup setup;
    EngineeringChecks checks;
    for (auto _ : state) {
        Checks_OfDocument(setup.parts, checks);
        benchmark::DoNotOptimize(checks.tightest);
    }
    state.SetItemsProcessed(state.iterations() * kPatarnRows);
}
BENCHMARK(BM_ChecksCompute)->Unit(benchmark::kNanosecond);

void BM_ChecksTable(benchmark::State& state) {
    Setup setup;
    EngineeringChecks checks;
    Checks_OfDocument(setup.parts, checks);
    for (auto _ : state) benchmark::DoNotOptimize(Checks_Grid(checks).Rows());
}
BENCHMARK(BM_ChecksTable)->Unit(benchmark::kMicrosecond);

void BM_ChecksChart(benchmark::State& state) {
    Setup setup;
    EngineeringChecks checks;
    Checks_OfDocument(setup.parts, checks);
    for (auto _ : state) benchmark::DoNotOptimize(Chart_Build(checks, setup.parts.curve, 900, 420).xTicks.size());
}
BENCHMARK(BM_ChecksChart)->Unit(benchmark::kMicrosecond);

}  // namespace
