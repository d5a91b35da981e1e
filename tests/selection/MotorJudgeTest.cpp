// The judgement of a motor (selection/MotorJudge): the bands of the torques, speed and inertia, and the marks.
#include "selection/MotorJudge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "base/RuntimeError.h"

namespace {

// A motor of rated torque 1, maximum 3, 3000 r/min, rotor 1e-4, ratio 10.
constexpr MotorLimits kMotor{1.0, 3.0, 3000, 1e-4, 10};

MotorLoad Load(double t1, double t2 = 1.0, double t3 = 0.5, double n = 2000, double jl = 5e-4) {
    return {t1, t2, t3, n, jl};
}

std::string_view VerdictOf(const MotorLoad& load, const MotorLimits& motor = kMotor) {
    return Motor_Verdict(Motor_Judge(load, motor)).text;
}

TEST(MotorJudge, AllFiveMissingShowsDash) {
    const MotorJudgement j = Motor_Judge(Load(5, 50, 5, 9000, 1), MotorLimits{});
    EXPECT_EQ(j.MissingCount, 5);
    const Verdict v = Motor_Verdict(j);
    EXPECT_EQ(v.text, "-");
    EXPECT_EQ(v.color, kColorWindowText);
}

TEST(MotorJudge, RatedTorqueZeroCountsTwiceAndJudgesTheRest) {
    MotorLimits motor = kMotor;
    motor.RatedTorque = 0;
    const MotorJudgement j = Motor_Judge(Load(5), motor);
    EXPECT_EQ(j.MissingCount, 2);
    EXPECT_EQ(Motor_Verdict(j).text, "OK");
    EXPECT_EQ(VerdictOf(Load(5, 1, 0.5, 3500), motor), "NG");
}

TEST(MotorJudge, EffectiveTorqueBands) {
    EXPECT_EQ(VerdictOf(Load(0.8 + 5e-6)), "OK");
    EXPECT_EQ(VerdictOf(Load(0.8 - 5e-6)), "OK");
    EXPECT_EQ(VerdictOf(Load(0.8 + 2e-5)), "FAIR");
    EXPECT_EQ(VerdictOf(Load(1.0 + 5e-6)), "FAIR");
    EXPECT_EQ(VerdictOf(Load(1.0 + 2e-5)), "NG");
}

TEST(MotorJudge, MaximumTorqueBands) {
    EXPECT_EQ(VerdictOf(Load(0.5, 2.4 + 5e-6)), "OK");
    EXPECT_EQ(VerdictOf(Load(0.5, 2.4 + 2e-5)), "FAIR");
    EXPECT_EQ(VerdictOf(Load(0.5, 3.0 + 5e-6)), "FAIR");
    EXPECT_EQ(VerdictOf(Load(0.5, 3.0 + 2e-5)), "NG");
}

TEST(MotorJudge, StoppingTorqueAboveSeventyPercentIsNgNeverFair) {
    EXPECT_EQ(VerdictOf(Load(0.5, 1, 0.7 + 5e-6)), "OK");
    const MotorJudgement j = Motor_Judge(Load(0.5, 1, 0.7 + 2e-5), kMotor);
    EXPECT_EQ(j.Judge[1], 2);
    EXPECT_EQ(Motor_Verdict(j).text, "NG");
}

TEST(MotorJudge, SpeedAndInertiaRatio) {
    EXPECT_EQ(VerdictOf(Load(0.5, 1, 0.5, 3000)), "OK");
    EXPECT_EQ(VerdictOf(Load(0.5, 1, 0.5, 3000.1)), "NG");
    EXPECT_EQ(VerdictOf(Load(0.5, 1, 0.5, 2000, 1e-3)), "OK");
    EXPECT_EQ(VerdictOf(Load(0.5, 1, 0.5, 2000, 1.1e-3)), "NG");
}

TEST(MotorJudge, OverMarkPassesEveryLimit) {
    EXPECT_EQ(VerdictOf(Load(-9999, -9999, -9999, -9999)), "OK");
}

TEST(MotorJudge, NoRotorInertiaWithAllowableRatioIsARunTimeFailure) {
    MotorLimits motor = kMotor;
    motor.Inertia = 0;
    EXPECT_THROW(Motor_Judge(Load(0.5), motor), RuntimeError);
}

TEST(MotorJudge, NoAllowableRatioWithRotorInertiaIsJudged) {
    MotorLimits motor = kMotor;
    motor.MaxInertia = 0;
    const MotorJudgement j = Motor_Judge(Load(0.5), motor);
    EXPECT_EQ(j.MissingCount, 0);
    EXPECT_EQ(j.Judge[4], 2);
}

TEST(MotorJudge, NgOfIndexZeroHidesFairOfIndexTwoButColumnSixStaysOrange) {
    Grid grid(10);
    const int row = grid.AddRow();
    const MotorJudgement j = Motor_Judge(Load(1.5, 2.9), kMotor);
    ASSERT_EQ(j.Judge[0], 2);
    ASSERT_EQ(j.Judge[2], 1);
    Motor_Mark(j, grid, row);
    EXPECT_EQ(grid.Cell(row, 0).text, "NG");
    EXPECT_EQ(grid.Cell(row, 0).color, kColorRed);
    EXPECT_TRUE(grid.Cell(row, 0).bold);
    EXPECT_EQ(grid.Cell(row, 5).color, kColorRed);
    EXPECT_TRUE(grid.Cell(row, 6).bold);
    EXPECT_EQ(grid.Cell(row, 6).color, kColorOrange);
}

TEST(MotorJudge, MarkingsOfSpeedRatioAndRatedTorque) {
    Grid grid(10);
    const int row = grid.AddRow();
    Motor_Mark(Motor_Judge(Load(0.9, 1, 0.5, 3500, 2e-3), kMotor), grid, row);
    EXPECT_EQ(grid.Cell(row, 5).color, kColorOrange);
    EXPECT_TRUE(grid.Cell(row, 5).bold);
    EXPECT_EQ(grid.Cell(row, 3).color, kColorRed);
    EXPECT_EQ(grid.Cell(row, 7).color, kColorRed);
    EXPECT_FALSE(grid.Cell(row, 6).bold);
    EXPECT_EQ(grid.Cell(row, 6).color, kColorWindowText);
    Motor_Mark(Motor_Judge(Load(0.5), kMotor), grid, row);
    EXPECT_FALSE(grid.Cell(row, 3).bold);
    EXPECT_EQ(grid.Cell(row, 7).color, kColorWindowText);
    EXPECT_EQ(grid.Cell(row, 0).text, "OK");
    EXPECT_TRUE(grid.Cell(row, 0).bold);
}

TEST(MotorJudge, UtilisationIsEachValueOverItsLimit) {
    // 80 % of 1, 70 % of 1, 80 % of 3, 3000 r/min and a ratio of 10, each taken by half.
    const std::array<double, 5> u = Motor_Utilisation(Load(0.4, 1.2, 0.35, 1500, 5e-4), kMotor);
    for (const double ratio : u) EXPECT_NEAR(ratio, 0.5, 1e-12);
    EXPECT_NEAR(Motor_Utilisation(Load(0.9), kMotor)[0], 0.9 / 0.8, 1e-12);
}

TEST(MotorJudge, UtilisationOfALimitWithoutADatumIsUnknown) {
    const std::array<double, 5> none = Motor_Utilisation(Load(0.5), MotorLimits{});
    EXPECT_TRUE(std::ranges::all_of(none, [](double ratio) { return std::isnan(ratio); }));
    MotorLimits noRatio = kMotor;
    noRatio.MaxInertia = 0;
    const std::array<double, 5> u = Motor_Utilisation(Load(0.5), noRatio);
    EXPECT_TRUE(std::isnan(u[4]));
    EXPECT_FALSE(std::isnan(u[3]));
}

TEST(MotorJudge, FairIsOrange) {
    const Verdict v = Motor_Verdict(Motor_Judge(Load(0.9), kMotor));
    EXPECT_EQ(v.text, "FAIR");
    EXPECT_EQ(v.color, kColorOrange);
}

}  // namespace
