// The engineering checks (selection/EngineeringChecks) on patterns made by
// hand against the falling motor of Parts_Falling and a driver of 10 J and
// 5 W, each figure worked out beside its test.
#include "selection/EngineeringChecks.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "tests/support/ChecksParts.h"

namespace {

struct Row {
    double dt, speed, torque, regeneration = 0;
};

class ChecksTest : public ::testing::Test {
protected:
    void Pattern(std::initializer_list<Row> rows) {
        table = {};
        n = 0;
        for (const Row& r : rows) {
            ++n;
            table[n].DeltaTime = r.dt;
            table[n].Speed = r.speed;
            table[n].Torque = r.torque;
            table[n].Regeneration = r.regeneration;
        }
    }
    void Compute(double effective = 0, double peak = 0, double mean = 0) {
        Checks_Compute(table, n, effective, peak, mean, parts, out);
    }
    const TorqueCheck& Interval(int i) const { return out.interval[i - 1].check; }

    PatarnTable table{};
    int n = 0;
    ChosenParts parts = Parts_Falling(10, 5);
    EngineeringChecks out;
};

TEST_F(ChecksTest, APointOnThePeakCurveHasNoMargin) {
    Pattern({{0.1, 3000, 3}});
    Compute();
    EXPECT_DOUBLE_EQ(Interval(1).offered, 3);
    EXPECT_DOUBLE_EQ(Interval(1).margin, 0);
    EXPECT_EQ(Interval(1).state, CheckState::Tight);
}

TEST_F(ChecksTest, JustAboveThePeakCurveFails) {
    // The curve offers 3 N m; 3.03 needed: (3 - 3.03) / 3.03 = -0.990 %.
    Pattern({{0.1, 3000, 3.03}});
    Compute();
    EXPECT_NEAR(Interval(1).margin, -0.03 / 3.03 * 100, 1e-12);
    EXPECT_EQ(Interval(1).state, CheckState::Fail);
}

TEST_F(ChecksTest, JustBelowThePeakCurveIsTight) {
    Pattern({{0.1, 3000, 2.97}});
    Compute();
    EXPECT_NEAR(Interval(1).margin, 1, 1e-12);
    EXPECT_EQ(Interval(1).state, CheckState::Tight);
}

TEST_F(ChecksTest, EightyPercentOfTheOfferPasses) {
    Pattern({{0.1, 3000, 2.4}, {0.1, 3000, -2.43}});
    Compute();
    EXPECT_NEAR(Interval(1).margin, 20, 1e-12);
    EXPECT_EQ(Interval(1).state, CheckState::Pass);
    EXPECT_EQ(Interval(2).state, CheckState::Tight);  // a braking torque counts by its size
    EXPECT_DOUBLE_EQ(Interval(2).torque, 2.43);
}

TEST_F(ChecksTest, AnIntervalMeetsTheLowestOfferOfItsSpeeds) {
    // 3000 to 4000 r/min: the curve falls to 3 + (1 - 3) / 2 = 2 N m at 4000.
    Pattern({{0.1, 3000, 1}, {0.1, 4000, 1.5}});
    Compute();
    EXPECT_DOUBLE_EQ(out.interval[1].speedStart, 3000);
    EXPECT_DOUBLE_EQ(out.interval[1].speedEnd, 4000);
    EXPECT_DOUBLE_EQ(Interval(2).offered, 2);
    EXPECT_DOUBLE_EQ(Interval(2).margin, 25);
    EXPECT_EQ(Interval(2).state, CheckState::Pass);
}

TEST_F(ChecksTest, AnIntervalThroughZeroSpeedReachesDownToIt) {
    Pattern({{0.1, 4000, 1}, {0.2, -2000, 1}});
    Compute();
    EXPECT_DOUBLE_EQ(Interval(2).speedLow, 0);
    EXPECT_DOUBLE_EQ(Interval(2).speedHigh, 4000);
}

TEST_F(ChecksTest, TheTightestIntervalIsTheOneOfLeastMargin) {
    Pattern({{0.1, 3000, 1}, {0.1, 3000, 2.7}, {0.1, 0, -1.5}});
    Compute();
    EXPECT_EQ(out.tightest, 2);
}

TEST_F(ChecksTest, AboveTheTopSpeedFails) {
    Pattern({{0.1, 5500, 0}});
    Compute();
    EXPECT_TRUE(Interval(1).aboveTop);
    EXPECT_EQ(Interval(1).margin, -100);
    EXPECT_EQ(Interval(1).state, CheckState::Fail);
    EXPECT_EQ(out.tightest, 1);
}

TEST_F(ChecksTest, ACurveOfOnePointIsFlatToItsSpeed) {
    parts.curve = {{{2000, 1, 2}}};
    Pattern({{0.1, 1500, 1}, {0.1, 2500, 1}});
    Compute(0.5);
    EXPECT_DOUBLE_EQ(Interval(1).offered, 2);
    EXPECT_DOUBLE_EQ(Interval(1).margin, 50);
    EXPECT_EQ(Interval(1).state, CheckState::Pass);
    EXPECT_TRUE(Interval(2).aboveTop);
    EXPECT_EQ(Interval(2).state, CheckState::Fail);
}

TEST_F(ChecksTest, TheMeanSpeedIsTheTimeWeightedMeanOfTheSpeedsSize) {
    // Travel 150 + 1500 + 150 + 0 revolution-minutes in 1 s: 1800 r/min.
    Pattern({{0.1, 3000, 2}, {0.5, 3000, 0.5}, {0.1, 0, -2}, {0.3, 0, 0}});
    Compute(0.9);
    EXPECT_DOUBLE_EQ(out.meanSpeed, 1800);
    EXPECT_DOUBLE_EQ(out.mean.offered, 1);
    EXPECT_NEAR(out.mean.margin, 10, 1e-12);
    EXPECT_EQ(out.mean.state, CheckState::Tight);
}

TEST_F(ChecksTest, AMeanThroughZeroSpeedCountsBothSides) {
    // From 1000 to -1000 in 0.2 s the speed's size averages 500 r/min.
    Pattern({{0.1, 1000, 0}, {0.2, -1000, 0}});
    Compute(0.3);
    // (500 * 0.1 + 500 * 0.2) / 0.3
    EXPECT_DOUBLE_EQ(out.meanSpeed, 500);
    EXPECT_EQ(out.mean.state, CheckState::Pass);
}

TEST_F(ChecksTest, TheEffectiveTorqueAboveTheContinuousCurveFails) {
    // Travel 200 + 3600 in 1 s: 3800 r/min, where the continuous curve gives
    // 1 + 800 / 2000 * (0.5 - 1) = 0.8 N m; 0.85 needed.
    Pattern({{0.1, 4000, 0.8}, {0.9, 4000, 0.8}});
    Compute(0.85);
    EXPECT_DOUBLE_EQ(out.meanSpeed, 3800);
    EXPECT_DOUBLE_EQ(out.mean.offered, 0.8);
    EXPECT_NEAR(out.mean.margin, -0.05 / 0.85 * 100, 1e-9);
    EXPECT_EQ(out.mean.state, CheckState::Fail);
}

TEST_F(ChecksTest, WithoutACurveTheChecksSaySoInsteadOfPassing) {
    for (const CurveSource source : {CurveSource::NoMotor, CurveSource::NoCatalogue, CurveSource::NoTable,
                                     CurveSource::NoCurve, CurveSource::Unusable}) {
        parts.curveSource = source;
        Pattern({{0.1, 3000, 0.1}});
        Compute(0.1);
        EXPECT_EQ(out.curveSource, source);
        EXPECT_EQ(Interval(1).state, CheckState::NoCurve);
        EXPECT_EQ(out.mean.state, CheckState::NoCurve);
        EXPECT_EQ(out.tightest, 0);
    }
}

TEST_F(ChecksTest, ATorqueMarkedAsNotComputedIsNotJudged) {
    Pattern({{0.1, 3000, kOver}, {0.1, 3000, 1}});
    Compute(kOver);
    EXPECT_EQ(Interval(1).state, CheckState::NotComputed);
    EXPECT_EQ(out.tightest, 2);
    EXPECT_EQ(out.mean.state, CheckState::NotComputed);
    parts.curveSource = CurveSource::NoCurve;  // not computed whether or not there is a curve
    Compute(kOver);
    EXPECT_EQ(Interval(1).state, CheckState::NotComputed);
    EXPECT_EQ(Interval(2).state, CheckState::NoCurve);
}

TEST_F(ChecksTest, RegenerationExactlyAtTheLimitNeedsNoResistor) {
    Pattern({{0.1, 3000, 1}});
    Compute(0, 10, 5);
    EXPECT_EQ(out.energy.state, RegenState::Within);
    EXPECT_DOUBLE_EQ(out.energy.margin, 0);
    EXPECT_EQ(out.power.state, RegenState::Within);
    EXPECT_EQ(out.resistor, ResistorState::NotNeeded);
    Compute(0, 10.000001, 5);  // equal in single precision
    EXPECT_EQ(out.energy.state, RegenState::Within);
    EXPECT_EQ(out.resistor, ResistorState::NotNeeded);
}

TEST_F(ChecksTest, RegenerationAboveTheLimitSizesTheResistor) {
    // 12 J against 10 J: the resistor takes 2 J, rated 2 * 1.2 = 2.4 J; 4 W of 5 W is within.
    Pattern({{0.1, 3000, 1}});
    Compute(0, 12, 4);
    EXPECT_EQ(out.energy.state, RegenState::Exceeded);
    EXPECT_DOUBLE_EQ(out.energy.excess, 2);
    EXPECT_DOUBLE_EQ(out.energy.margin, -2.0 / 12 * 100);  // the share of the 12 J not absorbed
    EXPECT_EQ(out.power.state, RegenState::Within);
    EXPECT_DOUBLE_EQ(out.power.margin, 20);
    EXPECT_EQ(out.resistor, ResistorState::Needed);
    EXPECT_DOUBLE_EQ(out.resistorEnergy, 2.4);
    EXPECT_DOUBLE_EQ(out.resistorPower, 0);
    // 8 W against 5 W: 3 W, rated 3.6 W.
    Compute(0, 9, 8);
    EXPECT_EQ(out.resistor, ResistorState::Needed);
    EXPECT_DOUBLE_EQ(out.resistorEnergy, 0);
    EXPECT_DOUBLE_EQ(out.resistorPower, 3.6);
}

TEST_F(ChecksTest, ABlankLimitIsNoLimit) {
    parts.energyLimit.reset();
    Pattern({{0.1, 3000, 1}});
    Compute(0, 1000, 4);
    EXPECT_EQ(out.energy.state, RegenState::NoLimit);
    EXPECT_EQ(out.resistor, ResistorState::NotNeeded);
    // Once the power needs a resistor, it takes all of each braking's energy,
    // none of which the driver is known to absorb: 1000 J, 1200 J rated.
    Compute(0, 1000, 8);
    EXPECT_EQ(out.resistor, ResistorState::Needed);
    EXPECT_DOUBLE_EQ(out.resistorEnergy, 1200);
    EXPECT_DOUBLE_EQ(out.resistorPower, 3.6);
    parts.powerLimit.reset();
    Compute(0, 1000, 1000);
    EXPECT_EQ(out.power.state, RegenState::NoLimit);
    EXPECT_EQ(out.resistor, ResistorState::NotNeeded);
}

TEST_F(ChecksTest, WithoutADriverTheResistorCannotBeTold) {
    parts.driverSource = DriverSource::NotInCatalogue;
    Pattern({{0.1, 3000, 1}});
    Compute(0, 100, 100);
    EXPECT_EQ(out.energy.state, RegenState::NoDriver);
    EXPECT_EQ(out.resistor, ResistorState::Unknown);
    Compute(0, kOver, 1);
    EXPECT_EQ(out.energy.state, RegenState::NotComputed);  // not computed whether or not there is a driver
    parts = Parts_Falling(10, 5);
    Compute(0, kOver, 1);
    EXPECT_EQ(out.energy.state, RegenState::NotComputed);
    EXPECT_EQ(out.resistor, ResistorState::Unknown);
}

TEST_F(ChecksTest, NoPatternLeavesNothingToJudge) {
    Pattern({});
    Compute();
    EXPECT_EQ(out.intervals, 0);
    EXPECT_EQ(out.mean.state, CheckState::NotComputed);
}

}  // namespace
