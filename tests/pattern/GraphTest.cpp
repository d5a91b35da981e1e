// The geometry of the two pattern graphs (pattern/Graph): the scales, the zero line and the curves of the rows.
#include <gtest/gtest.h>

#include "pattern/Graph.h"
#include "tests/support/TestState.h"

namespace {

// A picture of 6000 x 3000 twips: mid = round(2800) / 2 + 100 = 1500.
constexpr double kW = 6000, kH = 3000;

void Row(PatarnTable& t, int i, double time, double speed, double torque) {
    t[i].Time = time;
    t[i].Speed = speed;
    t[i].Torque = torque;
    t[i].RowState = 3;
}

}  // namespace

TEST(GraphGeometry, MidIsHalfTheInnerHeightPlusTheMargin) {
    EXPECT_EQ(Graph_Mid(3000), 1500);
    // (1201 - 200) = 1001, halved 500.5, plus 100 = 600.5, ties to even: 600.
    EXPECT_EQ(Graph_Mid(1201), 600);
    // (1203 - 200) = 1003, halved 501.5, plus 100 = 601.5, ties to even: 602.
    EXPECT_EQ(Graph_Mid(1203), 602);
}

TEST(GraphGeometry, XScalesTimeToTheInnerWidth) {
    EXPECT_EQ(Graph_X(0.5, 1.0, kW), 5800 / 2 + 100);
    EXPECT_EQ(Graph_X(1.0, 1.0, kW), 5900);
    EXPECT_EQ(Graph_X(1.0, 0.0, kW), 0);
}

TEST(GraphGeometry, YIsPositiveUpAndThePeakReachesTheMargin) {
    EXPECT_EQ(Graph_Y(0, 0, 1500), 1500);
    EXPECT_EQ(Graph_Y(100, 100, 1500), 100);
    EXPECT_EQ(Graph_Y(-100, 100, 1500), 2900);
    EXPECT_EQ(Graph_Y(50, 100, 1500), 800);
}

TEST(GraphGeometry, AnEmptyPatternLeavesBothPicturesBlankWithoutAxes) {
    PatarnTable t{};
    const GraphDrawing s = Graph_Speed(t, 0, kW, kH);
    const GraphDrawing q = Graph_Torque(t, 0, kW, kH);
    EXPECT_FALSE(s.axes);
    EXPECT_TRUE(s.curve.empty());
    EXPECT_FALSE(q.axes);
    EXPECT_TRUE(q.curve.empty());
}

TEST(GraphGeometry, AllSpeedsZeroLieOnTheZeroLine) {
    PatarnTable t{};
    Row(t, 1, 1, 0, 0);
    Row(t, 2, 2, 0, 0);
    const GraphDrawing s = Graph_Speed(t, 2, kW, kH);
    ASSERT_EQ(s.curve.size(), 2u);
    for (const GraphLine& l : s.curve) {
        EXPECT_EQ(l.y1, 1500);
        EXPECT_EQ(l.y2, 1500);
    }
}

TEST(GraphGeometry, OneRowGivesOneSpeedLineAndAStepAtTheLeftEdge) {
    PatarnTable t{};
    Row(t, 1, 0.1, 3000, 2.0);
    const GraphDrawing s = Graph_Speed(t, 1, kW, kH);
    ASSERT_EQ(s.curve.size(), 1u);
    EXPECT_EQ(s.curve[0].x1, 100);
    EXPECT_EQ(s.curve[0].y1, 1500);
    EXPECT_EQ(s.curve[0].x2, 5900);
    EXPECT_EQ(s.curve[0].y2, 100);
    const GraphDrawing q = Graph_Torque(t, 1, kW, kH);
    ASSERT_EQ(q.curve.size(), 2u);
    // The vertical step at the left edge, then one horizontal line to the right margin.
    EXPECT_EQ(q.curve[0].x1, 100);
    EXPECT_EQ(q.curve[0].x2, 100);
    EXPECT_EQ(q.curve[0].y1, 1500);
    EXPECT_EQ(q.curve[0].y2, 100);
    EXPECT_EQ(q.curve[1].x1, 100);
    EXPECT_EQ(q.curve[1].x2, 5900);
    EXPECT_EQ(q.curve[1].y2, 100);
}

TEST(GraphGeometry, AMoveEndsOnTheZeroLineButTheTorqueStaysAtTheLastRow) {
    PatarnTable t{};
    Row(t, 1, 0.1, 3000, 2.0);
    Row(t, 2, 0.6, 3000, 0.5);
    Row(t, 3, 0.7, 0, -1.0);
    const GraphDrawing s = Graph_Speed(t, 3, kW, kH);
    EXPECT_EQ(s.curve.back().y2, 1500);
    const GraphDrawing q = Graph_Torque(t, 3, kW, kH);
    const GraphLine& last = q.curve.back();
    // -1 of a peak of 2: 1500 + 0.5 * 1400 = 2200, to the right margin.
    EXPECT_EQ(last.y1, 2200);
    EXPECT_EQ(last.y2, 2200);
    EXPECT_EQ(last.x2, 5900);
    EXPECT_EQ(last.x1, Graph_X(0.6, 0.7, kW));
}

TEST(GraphGeometry, AxesRunAlongTheMargins) {
    PatarnTable t{};
    Row(t, 1, 1, 10, 1);
    const GraphDrawing s = Graph_Speed(t, 1, kW, kH);
    ASSERT_TRUE(s.axes);
    EXPECT_EQ(s.axisX.x1, 100);
    EXPECT_EQ(s.axisX.x2, 5900);
    EXPECT_EQ(s.axisX.y1, 1500);
    EXPECT_EQ(s.axisY.y1, 100);
    EXPECT_EQ(s.axisY.y2, 2900);
}

TEST(GraphGeometry, TheOverMarkEntersThePeak) {
    PatarnTable t{};
    Row(t, 1, 1, 10, -9999);
    Row(t, 2, 2, 10, 9999 / 2.0);
    const GraphDrawing q = Graph_Torque(t, 2, kW, kH);
    EXPECT_EQ(q.curve[0].y2, 2900);
    EXPECT_EQ(q.curve.back().y2, 1500 - 700);
}
