// The trapezoid builder without its window (pattern/Trapezoid): the rows of a move, its checks and its ranges.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "calc/mdlCulcurate.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "core/Templates.h"
#include "core/PatarnRows.h"
#include "pattern/Trapezoid.h"
#include "tests/support/TestState.h"
#include "units/UnitTable.h"

namespace {

class TrapezoidTest : public StateTest {
protected:
    void SetUp() override {
        StateTest::SetUp();
        UnitTable[0].Sel = 1;  // s
        UnitTable[2].Sel = 0;  // mm
        UnitTable[3].Sel = 1;  // degrees
        Template_Fill(1, true);  // motor, reduction gear, horizontal ballscrew, linear load
        ElementCount = MecaTemplateCount[1];
        Culcurate_All();
        LoadMotion = 0;
        Trapezoid_Activate(form);
    }

    // Fills the fields as a user tabs through them, with the accel/decel time or the acceleration.
    bool Build(const char* T, const char* D, const char* given, bool accelTime, int gridRow = 2) {
        form.mebMoveTime = T;
        EXPECT_TRUE(MoveTime_Leave(form));
        form.mebMoveDistance = D;
        EXPECT_TRUE(MoveDistance_Leave(form));
        Option_Pick(form, accelTime);
        (accelTime ? form.mebAccelTime : form.mebAccel) = given;
        return Trapezoid_OK(form, gridRow);
    }

