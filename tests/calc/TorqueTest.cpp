// Torque and regeneration of single intervals and of a pattern's rows.
#include <cmath>

#include "calc/mdlCulcurate.h"
#include "tests/calc/CalcFixture.h"

namespace {

class CalcTorque : public CalcTest {
protected:
    static void ReduceAll() {
        for (int16_t i = 1; i <= ElementCount; ++i) Element_Reduce(i, Element[i]);
    }
    // A linear table of 1 kg behind a loss-free 1:1 stage: load and friction as given.
    static void Table(double exforce, double fric) {
        ElementCount = 2;
        Param[1] = ParamRecord{0, 0, 0, 0, 1, 1, 1, exforce, fric};
    }
};

// --- edge cases ----------------------------------------------------------------------

TEST_F(CalcTorque, VerticalBallscrewAtRestHoldsTheLoadThroughItsEfficiency) {
    Place({12});
    ReduceAll();
    double T = 0, R = 1;
    ASSERT_EQ(Interval_Torque(1, 0.5, 0, 0, 0.0001, T, R), 0);
    // Tex = RatioOut * exforce / koritu; fric of a V ballscrew is 0.
    EXPECT_DOUBLE_EQ(T, (0.01 / 6.28) * (1 * 9.8) / 0.9);
    EXPECT_EQ(TorqueFric, 0);
    EXPECT_EQ(R, 0);
}

TEST_F(CalcTorque, FrictionAtRestReducesTheLoad) {
    Table(5, 0.1);
    double T = 0, R = 0;
    ASSERT_EQ(Interval_Torque(1, 1, 0, 0, 0, T, R), 0);
    // Tfric = |1 * 0.1 * 1 * 9.8| / 1.
    EXPECT_DOUBLE_EQ(TorqueFric, 0.98);
    EXPECT_DOUBLE_EQ(T, 5 - 0.98);
    EXPECT_EQ(R, 0);
}

TEST_F(CalcTorque, FrictionAtRestNeverReversesTheLoad) {
    Table(0.5, 0.1);
    double T = 1, R = 1;
    ASSERT_EQ(Interval_Torque(1, 1, 0, 0, 0, T, R), 0);
    EXPECT_EQ(T, 0);
    Table(-0.98, 0.1);
    ASSERT_EQ(Interval_Torque(1, 1, 0, 0, 0, T, R), 0);
    EXPECT_EQ(T, 0);
    Table(-5, 0.1);
    ASSERT_EQ(Interval_Torque(1, 1, 0, 0, 0, T, R), 0);
    EXPECT_DOUBLE_EQ(T, -5 + 0.98);
}

TEST_F(CalcTorque, ConstantSpeedGivesLoadPlusFriction) {
    Table(5, 0.1);
    double T = 0, R = 0;
    ASSERT_EQ(Interval_Torque(1, 1, 1000, 1000, 0.001, T, R), 0);
    EXPECT_EQ(TorqueAcc, 0);
    EXPECT_DOUBLE_EQ(T, 5 + 0.98);
    EXPECT_EQ(R, 0);
}

TEST_F(CalcTorque, NegativeSpeedTakesFrictionTheOtherWay) {
    Table(5, 0.1);
    double T = 0, R = 0;
    ASSERT_EQ(Interval_Torque(1, 1, -1000, -1000, 0, T, R), 0);
    EXPECT_DOUBLE_EQ(T, 5 - 0.98);
    // Torque against a negative mean speed: regeneration.
    EXPECT_DOUBLE_EQ(R, 1000 * 3.14 * (5 - 0.98) * 1 / 30);
}

TEST_F(CalcTorque, BrakingWithoutFrictionRegenerates) {
    Table(0, 0);
    double T = 0, R = 0;
    ASSERT_EQ(Interval_Torque(1, 0.2, 1000, 0, 0.001, T, R), 0);
    const double a = (0 * 3.14 / 30 - 1000 * 3.14 / 30) / 0.2;
    // Motor term plus the table's 1 kg at ratio 1.
    EXPECT_DOUBLE_EQ(T, a * 0.001 + 1 * 1 * a / 1);
    EXPECT_LT(T, 0);
    EXPECT_DOUBLE_EQ(R, 500 * 3.14 * std::fabs(T) * 0.2 / 30);
}

TEST_F(CalcTorque, SymmetricReversalIsHandledAsRest) {
    Table(0, 0.1);
    double T = 0, R = 1;
    ASSERT_EQ(Interval_Torque(1, 1, 1000, -1000, 0.001, T, R), 0);
    const double a = (-1000 * 3.14 / 30 - 1000 * 3.14 / 30) / 1;
    const double acc = a * 0.001 + a;
    EXPECT_DOUBLE_EQ(T, acc - (-1) * 0.98);
    EXPECT_EQ(R, 0);
}

TEST_F(CalcTorque, ZeroEfficiencyMarksTheFirstRowAndStops) {
    Table(5, 0);
    Param[1].eff = 0;
    Row(Patarn, 1, 1, 1000);
    Row(Patarn, 2, 1, 1000);
    Row(Patarn, 3, 1, 0);
    Patarn[2].Torque = 7;
    Patarn[3].Regeneration = 8;
    double Jm = 0, mass = 0;
    Pattern_Torques(Patarn, 1, Jm, mass);
    EXPECT_EQ(Patarn[1].Torque, -9999);
    EXPECT_EQ(Patarn[1].Regeneration, -9999);
    EXPECT_EQ(Patarn[2].Torque, 7);
    EXPECT_EQ(Patarn[3].Regeneration, 8);
}

TEST_F(CalcTorque, ZeroEfficiencyFailsEvenWithNothingToCarry) {
    ElementCount = 2;
    Param[1] = ParamRecord{0, 0, 0, 0, 0, 1, 0, 0, 0};
    Row(Patarn, 1, 1, 0);
    double Jm = 0, mass = 0;
    Pattern_Torques(Patarn, 1, Jm, mass);
    EXPECT_EQ(Patarn[1].Torque, -9999);
}

TEST_F(CalcTorque, TooShortIntervalMarksOnlyItsRow) {
    Table(5, 0);
    Row(Patarn, 1, 1, 1000);
    Row(Patarn, 2, 0.0000005, 1000);
    Row(Patarn, 3, 1, 1000);
    double Jm = 0, mass = 0;
    Pattern_Torques(Patarn, 1, Jm, mass);
    EXPECT_EQ(Patarn[2].Torque, -9999);
    EXPECT_EQ(Patarn[2].Regeneration, -9999);
    EXPECT_DOUBLE_EQ(Patarn[3].Torque, 5);
    EXPECT_EQ(Patarn[3].Regeneration, 0);
}

TEST_F(CalcTorque, TooShortIntervalLeavesTheOutputs) {
    double T = 3, R = 4;
    EXPECT_EQ(Interval_Torque(0, 0.0000005, 0, 1000, 0, T, R), 1);
    EXPECT_EQ(T, 3);
    EXPECT_EQ(R, 4);
}

TEST_F(CalcTorque, CartHasNoFrictionWhateverItsMass) {
    Place({41});
    P(1, 0) = 500;
    double T = 0, R = 0;
    ASSERT_EQ(Special_Torque(Element[1], 1, 1000, 1000, 20, 0.001, T, R), 0);
    EXPECT_EQ(TorqueFric, 0);
    EXPECT_EQ(T, 0);
    ASSERT_EQ(Special_Torque(Element[1], 0.5, 0, 1000, 20, 0.001, T, R), 0);
    double J = 0, ratio = 0;
    Special_Inertia(Element[1], 20, J, ratio);
    const double a = (1000 * 3.14 / 30 - 0 * 3.14 / 30) / 0.5;
    EXPECT_DOUBLE_EQ(T, (J / 0.8 + 0.001) * a);
    EXPECT_EQ(TorqueFric, 0);
}

TEST_F(CalcTorque, PinionCartWithoutFrictionIsACartWithAPinion) {
    Place({41});
    double T41 = 0, R41 = 0, J41 = 0, ratio = 0;
    ASSERT_EQ(Special_Torque(Element[1], 0.5, 0, 1000, 0, 0.001, T41, R41), 0);
    Special_Inertia(Element[1], 0, J41, ratio);
    Place({42});
    P(1, 7) = 0.1;
    P(1, 10) = 0;
    double T42 = 0, R42 = 0, J42 = 0;
    ASSERT_EQ(Special_Torque(Element[1], 0.5, 0, 1000, 0, 0.001, T42, R42), 0);
    Special_Inertia(Element[1], 0, J42, ratio);
    const double a = (1000 * 3.14 / 30) / 0.5;
    EXPECT_EQ(TorqueFric, 0);
    EXPECT_GT(J42, J41);
    // A difference of two near numbers: equal up to the rounding of the two.
    EXPECT_NEAR(T42 - T41, (J42 - J41) / 0.8 * a, 1e-12);
}

TEST_F(CalcTorque, PinionCartFrictionFollowsAllItsMass) {
    Place({42});
    double T = 0, R = 0;
    ASSERT_EQ(Special_Torque(Element[1], 1, 1000, 1000, 2, 0, T, R), 0);
    const double wheels = 2.7 * 4 * 3.14 * (0.1 * 0.1) * 0.03 / 4 * 1000;
    const double pinion = 7.8 * 3.14 * (0.04 * 0.04) * 0.02 / 4 * 1000;
    const double all = wheels + (2 + 1) + pinion;
    const double fric = all * (0.04 * 0.01 / 2) * 0.1 * 9.8 / 0.8;
    EXPECT_DOUBLE_EQ(TorqueFric, fric);
    EXPECT_DOUBLE_EQ(T, fric);
}

TEST_F(CalcTorque, OtherTypeIsNoSpecialMechanism) {
    Place({11});
    double T = 3, R = 4;
    EXPECT_EQ(Special_Torque(Element[1], 1, 0, 1000, 0, 0, T, R), 1);
    EXPECT_EQ(T, 3);
}

TEST_F(CalcTorque, NoComponentsLeaveTheMotorAlone) {
    double T = 0, R = 0;
    ASSERT_EQ(Interval_Torque(0, 0.1, 0, 3000, 0.0002, T, R), 0);
    EXPECT_DOUBLE_EQ(T, (3000 * 3.14 / 30 - 0 * 3.14 / 30) / 0.1 * 0.0002);
}

TEST_F(CalcTorque, EfficiencyDividesEveryTermOfItsElementAndBehind) {
    ElementCount = 3;
    Param[1] = ParamRecord{0, 0, 0, 0.01, 0, 0.5, 0.8, 0, 0};
    Param[2] = ParamRecord{0, 0, 0, 0.02, 4, 0.1, 0.5, 3, 0};
    double T = 0, R = 0;
    ASSERT_EQ(Interval_Torque(2, 1, 0, 300, 0, T, R), 0);
    const double a = 300 * 3.14 / 30 - 0 * 3.14 / 30;
    const double tin = 1 * 0.01 * a / 0.8 + 0.5 * 0.5 * 0.02 * a / (0.8 * 0.5);
    const double tout = 0.5 * 0.5 * 0 * a / 0.8 + 0.05 * 0.05 * 4 * a / (0.8 * 0.5);
    EXPECT_DOUBLE_EQ(TorqueAcc, tin + tout);
    EXPECT_DOUBLE_EQ(TorqueEx, 0.05 * 3 / (0.8 * 0.5));
    double acc = 0, ex = 0, fric = 1;
    Torque_Parts(acc, ex, fric);
    EXPECT_EQ(acc, TorqueAcc);
    EXPECT_EQ(ex, TorqueEx);
    EXPECT_EQ(fric, 0);
}

TEST_F(CalcTorque, NoMotorZeroesTheCallersMotorValues) {
    double Jm = 0.001, mass = 3;
    Pattern_Torques(Patarn, 0, Jm, mass);
    EXPECT_EQ(Jm, 0);
    EXPECT_EQ(mass, 0);
    Jm = 0.001;
    Pattern_Torques(Patarn, 2, Jm, mass);
    EXPECT_EQ(Jm, 0.001);
}

TEST_F(CalcTorque, RowsBehindTheCountAreNotTouched) {
    Table(5, 0);
    Row(Patarn, 1, 1, 0);
    Patarn_SetField(Patarn, 2, 0, 1, 1, FieldDeltaTime);  // time only
    Patarn[2].Torque = 7;
    double Jm = 0, mass = 0;
    Pattern_Torques(Patarn, 1, Jm, mass);
    EXPECT_DOUBLE_EQ(Patarn[1].Torque, 5);
    EXPECT_EQ(Patarn[2].Torque, 7);
}

}  // namespace
