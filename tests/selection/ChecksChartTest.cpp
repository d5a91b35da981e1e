// The geometry of the speed-torque chart (selection/ChecksChart): round axes
// in the picked units, the curves and the operating points where they belong.
#include "selection/ChecksChart.h"

#include <gtest/gtest.h>

#include "tests/selection/ChecksFixture.h"
#include "units/UnitTable.h"

namespace {

class ChecksChartTest : public ChecksFixture {
protected:
    // 800 by 400 pixels: the plot runs from x 64 to 784 and from y 356 up to 16.
    ChecksChart Make() {
        Compute();
        return Chart_Build(checks, parts.curve, 800, 400);
    }
};

TEST_F(ChecksChartTest, AxesRunToRoundNumbersPastEveryPoint) {
    const ChecksChart c = Make();
    // 5500 r/min in steps of 1000 up to 6000; 3 N m in steps of 0.5.
    ASSERT_EQ(c.xTicks.size(), 7u);
    EXPECT_EQ(c.xTicks.front().label, "0");
    EXPECT_EQ(c.xTicks.back().label, "6000");
    EXPECT_DOUBLE_EQ(c.xTicks.back().at, 784);
    ASSERT_EQ(c.yTicks.size(), 7u);
    EXPECT_EQ(c.yTicks[1].label, "0.5");
    EXPECT_DOUBLE_EQ(c.yTicks.front().at, 356);
    EXPECT_DOUBLE_EQ(c.yTicks.back().at, 16);
    EXPECT_EQ(c.xTitle, "|Speed| [r/min]");
    EXPECT_EQ(c.yTitle, "|Torque| [N\u00b7m]");
}

TEST_F(ChecksChartTest, CurvesAndPointsStandAtTheirSpeedAndTorque) {
    const ChecksChart c = Make();
    ASSERT_EQ(c.peak.size(), 3u);
    EXPECT_DOUBLE_EQ(c.peak[1].x, 424);  // 3000 of 6000
    EXPECT_DOUBLE_EQ(c.peak[1].y, 16);   // 3 of 3
    EXPECT_NEAR(c.continuous[0].y, 356 - 340.0 / 3, 1e-9);
    ASSERT_EQ(c.intervals.size(), 3u);
    EXPECT_DOUBLE_EQ(c.intervals[0].from.x, 64);
    EXPECT_DOUBLE_EQ(c.intervals[0].to.x, 424);
    EXPECT_DOUBLE_EQ(c.intervals[0].from.y, 356 - 0.9 * 340);
    EXPECT_EQ(c.intervals[0].state, CheckState::Tight);
    EXPECT_EQ(c.intervals[2].state, CheckState::Fail);
    ASSERT_TRUE(c.hasMean);
    // (150 + 150 + 550) / 0.4 = 2125 r/min at 0.9 N m.
    EXPECT_DOUBLE_EQ(c.mean.from.x, 64 + 2125.0 / 6000 * 720);
    EXPECT_DOUBLE_EQ(c.mean.from.y, 356 - 0.3 * 340);
}

TEST_F(ChecksChartTest, NumbersAndTitlesFollowThePickedUnits) {
    UnitTable[UnitKind::Torque].Sel = 0;  // N mm
    const ChecksChart c = Make();
    EXPECT_EQ(c.yTicks.back().label, "3000");
    EXPECT_EQ(c.yTitle, "|Torque| [N\u00b7mm]");
    EXPECT_DOUBLE_EQ(c.peak[1].y, 16);
}

TEST_F(ChecksChartTest, WithoutACurveThePointsStillShow) {
    parts.curveSource = CurveSource::NoCurve;
    parts.curve = {};
    const ChecksChart c = Make();
    EXPECT_TRUE(c.peak.empty());
    EXPECT_EQ(c.intervals.size(), 3u);
    EXPECT_EQ(c.intervals[0].state, CheckState::NoCurve);
    // 2.7 N m is the largest torque: the axis goes to 3 in steps of 0.5.
    EXPECT_EQ(c.yTicks.back().label, "3");
}

TEST_F(ChecksChartTest, AnEmptyPatternGivesAnEmptyPlot) {
    Checks_Compute(table, 0, 0, 0, 0, ChosenParts{}, checks);
    const ChecksChart c = Chart_Build(checks, SpeedTorqueCurve{}, 800, 400);
    EXPECT_TRUE(c.intervals.empty());
    EXPECT_FALSE(c.hasMean);
    // Nothing to take in: each axis runs from 0 to 1.
    ASSERT_EQ(c.xTicks.size(), 2u);
    EXPECT_EQ(c.xTicks.back().label, "1");
}

}  // namespace
