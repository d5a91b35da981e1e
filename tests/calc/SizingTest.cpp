// The sizing values of a pattern table and their judgement.
#include <cmath>

#include "calc/mdlCulcurate.h"
#include "tests/calc/CalcFixture.h"

namespace {

class CalcSizing : public CalcTest {
protected:
    // A complete row with its torque and regeneration already computed.
    static void Computed(int16_t row, double dt, double speed, double torque, double regeneration) {
        Row(Patarn, row, dt, speed);
        Patarn[row].Torque = torque;
        Patarn[row].Regeneration = regeneration;
    }
    // The verdict of one value at a calculated value against a rating of 1.
    static double Verdict(int value, double calculated) {
        ResultValues[Cul][value] = calculated;
        ResultValues[Rate][value] = 1;
        Judge_Results(ResultValues);
        return ResultValues[Hantei][value];
    }
};

// --- edge cases ----------------------------------------------------------------------

TEST_F(CalcSizing, PatternWithoutCompleteRowGivesZerosButTheInertia) {
    Build(1);
    Patarn_SetField(Patarn, 1, 0, 1, 0.5, FieldDeltaTime);
    ResultValues[Cul].fill(7);
    Culcurate_All();
    for (const int j : {EffectiveTorque, MaxTorque, MaxRotationalSpeed, Regeneration1, Regeneration2, StoppingTorque})
        EXPECT_EQ(ResultValues[Cul][j], 0) << j;
    const double r = 0.01 / 6.28;
    EXPECT_DOUBLE_EQ(ResultValues[Cul][Inertia], 0.02 * 0.02 * Steel(0.02, 0.6) / 8 + r * r + r * r);
}

TEST_F(CalcSizing, MotorAloneKeepsTheInertiaInTheTable) {
    ResultValues[Cul][Inertia] = 0.5;
    Culcurate_All();
    EXPECT_EQ(ResultValues[Cul][Inertia], 0.5);
}

TEST_F(CalcSizing, MarkedMovingRowSparesSpeedAndStoppingTorque) {
    Computed(1, 0.1, 1000, 2, 0);
    Computed(2, 0.1, 1000, -9999, -9999);
    Computed(3, 0.1, 0, -1, 3);
    Computed(4, 0.5, 0, 0.5, 0);
    EXPECT_EQ(Effective_Torque(Patarn), -9999);
    EXPECT_EQ(Max_Torque(Patarn), -9999);
    EXPECT_EQ(Regeneration_Peak(Patarn), -9999);
    EXPECT_EQ(Regeneration_Mean(Patarn), -9999);
    EXPECT_EQ(Max_Speed(Patarn), 1000);
    EXPECT_EQ(Stopping_Torque(Patarn), 0.5);
}

TEST_F(CalcSizing, MarkedRowAtRestMarksTheStoppingTorque) {
    Computed(1, 0.1, 1000, 2, 0);
    Computed(2, 0.1, 0, -1, 3);
    Computed(3, 0.5, 0, -9999, -9999);
    EXPECT_EQ(Stopping_Torque(Patarn), -9999);
    EXPECT_EQ(Max_Speed(Patarn), 1000);
}

TEST_F(CalcSizing, MarkIsTestedInSinglePrecision) {
    Computed(1, 0.1, 1000, -9999.0001, 0);
    EXPECT_EQ(Max_Torque(Patarn), -9999);
    EXPECT_EQ(Safe_Rate(-9999.0001, 2), -9999);
}

TEST_F(CalcSizing, RampUpAndStopWithoutRestRowHasNoStoppingTorque) {
    Build(2);  // vertical ballscrew: holding torque at rest
    Row(Patarn, 1, 1, 3000);
    Row(Patarn, 2, 1, 0);
    Culcurate_All();
    EXPECT_EQ(ResultValues[Cul][StoppingTorque], 0);
    Row(Patarn, 3, 1, 0);
    Culcurate_All();
    EXPECT_GT(ResultValues[Cul][StoppingTorque], 0);
    EXPECT_DOUBLE_EQ(ResultValues[Cul][StoppingTorque], Patarn[3].Torque);
}

TEST_F(CalcSizing, EffectiveTorqueBands) {
    EXPECT_EQ(Verdict(EffectiveTorque, 0.8), 1);
    EXPECT_EQ(Verdict(EffectiveTorque, 0.81), 2);
    EXPECT_EQ(Verdict(EffectiveTorque, 1.0), 2);
    EXPECT_EQ(Verdict(EffectiveTorque, 1.01), 3);
}

TEST_F(CalcSizing, StoppingTorqueHasNoFairBand) {
    EXPECT_EQ(Verdict(StoppingTorque, 0.7), 1);
    EXPECT_EQ(Verdict(StoppingTorque, 0.71), 3);
}

TEST_F(CalcSizing, NoMotorChosenJudgesNothing) {
    Build(1);
    Row(Patarn, 1, 0.1, 3000);
    Culcurate_All();
    for (int j = 0; j < 7; ++j) {
        EXPECT_EQ(ResultValues[Hantei][j], 0) << j;
        EXPECT_EQ(ResultValues[Ratio][j], 0) << j;
    }
}

TEST_F(CalcSizing, MotoringIntervalCountsInTheMeanByItsTimeOnly) {
    Computed(1, 0.8, 1000, 2, 0);
    Computed(2, 0.2, 0, -2, 6);
    EXPECT_EQ(Regeneration_Peak(Patarn), 6);
    EXPECT_DOUBLE_EQ(Regeneration_Mean(Patarn), (0 + 6) / (0.8 + 0.2));
}

// --- further outcomes ------------------------------------------------------------------

TEST_F(CalcSizing, EffectiveTorqueWeighsEveryRowByItsDuration) {
    Computed(1, 0.2, 1000, 3, 0);
    Computed(2, 0.6, 1000, 1, 0);
    Computed(3, 0.2, 0, -2, 0);
    EXPECT_DOUBLE_EQ(Effective_Torque(Patarn), std::sqrt((9 * 0.2 + 1 * 0.6 + 4 * 0.2) / (0.2 + 0.6 + 0.2)));
    EXPECT_EQ(Max_Torque(Patarn), 3);
}

TEST_F(CalcSizing, ZeroTotalTimeIsAFailureOfTheValue) {
    Computed(1, 0, 1000, 3, 0);
    EXPECT_EQ(Effective_Torque(Patarn), -9999);
    EXPECT_EQ(Regeneration_Mean(Patarn), -9999);
}

TEST_F(CalcSizing, SafeRateWithoutRatingIsZero) {
    EXPECT_EQ(Safe_Rate(5, 0), 0);
    EXPECT_EQ(Safe_Rate(-9999, 0), 0);
    EXPECT_EQ(Safe_Rate(-9999, 2), -9999);
    EXPECT_EQ(Safe_Rate(5, 2), 2.5);
}

TEST_F(CalcSizing, ValueThatCouldNotBeComputedPasses) {
    EXPECT_EQ(Verdict(MaxTorque, -9999), 1);
    EXPECT_EQ(ResultValues[Ratio][MaxTorque], -9999);
}

TEST_F(CalcSizing, SpeedAndRegenerationHaveNoFairBand) {
    EXPECT_EQ(Verdict(MaxRotationalSpeed, 1.0), 1);
    EXPECT_EQ(Verdict(MaxRotationalSpeed, 1.01), 3);
    EXPECT_EQ(Verdict(Regeneration1, 1.01), 3);
    EXPECT_EQ(Verdict(Regeneration2, 1.000001), 1);
}

TEST_F(CalcSizing, InertiaRatioIsHeldAgainstTheMotorsAllowableRate) {
    Element[0].Item[5].ItemText = "30";
    ResultValues[Rate][Inertia] = 0.0001;
    ResultValues[Cul][Inertia] = 0.003;
    Judge_Results(ResultValues);
    EXPECT_DOUBLE_EQ(ResultValues[Ratio][Inertia], 30);
    EXPECT_EQ(ResultValues[Hantei][Inertia], 1);
    ResultValues[Cul][Inertia] = 0.00301;
    Judge_Results(ResultValues);
    EXPECT_EQ(ResultValues[Hantei][Inertia], 3);
}

TEST_F(CalcSizing, RotatingLoadTravelsInRadians) {
    Build(3);  // turntable: the load turns with the motor
    Row(Patarn, 1, 0.5, 600);
    Row(Patarn, 2, 0.5, 600);
    Culcurate_All();
    EXPECT_EQ(LoadMotion, 1);
    const double w = 1 * (600 / (60 / 6.28));  // rad/s at the load
    EXPECT_DOUBLE_EQ(Patarn[1].LoadSpeed, w);
    EXPECT_DOUBLE_EQ(Patarn[1].Position, w * 0.5 / 2);
    EXPECT_DOUBLE_EQ(Patarn[2].Position, w * 0.5 / 2 + (w + w) * 0.5 / 2);
}

}  // namespace