    TrapezoidForm form;
};

TEST_F(TrapezoidTest, HalfTheTimeAsAccelTimeGivesATriangleOfTwoRows) {
    ASSERT_TRUE(Build("1", "100", "0.5", true));
    EXPECT_EQ(Patarn_CountRows(Patarn), 2);
    EXPECT_DOUBLE_EQ(Patarn[1].DeltaTime, 0.5);
    EXPECT_DOUBLE_EQ(Patarn[2].DeltaTime, 0.5);
    EXPECT_NEAR(Patarn[1].LoadSpeed, 0.2, 1e-12);  // 200 mm/s
    EXPECT_EQ(Patarn[2].LoadSpeed, 0);
    EXPECT_EQ(Patarn[1].RowState, 3);
    EXPECT_EQ(Patarn[2].RowState, 3);
    EXPECT_EQ(Patarn[3].RowState, 0);
    EXPECT_EQ(PatternRowCount, 2);
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(TrapezoidTest, ShorterAccelTimeGivesThreeRowsOfATrapezoid) {
    ASSERT_TRUE(Build("1", "100", "0.2", true));
    EXPECT_DOUBLE_EQ(Patarn[1].DeltaTime, 0.2);
    EXPECT_DOUBLE_EQ(Patarn[2].DeltaTime, 0.6);
    EXPECT_DOUBLE_EQ(Patarn[3].DeltaTime, 0.2);
    EXPECT_NEAR(Patarn[1].LoadSpeed, 0.125, 1e-12);  // 125 mm/s
    EXPECT_NEAR(Patarn[2].LoadSpeed, 0.125, 1e-12);
    EXPECT_EQ(Patarn[3].LoadSpeed, 0);
    EXPECT_NEAR(Patarn[3].Time, 1.0, 1e-12);
}

TEST_F(TrapezoidTest, TooShortATimeBecomesTheShortestAfterTheMessage) {
    form.mebMoveTime = "0.0019";
    EXPECT_FALSE(MoveTime_Leave(form));
    EXPECT_EQ(form.mebMoveTime, "0.002");
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Illegal input value.\r\nInput an operating time of 0.002 or longer");
    EXPECT_EQ(msg.Seen()[0].title, "Trapezoidal Pattern");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
}

TEST_F(TrapezoidTest, NegativeDistanceGivesNegativeSpeeds) {
    ASSERT_TRUE(Build("1", "-100", "0.2", true));
    EXPECT_NEAR(Patarn[1].LoadSpeed, -0.125, 1e-12);
    EXPECT_NEAR(Patarn[2].LoadSpeed, -0.125, 1e-12);
}

TEST_F(TrapezoidTest, AccelerationWithANegativeDistanceIsNegatedSoTheAccelTimeStaysPositive) {
    ASSERT_TRUE(Build("1", "-100", "500", false));
    // a = 0.5 m/s2, D = 0.1 m: Ta = (T - sqrt(T^2 - 4 D / a)) / 2 = (1 - sqrt(0.2)) / 2
    const double Ta = (1 - std::sqrt(0.2)) / 2;
    EXPECT_NEAR(Patarn[1].DeltaTime, Ta, 1e-12);
    EXPECT_NEAR(Patarn[2].DeltaTime, 1 - 2 * Ta, 1e-12);
    EXPECT_NEAR(Patarn[1].LoadSpeed, -0.1 / (1 - Ta), 1e-5);  // through the motor speed kept to 0.1 r/min
}

TEST_F(TrapezoidTest, OpeningOnRowFiveOfAFilledPatternOverwritesRowsFiveToSeven) {
    for (int16_t r = 1; r <= 8; ++r) Patarn[r] = {0.1 * r, 0.1, r == 4 ? 0.0 : 100.0, r == 4 ? 0.0 : 0.05, 0, 0, 0, 3};
    ASSERT_TRUE(Trapezoid_MayOpen(6));
    ASSERT_TRUE(Build("1", "100", "0.2", true, 6));
    EXPECT_DOUBLE_EQ(Patarn[5].DeltaTime, 0.2);
    EXPECT_DOUBLE_EQ(Patarn[6].DeltaTime, 0.6);
    EXPECT_DOUBLE_EQ(Patarn[7].DeltaTime, 0.2);
    EXPECT_EQ(Patarn[7].LoadSpeed, 0);
    EXPECT_DOUBLE_EQ(Patarn[8].DeltaTime, 0.1);  // row 8 stays: nothing opened
    EXPECT_DOUBLE_EQ(Patarn[8].Speed, 100);
    EXPECT_DOUBLE_EQ(Patarn[4].DeltaTime, 0.1);
}

TEST_F(TrapezoidTest, OnRowThreeOneRowOpensAndTheNewRowsCoverTheTwoBelow) {
    for (int16_t r = 1; r <= 6; ++r) Patarn[r] = {0, 0.01 * r, 0, 0, 0, 0, 0, 3};
    ASSERT_TRUE(Build("1", "100", "0.2", true, 4));  // record 3
    EXPECT_DOUBLE_EQ(Patarn[3].DeltaTime, 0.2);
    EXPECT_DOUBLE_EQ(Patarn[4].DeltaTime, 0.6);
    EXPECT_DOUBLE_EQ(Patarn[5].DeltaTime, 0.2);
    EXPECT_DOUBLE_EQ(Patarn[6].DeltaTime, 0.05);  // the old row 5, one record down
    EXPECT_DOUBLE_EQ(Patarn[7].DeltaTime, 0.06);
}

TEST_F(TrapezoidTest, OnTheFirstRowThreeRowsOpen) {
    for (int16_t r = 1; r <= 2; ++r) Patarn[r] = {0, 0.01 * r, 0, 0, 0, 0, 0, 3};
    ASSERT_TRUE(Build("1", "100", "0.2", true, 2));
    EXPECT_DOUBLE_EQ(Patarn[4].DeltaTime, 0.01);
    EXPECT_DOUBLE_EQ(Patarn[5].DeltaTime, 0.02);
}

TEST_F(TrapezoidTest, RotatingLoadSolvesWithTheLengthUnitAndPlacesWithTheRotationUnit) {
    LoadMotion = 1;
    Trapezoid_Activate(form);
    EXPECT_EQ(form.lblLength, "Degrees");
    EXPECT_EQ(form.lblRapid, "Degrees/S2");
    ASSERT_TRUE(Build("1", "100", "500", false));
    // Solution through mm: a = 0.5 m/s2, D = 0.1 m.
    const double Ta = (1 - std::sqrt(0.2)) / 2;
    EXPECT_NEAR(Patarn[1].DeltaTime, Ta, 1e-12);
    // Placement through degrees: 100 degrees in rad over T - Ta.
    EXPECT_NEAR(Patarn[1].LoadSpeed, ToS(3, 1, 100) / (1 - Ta), 1e-5);
}

TEST_F(TrapezoidTest, LimitsAndRangeLabelsReadAsTheyStand) {
    form.mebMoveTime = "1";
    ASSERT_TRUE(MoveTime_Leave(form));
    EXPECT_EQ(form.mebMoveTime, "1.000");
    EXPECT_EQ(form.AccelTimeMax, 0.5);
    EXPECT_EQ(form.lblMax, "Accel/decel time: 0.001s.; 0.5s max.");
    form.mebMoveDistance = "100";
    ASSERT_TRUE(MoveDistance_Leave(form));
    EXPECT_EQ(form.AccelMin, 400);
    EXPECT_EQ(form.AccelMax, 100100.1);  // 100 / 0.999 / 0.001, cut to three decimals
    Option_Pick(form, false);
    EXPECT_EQ(form.lblMax, "Acceleration: 400mm/S2 .; 100100.1mm/S2 max.");
}

TEST_F(TrapezoidTest, EmptyTimeClearsTheLimitsAndTheLabel) {
    form.mebMoveTime = "1";
    MoveTime_Leave(form);
    form.mebMoveTime.clear();
    EXPECT_TRUE(MoveTime_Leave(form));
    EXPECT_EQ(form.AccelTimeMax, 0);
    EXPECT_EQ(form.lblMax, "");
}

TEST_F(TrapezoidTest, ExtraDigitsAreCutNotRounded) {
    EXPECT_EQ(Trapezoid_Trim("1.23456"), "1.234");
    EXPECT_EQ(Trapezoid_Trim("1.9999"), "1.999");
    EXPECT_EQ(Trapezoid_Trim("2.5"), "2.500");
    EXPECT_EQ(Trapezoid_Trim("-0.0015"), "-0.001");
}

TEST_F(TrapezoidTest, ADistanceOfZeroIsRefused) {
    form.mebMoveDistance = "0";
    EXPECT_FALSE(MoveDistance_Leave(form));
    EXPECT_EQ(form.mebMoveDistance, "");
    EXPECT_EQ(msg.Seen().at(0).text, "Illegal input value.");
}

TEST_F(TrapezoidTest, AccelerationBelowTheLowerLimitIsRefusedAndOkStops) {
    EXPECT_FALSE(Build("1", "100", "300", false));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Input value is below lower limit.");
    EXPECT_EQ(form.mebAccel, "");
    EXPECT_EQ(form.InputError, 0);  // reset by OK
    EXPECT_EQ(Patarn[1].RowState, 0);
}

TEST_F(TrapezoidTest, AccelTimeAboveHalfTheTimeIsRefused) {
    EXPECT_FALSE(Build("1", "100", "0.6", true));
    EXPECT_EQ(msg.Seen().at(0).text, "Input value is above upper limit.");
    EXPECT_EQ(Patarn[1].RowState, 0);
}

TEST_F(TrapezoidTest, AMissingFieldIsToldAndNoRowChanges) {
    EXPECT_FALSE(Build("1", "100", "", true));
    EXPECT_EQ(msg.Seen().at(0).text, "An item has not been input.");
    EXPECT_EQ(msg.Seen().at(0).title, "Trapezoidal Pattern");
    EXPECT_EQ(Patarn[1].RowState, 0);
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(TrapezoidTest, TheBuilderDoesNotOpenUnlessTheRowAboveEndsAtRest) {
    Patarn[1] = {0.1, 0.1, 100, 0.05, 0, 0, 0, 3};
    EXPECT_FALSE(Trapezoid_MayOpen(3));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Trapezoid pattern cannot be input unless previous speed is 0.");
    EXPECT_EQ(msg.Seen()[0].title, "");
    EXPECT_TRUE(Trapezoid_MayOpen(2));
}

TEST_F(TrapezoidTest, OnlyDigitsSignsPointsCommasAndBackspacePass) {
    for (const char16_t k : std::u16string(u"0123456789-.,\b")) EXPECT_TRUE(Trapezoid_KeyAllowed(k)) << char(k);
    for (const char16_t k : std::u16string(u"aE+ /")) EXPECT_FALSE(Trapezoid_KeyAllowed(k)) << char(k);
}

}  // namespace
