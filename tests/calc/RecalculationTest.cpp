// One complete sizing of the horizontal ballscrew template with a chosen
// motor, every number worked out by hand from the formula tables.
#include <cmath>

#include "calc/mdlCulcurate.h"
#include "tests/calc/CalcFixture.h"

namespace {

class CalcRecalculation : public CalcTest {
protected:
    void SetUp() override {
        CalcTest::SetUp();
        BuildSizedBallscrew();
        SelectedMotorMass = 1;
        PatternRowCount = 4;
        Culcurate_All();
    }

    // The chain by hand. Reducer: ratio 1, efficiency 1, nothing else.
    // Ballscrew: the rod's inertia at its input, the table's 1 kg at its
    // output, travel r per radian, efficiency 0.9, friction 0.1. Linear
    // table: 1 kg with friction 0.1, ratio 1, efficiency 1.
    const double r = 0.01 / 6.28;
    const double Js = 0.02 * 0.02 * Steel(0.02, 0.6) / 8;
    const double Jm = 0.00003;

    static double Accel(double v1, double v2, double dt) { return (v2 * 3.14 / 30 - v1 * 3.14 / 30) / dt; }
    // Motor, the rod's inertia through koritu 0.9, both 1 kg masses at r^2 through 0.9.
    double Acc(double a) const { return a * Jm + Js * a / 0.9 + 2 * (r * r * 1 * a / 0.9); }
    // Screw table and linear table: |r * 0.1 * 1 * 9.8| / 0.9 each.
    double Fric() const { return 2 * (r * 0.1 * 1 * 9.8 / 0.9); }

    double T1() const { return Acc(Accel(0, 3000, 0.1)) + Fric(); }
    double T2() const { return Acc(0) + Fric(); }
    double T3() const { return Acc(Accel(3000, 0, 0.1)) + Fric(); }
    // Braking at a mean of 1500 r/min for 0.1 s.
    double R3() const { return 1500 * 3.14 * std::fabs(T3()) * 0.1 / 30; }
    double JL() const { return Js + 1 * r * r + 1 * r * r; }
};

TEST_F(CalcRecalculation, MotionOfTheLoad) {
    EXPECT_EQ(LoadMotion, 0);
    EXPECT_DOUBLE_EQ(TotalRatio, r);
    EXPECT_DOUBLE_EQ(LoadInertiaTotal, 0.00001 + JL());
}

TEST_F(CalcRecalculation, TimesAndPositions) {
    EXPECT_DOUBLE_EQ(Patarn[1].Time, 0.1);
    EXPECT_DOUBLE_EQ(Patarn[2].Time, 0.6);
    EXPECT_DOUBLE_EQ(Patarn[3].Time, 0.7);
    EXPECT_DOUBLE_EQ(Patarn[4].Time, 1.0);
    // Load speed in m/s: r times the motor speed in rad/s.
    const double v = r * (3000 / (60 / 6.28));
    EXPECT_DOUBLE_EQ(Patarn[1].LoadSpeed, v);
    EXPECT_EQ(Patarn[3].LoadSpeed, 0);
    // Travel in mm, stored in m.
    const double d1 = (v / 0.001) * 0.1 / 2;
    const double d2 = d1 + ((v + v) / 0.001) * 0.5 / 2;
    const double d3 = d2 + ((v + 0) / 0.001) * 0.1 / 2;
    EXPECT_NEAR(Patarn[1].Position, d1 * 0.001, 1e-12);
    EXPECT_NEAR(Patarn[2].Position, d2 * 0.001, 1e-12);
    EXPECT_NEAR(Patarn[3].Position, d3 * 0.001, 1e-12);
    EXPECT_NEAR(Patarn[4].Position, d3 * 0.001, 1e-12);
}

TEST_F(CalcRecalculation, TorqueAndRegenerationOfEveryRow) {
    EXPECT_DOUBLE_EQ(Patarn[1].Torque, T1());
    EXPECT_DOUBLE_EQ(Patarn[2].Torque, T2());
    EXPECT_DOUBLE_EQ(Patarn[3].Torque, T3());
    EXPECT_LT(Patarn[3].Torque, 0);
    // At rest with no constant load, friction holds nothing.
    EXPECT_EQ(Patarn[4].Torque, 0);
    EXPECT_EQ(Patarn[1].Regeneration, 0);
    EXPECT_EQ(Patarn[2].Regeneration, 0);
    EXPECT_DOUBLE_EQ(Patarn[3].Regeneration, R3());
    EXPECT_EQ(Patarn[4].Regeneration, 0);
}

TEST_F(CalcRecalculation, CalculatedValues) {
    const auto& cul = ResultValues[Cul];
    const double S = T1() * T1() * 0.1 + T2() * T2() * 0.5 + T3() * T3() * 0.1 + 0 * 0.3;
    EXPECT_DOUBLE_EQ(cul[EffectiveTorque], std::sqrt(S / (0.1 + 0.5 + 0.1 + 0.3)));
    EXPECT_DOUBLE_EQ(cul[MaxTorque], T1());
    EXPECT_EQ(cul[MaxRotationalSpeed], 3000);
    EXPECT_DOUBLE_EQ(cul[Inertia], 0.00001 + JL());
    EXPECT_DOUBLE_EQ(cul[Regeneration1], R3());
    EXPECT_DOUBLE_EQ(cul[Regeneration2], R3() / 1.0);
    EXPECT_EQ(cul[StoppingTorque], 0);
}

TEST_F(CalcRecalculation, RatesAndVerdicts) {
    const auto& cul = ResultValues[Cul];
    const auto& rate = ResultValues[Ratio];
    EXPECT_DOUBLE_EQ(rate[EffectiveTorque], cul[EffectiveTorque] / 0.64);
    EXPECT_DOUBLE_EQ(rate[MaxTorque], T1() / 0.42);
    EXPECT_EQ(rate[MaxRotationalSpeed], 1);
    EXPECT_DOUBLE_EQ(rate[Inertia], (0.00001 + JL()) / 0.00002);
    EXPECT_DOUBLE_EQ(rate[Regeneration1], R3() / 10);
    EXPECT_DOUBLE_EQ(rate[Regeneration2], R3() / 5);
    EXPECT_EQ(rate[StoppingTorque], 0);
    // About 0.26, 0.89, 1, 4.4 of 30, 0.57, 1.15 and 0.
    const std::array<double, 7> verdicts = {1, 2, 1, 1, 1, 3, 1};
    EXPECT_EQ(ResultValues[Hantei], verdicts);
}

TEST_F(CalcRecalculation, RatingsStayAsTheyWere) {
    const std::array<double, 7> ratings = {0.64, 0.42, 3000, 0.00002, 10, 5, 0.64};
    EXPECT_EQ(ResultValues[Rate], ratings);
}

}  // namespace
