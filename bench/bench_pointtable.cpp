// Speed of a point table on its way in and out: reading the text, turning it
// into rows under the typed rules, the whole import from a file with its
// recalculation, and writing the pattern back out, all for 20 rows.
//
//   cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DTORVANE_GUI=OFF -DTORVANE_TESTS=OFF
//         -DTORVANE_BENCH=ON
//   cmake --build build-bench --target bench_pointtable && build-bench/bench/bench_pointtable
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "commands/PatternFile.h"
#include "commands/PointRows.h"
#include "core/Document.h"
#include "core/Startup.h"
#include "core/Tables.h"
#include "pattern/PointTable.h"
#include "pattern/PointTableText.h"

namespace {

// The program started in a folder of its own, with the horizontal ballscrew
// and a point table of 20 rows, five trapezoids, beside it.
class Workplace {
public:
    Workplace() {
        std::string dir = (std::filesystem::temp_directory_path() / "torvane-bench-XXXXXX").string();
        if (mkdtemp(dir.data()) == nullptr) std::abort();
        folder = dir;
        setenv("TORVANE_APP_PATH", folder.c_str(), 1);
        Main_Prepare("");
        Template_Fill(1, false);
        ElementCount = MecaTemplateCount[1];
        text = "time (s),speed (r/min)\n0.000,0.0\n";
        double t = 0;
        for (int move = 0; move < 5; ++move)
            for (const double speed : {3000.0, 3000.0, 0.0, 0.0}) {
                t += 0.1;
                text += std::to_string(t) + "," + std::to_string(speed) + "\n";
            }
        file = folder + "/points.csv";
        std::ofstream(file, std::ios::binary) << text;
    }
    ~Workplace() {
        std::error_code ec;
        std::filesystem::remove_all(folder, ec);
    }
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;

    std::string folder, text, file;
};

const Workplace& Place() {
    static const Workplace place;
    return place;
}

void BM_PointTableParse(benchmark::State& state) {
    PointTable table;
    for (auto _ : state) benchmark::DoNotOptimize(PointTable_Parse(Place().text, table));
}
BENCHMARK(BM_PointTableParse);

void BM_PointTableRows(benchmark::State& state) {
    PointTable table;
    PointTable_Parse(Place().text, table);
    PatarnTable rows{};
    for (auto _ : state) benchmark::DoNotOptimize(PointTable_Rows(table, rows));
}
BENCHMARK(BM_PointTableRows);

void BM_PatternImport(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(Pattern_Import(Place().file));
}
BENCHMARK(BM_PatternImport);

void BM_PointTableText(benchmark::State& state) {
    Pattern_Import(Place().file);
    for (auto _ : state) benchmark::DoNotOptimize(PointTable_Text(Patarn, PointColumns::Time));
}
BENCHMARK(BM_PointTableText);

}  // namespace
