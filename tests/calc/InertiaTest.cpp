// Load inertia at the motor shaft and the motion ratio of the chain.
#include "calc/mdlCulcurate.h"
#include "tests/calc/CalcFixture.h"

namespace {


// Default wheels of a cart: 4 wheels of 0.1 m by 0.03 m, density 2.7.
const double kWheels = 2.7 * 4 * 3.14 * (0.1 * 0.1) * 0.03 / 4 * 1000;
// Default pinion of 0.04 m by 0.02 m, density 7.8.
const double kPinion = 7.8 * 3.14 * (0.04 * 0.04) * 0.02 / 4 * 1000;
// Default screw: the rod's own inertia, and the travel per radian of pitch 0.01 m.
const double kScrewInertia = 0.02 * 0.02 * Steel(0.02, 0.6) / 8;
const double kScrewRatio = 0.01 / 6.28;

class CalcInertia : public CalcTest {
protected:
    static void ReduceAll() {
        for (int16_t i = 1; i <= ElementCount; ++i) Element_Reduce(i, Element[i]);
    }
    // The template reduced and its load inertia found, as the master recalculation does.
    static double Template(int16_t number) {
        Build(number);
        ReduceAll();
        double mass = 0;
        return Load_Inertia(Element, 0, mass);
    }
};

// --- edge cases ----------------------------------------------------------------------

TEST_F(CalcInertia, MotorAloneFailsAndKeepsTheRatio) {
    TotalRatio = 0.25;
    LoadInertiaTotal = 0.5;
    double mass = 0;
    EXPECT_EQ(Load_Inertia(Element, 0, mass), -1);
    EXPECT_EQ(TotalRatio, 0.25);
    EXPECT_EQ(LoadInertiaTotal, 0.5);
}

TEST_F(CalcInertia, ReducerInputInertiaCountsAtMotorSpeed) {
    Place({1});
    P(1, 0) = 0.01;
    P(1, 2) = 0.003;
    ReduceAll();
    double mass = 0;
    EXPECT_DOUBLE_EQ(Load_Inertia(Element, 0, mass), 0.003);
    EXPECT_DOUBLE_EQ(TotalRatio, 0.01);
}

TEST_F(CalcInertia, HorizontalBallscrewBehindAOneToOneGear) {
    Place({2, 11});
    P(1, 3) = 0.02;  // output gear as large as the input gear
    ReduceAll();
    const double gear = Disk(0.02, 0.01, 7.8);
    const double gearInertia = 0.02 * 0.02 * gear / 8;
    double JL = 0, ratio = 0;
    ASSERT_EQ(Chain_Inertia(1, 2, JL, ratio), 0);
    EXPECT_DOUBLE_EQ(JL, gearInertia + gearInertia + kScrewInertia + 1 * (0.01 / 6.28) * (0.01 / 6.28));
    EXPECT_DOUBLE_EQ(ratio, 0.01 / 6.28);
}

TEST_F(CalcInertia, PinionCartDiffersFromCartByThePinionOnly) {
    Place({41});
    double J41 = 0, R41 = 0;
    ASSERT_EQ(Special_Inertia(Element[1], 0, J41, R41), 0);
    Place({42});
    P(1, 7) = 0.1;  // pinion as large as the wheels
    double J42 = 0, R42 = 0;
    ASSERT_EQ(Special_Inertia(Element[1], 0, J42, R42), 0);
    const double pinion = 7.8 * 3.14 * (0.1 * 0.1) * 0.02 / 4 * 1000;
    const double R = 0.01 * 0.1 / 2;
    EXPECT_DOUBLE_EQ(R42, R41);
    EXPECT_DOUBLE_EQ(J42 - J41, (0.1 * 0.1 * pinion) * (0.01 * 0.01) / 8 + R * R * pinion);
}

TEST_F(CalcInertia, CartTakesTheMotorMassOnlyWhenAMotorIsChosen) {
    Place({41});
    SelectedMotorMass = 2;
    const double R = 0.01 * 0.1 / 2;
    const double bare = kWheels * (0.1 * 0.1) * (0.01 * 0.01) / 8 + R * R * (kWheels + 1);
    double mass = 7;
    EXPECT_DOUBLE_EQ(Load_Inertia(Element, 0, mass), bare);
    EXPECT_EQ(mass, 0);
    mass = 7;
    EXPECT_DOUBLE_EQ(Load_Inertia(Element, 1, mass), bare + R * R * 2);
    EXPECT_EQ(mass, 2);
}

TEST_F(CalcInertia, CandidateFlagUsesTheChosenMotorMassAnyway) {
    Place({41});
    SelectedMotorMass = 2;
    double candidate = 5;
    const double R = 0.01 * 0.1 / 2;
    EXPECT_DOUBLE_EQ(Load_Inertia(Element, 2, candidate),
                     kWheels * (0.1 * 0.1) * (0.01 * 0.01) / 8 + R * R * (kWheels + 1 + 2));
    EXPECT_EQ(candidate, 2);
}

TEST_F(CalcInertia, CandidateFlagLeavesTotalsAlone) {
    Place({1});
    P(1, 2) = 0.003;
    ReduceAll();
    LoadInertiaTotal = 9;
    TotalRatio = 8;
    SelectedJb = 0.001;
    double mass = 0;
    EXPECT_DOUBLE_EQ(Load_Inertia(Element, 2, mass), 0.001 + 0.003);
    EXPECT_EQ(LoadInertiaTotal, 9);
    EXPECT_EQ(TotalRatio, 8);
    EXPECT_DOUBLE_EQ(Load_Inertia(Element, 1, mass), 0.004);
    EXPECT_DOUBLE_EQ(LoadInertiaTotal, 0.004);
    EXPECT_DOUBLE_EQ(TotalRatio, 1);
}

TEST_F(CalcInertia, BadArgumentsLeaveTheOutputs) {
    double JL = 3, ratio = 4;
    EXPECT_EQ(Chain_Inertia(2, 1, JL, ratio), 1);
    EXPECT_EQ(Chain_Inertia(1, 0, JL, ratio), 1);
    EXPECT_EQ(Chain_Inertia(0, 21, JL, ratio), 1);
    Place({11});
    EXPECT_EQ(Special_Inertia(Element[1], 0, JL, ratio), 1);
    EXPECT_EQ(JL, 3);
    EXPECT_EQ(ratio, 4);
}

TEST_F(CalcInertia, RatioOfZeroStopsTheLoadThere) {
    Place({1, 5});
    P(1, 0) = 0;
    ReduceAll();
    double mass = 0;
    EXPECT_EQ(Load_Inertia(Element, 0, mass), 0);
    EXPECT_EQ(TotalRatio, 0);
}

// --- the template chains ---------------------------------------------------------------

TEST_F(CalcInertia, HorizontalBallscrewTemplate) {
    const double r = kScrewRatio;
    EXPECT_DOUBLE_EQ(Template(1), kScrewInertia + 1 * r * r + 1 * r * r);
    EXPECT_DOUBLE_EQ(TotalRatio, r);
}

TEST_F(CalcInertia, VerticalBallscrewTemplate) {
    const double r = kScrewRatio;
    const double roller = Disk(0.1, 0.02, 2.7);
    // The balancer: workpiece and balancer mass on its input, half its rollers on its output.
    EXPECT_DOUBLE_EQ(Template(2), kScrewInertia + 1 * r * r + (1 + 1) * r * r + (roller + roller) / 2 * r * r);
    EXPECT_DOUBLE_EQ(TotalRatio, r);
}

TEST_F(CalcInertia, TurntableTemplate) {
    const double m = (0.2 * 0.2 - 0) * 7.8 * 3.14 * 0.05 / 4 * 1000;
    EXPECT_DOUBLE_EQ(Template(3), (0 + 0.2 * 0.2) * m / 8);
    EXPECT_DOUBLE_EQ(TotalRatio, 1);
}

TEST_F(CalcInertia, ConveyorBeltTemplate) {
    const double m = Disk(0.1, 0.02, 2.7);
    const double r = 0.1 / 2;
    EXPECT_DOUBLE_EQ(Template(4), 0.01 * m / 8 + 0.01 * m / 8 + 0.5 * r * r + 1 * r * r);
    EXPECT_DOUBLE_EQ(TotalRatio, r);
}

TEST_F(CalcInertia, RollFeederTemplate) {
    const double m = Disk(0.1, 0.06, 7.8);
    EXPECT_DOUBLE_EQ(Template(5), (0.01 * m + 0.01 * m) / 8 + 1 * 0.05 * 0.05);
    EXPECT_DOUBLE_EQ(TotalRatio, 0.05);
}

TEST_F(CalcInertia, SuspensionTemplate) {
    const double m = Disk(0.1, 0.02, 2.7);
    EXPECT_DOUBLE_EQ(Template(6), 0.01 * m / 8 + 0.01 * m / 8 + (1 + 1) * 0.05 * 0.05);
    EXPECT_DOUBLE_EQ(TotalRatio, 0.05);
}

TEST_F(CalcInertia, RackAndPinionTemplate) {
    const double m = Disk(0.04, 0.02, 7.8);
    EXPECT_DOUBLE_EQ(Template(7), 0.04 * 0.04 * m / 8 + 1 * 0.02 * 0.02 + 1 * 0.02 * 0.02);
    EXPECT_DOUBLE_EQ(TotalRatio, 0.02);
}

TEST_F(CalcInertia, CartTemplate) {
    const double R = 0.01 * 0.1 / 2;
    EXPECT_DOUBLE_EQ(Template(8), kWheels * (0.1 * 0.1) * (0.01 * 0.01) / 8 + R * R * (kWheels + 1));
    EXPECT_DOUBLE_EQ(TotalRatio, R);
}

TEST_F(CalcInertia, PinionDrivenCartTemplate) {
    const double R = 0.04 * 0.01 / 2;
    EXPECT_DOUBLE_EQ(Template(9), (0.1 * 0.1 * kWheels + 0.04 * 0.04 * kPinion) * (0.01 * 0.01) / 8 +
                                      R * R * (kWheels + 1 + kPinion));
    EXPECT_DOUBLE_EQ(TotalRatio, R);
}

}  // namespace
