// The judgement of a model group of 1,000 motors, from the query to the last
// verdict, on a generated catalogue and the horizontal ballscrew template.
#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <stdlib.h>

#include <filesystem>
#include <string>

#include "calc/mdlCulcurate.h"
#include "core/Startup.h"
#include "core/Document.h"
#include "tests/selection/SizedDocument.h"
#include "core/Tables.h"
#include "selection/MotorPage.h"

namespace {

constexpr int kMotors = 1000;

std::string Generated() {
    std::string sql =
        "CREATE TABLE MotorSeriesMaster (SeriesName TEXT, SeriesFlg INTEGER, ID INTEGER);"
        "CREATE TABLE ModelMaster (SeriesFlg INTEGER, ModelName TEXT, ModelFlg INTEGER);"
        "CREATE TABLE MotorTable (SeriesID INTEGER, ModelFlg INTEGER, MotorModel TEXT, Capacity REAL,"
        " RotationalSpeed REAL, Inertia REAL, RatedTorque REAL, MaximumTorque REAL, MaxInertia REAL, mass REAL,"
        " BrakeInertia REAL, Comment TEXT);"
        "INSERT INTO MotorSeriesMaster VALUES ('Generated', 1, 1);"
        "INSERT INTO ModelMaster VALUES (1, 'All', 1);";
    for (int i = 0; i < kMotors; ++i) {
        const double capacity = 50 + 7.45 * i;
        const double rated = capacity / (6.283185307 * 3000 / 60);
        sql += "INSERT INTO MotorTable VALUES (1, 1, 'GEN-" + std::to_string(i) + "', " + std::to_string(capacity) +
               ", 3000, " + std::to_string(3e-5 * rated) + ", " + std::to_string(rated) + ", " +
               std::to_string(3 * rated) + ", 15, " + std::to_string(0.5 + rated) + ", " +
               (i % 2 ? "NULL" : std::to_string(5e-6 * rated)) + ", 'generated');";
    }
    return sql;
}

// A sized document and the motor page on the generated group.
struct Setup {
    std::filesystem::path folder = std::filesystem::temp_directory_path() / "torvane-bench-judge";
    MotorPage page;

    Setup() {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        setenv("TORVANE_APP_PATH", folder.c_str(), 1);
        sqlite3* db = nullptr;
        sqlite3_open((folder / "Series.db").c_str(), &db);
        sqlite3_exec(db, Generated().c_str(), nullptr, nullptr, nullptr);
        sqlite3_close(db);
        Main_Prepare("");
        Document_Sized();
        MotorPage_Load(page);
        MotorPage_PickSeries(page, 0);
    }
    ~Setup() {
        MotorPage_Unload();
        std::filesystem::remove_all(folder);
    }
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
