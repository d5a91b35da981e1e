// A motor's speed-torque curve (selection/SpeedTorqueCurve): the lowest torque
// over a range of speeds, worked by hand, and the points that make no curve.
#include "selection/SpeedTorqueCurve.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

// Flat at 1 and 3 N m to 3000 r/min, falling to 0.5 and 1 N m at 5000 r/min.
const SpeedTorqueCurve kFalling{{{0, 1, 3}, {3000, 1, 3}, {5000, 0.5, 1}}};

TEST(SpeedTorqueCurve, FlatPartGivesItsTorque) {
    const CurveOffer o = kFalling.LowestOver(0, 3000, &CurvePoint::peak);
    EXPECT_FALSE(o.aboveTop);
    EXPECT_DOUBLE_EQ(o.torque, 3);
    EXPECT_DOUBLE_EQ(kFalling.LowestOver(1000, 2000, &CurvePoint::continuous).torque, 1);
}

TEST(SpeedTorqueCurve, FallingPartIsLinearBetweenPoints) {
    // Half way from 3000 to 5000: 3 + (1 - 3) / 2 = 2, and 1 + (0.5 - 1) / 2 = 0.75.
    EXPECT_DOUBLE_EQ(kFalling.LowestOver(4000, 4000, &CurvePoint::peak).torque, 2);
    EXPECT_DOUBLE_EQ(kFalling.LowestOver(4000, 4000, &CurvePoint::continuous).torque, 0.75);
    // A range takes its lowest end: 3500 gives 2.5, 4500 gives 1.5.
    EXPECT_DOUBLE_EQ(kFalling.LowestOver(3500, 4500, &CurvePoint::peak).torque, 1.5);
}

TEST(SpeedTorqueCurve, TheTopSpeedIsOnTheCurveAndAboveItNothing) {
    EXPECT_DOUBLE_EQ(kFalling.LowestOver(5000, 5000, &CurvePoint::peak).torque, 1);
    const CurveOffer above = kFalling.LowestOver(0, 5000.5, &CurvePoint::peak);
    EXPECT_TRUE(above.aboveTop);
    EXPECT_EQ(above.torque, 0);
}

TEST(SpeedTorqueCurve, ADipInsideARangeCounts) {
    // Both ends at 3 N m, the middle point at 1 N m.
    const SpeedTorqueCurve dip{{{0, 1, 3}, {1000, 0.2, 1}, {2000, 1, 3}}};
    EXPECT_DOUBLE_EQ(dip.LowestOver(500, 1500, &CurvePoint::peak).torque, 1);
    EXPECT_DOUBLE_EQ(dip.LowestOver(500, 1500, &CurvePoint::continuous).torque, 0.2);
}

TEST(SpeedTorqueCurve, OnePointIsFlatUpToItsSpeed) {
    const SpeedTorqueCurve one{{{2000, 1, 2}}};
    EXPECT_DOUBLE_EQ(one.LowestOver(0, 2000, &CurvePoint::peak).torque, 2);
    EXPECT_DOUBLE_EQ(one.LowestOver(0, 0, &CurvePoint::continuous).torque, 1);
    EXPECT_TRUE(one.LowestOver(0, 2001, &CurvePoint::peak).aboveTop);
}

TEST(SpeedTorqueCurve, BelowTheFirstPointTheFirstTorquesHold) {
    const SpeedTorqueCurve late{{{500, 1, 2}, {1000, 0.5, 1}}};
    EXPECT_DOUBLE_EQ(late.LowestOver(0, 100, &CurvePoint::peak).torque, 2);
}

TEST(SpeedTorqueCurve, AStepCountsItsLowerSide) {
    const SpeedTorqueCurve step{{{0, 1, 3}, {2000, 1, 3}, {2000, 0.5, 1}, {3000, 0.5, 1}}};
    EXPECT_DOUBLE_EQ(step.LowestOver(2000, 2000, &CurvePoint::peak).torque, 1);
    EXPECT_DOUBLE_EQ(step.LowestOver(1000, 1999, &CurvePoint::peak).torque, 3);
}

TEST(SpeedTorqueCurve, PointsThatMakeNoCurveAreTold) {
    EXPECT_EQ(Curve_Problem(kFalling), "");
    EXPECT_NE(Curve_Problem(SpeedTorqueCurve{}), "");
    EXPECT_NE(Curve_Problem(SpeedTorqueCurve{{{0, 1, NAN}}}), "");
    EXPECT_NE(Curve_Problem(SpeedTorqueCurve{{{0, -1, 2}}}), "");
    EXPECT_NE(Curve_Problem(SpeedTorqueCurve{{{0, 1, INFINITY}}}), "");
    EXPECT_NE(Curve_Problem(SpeedTorqueCurve{{{1000, 1, 2}, {500, 1, 2}}}), "");
    EXPECT_EQ(Curve_Problem(SpeedTorqueCurve{{{1000, 1, 2}, {1000, 0.5, 1}}}), "");
}

}  // namespace
