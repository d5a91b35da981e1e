#include "selection/MotorJudge.h"

#include <algorithm>
#include <cmath>

#include "base/Numeric.h"
#include "base/RuntimeError.h"

namespace {

// Within a share of the limit gives 0, within the limit 1, else 2.
int16_t Banded(double value, double limit, double share, int16_t& missing) {
    if (limit == 0) return ++missing, 0;
    const double band = limit * share / 100;
    if (Same_Single(value, band) || band > value) return 0;
    if (Same_Single(value, limit) || limit > value) return 1;
    return 2;
}

// Within the limit gives 0, else 2.
int16_t Kept(double value, double limit, double share, int16_t& missing) {
    return Banded(value, limit, share, missing) == 0 ? 0 : 2;
}

int16_t Ratio(double load, double rotor, double allowed, int16_t& missing) {
    if (allowed == 0 && rotor == 0) return ++missing, 0;
    if (rotor == 0) throw RuntimeError("Division by zero");
    const double r = load / rotor;
    return Same_Single(r, allowed) || allowed >= r ? 0 : 2;
}

void Mark(GridCell& cell, int16_t judge) {
    cell.bold = judge != 0;
    cell.color = judge == 2 ? kColorRed : judge == 1 ? kColorOrange : kColorWindowText;
}

}  // namespace

MotorJudgement Motor_Judge(const MotorLoad& load, const MotorLimits& motor) {
    MotorJudgement j;
    j.Judge[0] = Banded(load.T1, motor.RatedTorque, kEffectiveShare, j.MissingCount);
    j.Judge[1] = Kept(load.T3, motor.RatedTorque, kStoppingShare, j.MissingCount);
    j.Judge[2] = Banded(load.T2, motor.MaximumTorque, kMaximumShare, j.MissingCount);
    j.Judge[3] = Kept(load.N, motor.RotationalSpeed, 100, j.MissingCount);
    j.Judge[4] = Ratio(load.JL, motor.Inertia, motor.MaxInertia, j.MissingCount);
    return j;
}

std::array<double, 5> Motor_Utilisation(const MotorLoad& load, const MotorLimits& motor) {
    const auto share = [](double value, double limit, double percent) {
        return limit == 0 ? std::nan("") : value / (limit * percent / 100);
    };
    const double ratio = motor.Inertia == 0 ? std::nan("") : load.JL / motor.Inertia;
    return {share(load.T1, motor.RatedTorque, kEffectiveShare), share(load.T3, motor.RatedTorque, kStoppingShare),
            share(load.T2, motor.MaximumTorque, kMaximumShare), share(load.N, motor.RotationalSpeed, 100),
            share(ratio, motor.MaxInertia, 100)};
}

Verdict Motor_Verdict(const MotorJudgement& judgement) {
    if (judgement.MissingCount == 5) return {"-", kColorWindowText};
    Verdict verdict{"OK", kColorWindowText};
    for (const int16_t judge : judgement.Judge) {
        if (judge == 2) return {"NG", kColorRed};
        if (judge == 1) verdict = {"FAIR", kColorOrange};
    }
    return verdict;
}

void Motor_Mark(const MotorJudgement& judgement, Grid& vsfData, int row) {
    const Verdict verdict = Motor_Verdict(judgement);
    GridCell& cell = vsfData.Cell(row, 0);
    cell.text = verdict.text;
    cell.bold = true;
    cell.color = verdict.color;
    Mark(vsfData.Cell(row, 5), std::max(judgement.Judge[0], judgement.Judge[1]));
    Mark(vsfData.Cell(row, 6), judgement.Judge[2]);
    Mark(vsfData.Cell(row, 3), judgement.Judge[3]);
    Mark(vsfData.Cell(row, 7), judgement.Judge[4]);
}
