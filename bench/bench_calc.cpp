// Speed of the recalculation that runs on every edit, and of the torque loop
// that the motor page runs for every motor of a series.
//
//   cmake -S . -B build-bench-calc -G Ninja -DCMAKE_BUILD_TYPE=Release -DTORVANE_GUI=OFF -DTORVANE_TESTS=OFF
//         -DTORVANE_BENCH=ON
//   cmake --build build-bench-calc --target bench_calc && build-bench-calc/bench/bench_calc
#include <benchmark/benchmark.h>

#include "calc/mdlCulcurate.h"
#include "core/Catalogue.h"
#include "core/Document.h"
#include "tests/selection/SizedDocument.h"
#include "core/Templates.h"
#include "core/PatarnRows.h"
#include "units/UnitTable.h"

namespace {

void Fresh_Document() {
    Init_ItemCounts();
    Init_Templates();
    Unit_SetNames();
    for (int k = 0; k < kUnitCategories; ++k) UnitTable[k].Sel = kUnitFreshSel[k];
    Disp_Reset();
}

void Motor_Chosen() {
    MotorSelected = 1;
    SelectedJm = 0.00003;
    SelectedJb = 0.00001;
    Element[0].Item[5].ItemText = "30";
    ResultValues[Rate] = {0.64, 0.42, 3000, 0.00002, 10, 5, 0.64};
}

void Pattern_Row(int16_t row, double dt, double speed) {
    Patarn_SetField(Patarn, row, UnitKind::Time, 1, dt, FieldDeltaTime);
    Patarn_SetField(Patarn, row, UnitKind::MotorSpeed, 0, speed, FieldSpeed);
}

// The tests' sized horizontal ballscrew (a trapezoid and a rest row) with a
// chosen motor.
void Horizontal_Ballscrew() {
    Fresh_Document();
    Document_Sized();
    Motor_Chosen();
}

// The longest chain: 18 gears and a ballscrew behind the motor, and 20 rows
// of five trapezoids.
void Longest_Chain() {
    Fresh_Document();
    Motor_Chosen();
    for (int16_t slot = 1; slot <= 18; ++slot) {
        Element[slot].ElementType = 2;
        Item_Defaults(2, Element[slot].Item);
        Element[slot].Item[3].Value = 0.02;  // 1:1, so the load keeps moving
    }
    Element[19].ElementType = 11;
    Item_Defaults(11, Element[19].Item);
    ElementCount = 20;
    for (int16_t row = 1; row <= 20; row += 4) {
        Pattern_Row(row, 0.1, 3000);
        Pattern_Row(row + 1, 0.5, 3000);
        Pattern_Row(row + 2, 0.1, 0);
        Pattern_Row(row + 3, 0.3, 0);
    }
}

void BM_CulcurateAll_HorizontalBallscrew(benchmark::State& state) {
    Horizontal_Ballscrew();
    for (auto _ : state) {
        Culcurate_All();
        benchmark::DoNotOptimize(ResultValues);
    }
}
BENCHMARK(BM_CulcurateAll_HorizontalBallscrew);

void BM_CulcurateAll_19Components20Rows(benchmark::State& state) {
    Longest_Chain();
    for (auto _ : state) {
        Culcurate_All();
        benchmark::DoNotOptimize(ResultValues);
    }
}
BENCHMARK(BM_CulcurateAll_19Components20Rows);

void BM_PatternTorques_Trial19Components20Rows(benchmark::State& state) {
    Longest_Chain();
    Culcurate_All();
    PatarnTrial = Patarn;
    for (auto _ : state) {
        double Jm = 0.0002, mass = 3;
        Pattern_Torques(PatarnTrial, kMotorTrial, Jm, mass);
        benchmark::DoNotOptimize(PatarnTrial);
    }
}
BENCHMARK(BM_PatternTorques_Trial19Components20Rows);

}  // namespace
