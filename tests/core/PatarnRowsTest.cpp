// The row operations of an operating pattern.
#include "core/PatarnRows.h"

#include "base/RuntimeError.h"
#include "tests/calc/CalcFixture.h"
#include "units/UnitTable.h"

namespace {

class PatternRows : public CalcTest {};

// --- edge cases ----------------------------------------------------------------------

TEST_F(PatternRows, ReversalIsSplitAtZeroSpeed) {
    Row(Patarn, 1, 1, 100);
    Row(Patarn, 2, 2, -100);
    PatternRowCount = 2;
    Patarn_SplitZero(Patarn);
    EXPECT_EQ(Patarn[2].Speed, 0);
    EXPECT_DOUBLE_EQ(Patarn[2].DeltaTime, 1);  // 100 * 2 / |100 - -100|
    EXPECT_EQ(Patarn[2].RowState, 3);
    EXPECT_EQ(Patarn[3].Speed, -100);
    EXPECT_DOUBLE_EQ(Patarn[3].DeltaTime, 1);
    EXPECT_EQ(PatternRowCount, 3);
    EXPECT_EQ(Patarn_CountRows(Patarn), 3);
}

TEST_F(PatternRows, ZeroIsNoSignChange) {
    Row(Patarn, 1, 1, 0);
    Row(Patarn, 2, 2, -100);
    PatternRowCount = 2;
    EXPECT_FALSE(Patarn_SignChange(Patarn, 1));
    Patarn_SplitZero(Patarn);
    EXPECT_EQ(Patarn[2].Speed, -100);
    EXPECT_EQ(PatternRowCount, 2);
}

TEST_F(PatternRows, InsertingIntoAFullTableKeepsRowTwentyInRecordTwentyOne) {
    for (int16_t i = 1; i <= 20; ++i) Row(Patarn, i, 0.1 * i, 10 * i);
    Patarn_InsertRow(Patarn, 5);
    EXPECT_EQ(Patarn[5].RowState, 0);
    EXPECT_EQ(Patarn[6].Speed, 50);
    EXPECT_EQ(Patarn[21].Speed, 200);
    EXPECT_EQ(Patarn[21].RowState, 3);
    EXPECT_EQ(Patarn_CountRows(Patarn), 4);
}

TEST_F(PatternRows, CountStopsAtAHalfFilledRow) {
    Row(Patarn, 1, 1, 100);
    Patarn_SetField(Patarn, 2, 0, 1, 1, FieldDeltaTime);
    Row(Patarn, 3, 1, 100);
    EXPECT_EQ(Patarn_CountRows(Patarn), 1);
}

// --- further outcomes ------------------------------------------------------------------

TEST_F(PatternRows, SetFieldConvertsToBaseUnitsAndMarksTheSide) {
    Patarn_SetField(Patarn, 1, 0, 0, 250, FieldDeltaTime);  // 250 ms
    EXPECT_DOUBLE_EQ(Patarn[1].DeltaTime, 0.25);
    EXPECT_EQ(Patarn[1].RowState, 1);
    Patarn_SetField(Patarn, 1, 5, 2, 50, FieldSpeed);  // 50 r/s
    EXPECT_DOUBLE_EQ(Patarn[1].Speed, 3000);
    EXPECT_EQ(Patarn[1].RowState, 3);
    Patarn_SetField(Patarn, 2, 10, 0, 500, FieldTorque);  // N.mm: no side
    EXPECT_DOUBLE_EQ(Patarn[2].Torque, 0.5);
    EXPECT_EQ(Patarn[2].RowState, 0);
}

TEST_F(PatternRows, MarkIsStoredUnconverted) {
    Patarn_SetField(Patarn, 1, 10, 0, -9999, FieldTorque);
    EXPECT_EQ(Patarn[1].Torque, -9999);
    Patarn_SetField(Patarn, 1, 0, 0, 0, FieldRowState);
    Patarn_SetField(Patarn, 1, 0, 0, -9999, FieldRowState);
    EXPECT_EQ(Patarn[1].RowState, 0);
}

TEST_F(PatternRows, RowStateIsRoundedToEven) {
    Patarn_SetField(Patarn, 1, 0, 0, 2.5, FieldRowState);
    EXPECT_EQ(Patarn[1].RowState, 2);
    Patarn_SetField(Patarn, 1, 0, 0, 8, 9);
    EXPECT_EQ(Patarn[1].RowState, 2);
}

TEST_F(PatternRows, ARowStateOutsideSixteenBitsIsTheFailureOverflow) {
    EXPECT_THROW(Patarn_SetField(Patarn, 1, 0, 0, 40000, FieldRowState), RuntimeError);
    EXPECT_EQ(Patarn[1].RowState, 0);
}

TEST_F(PatternRows, InsertedRowsKeepTheirMotionAndLoseTheirResults) {
    Row(Patarn, 1, 0.5, 100);
    Patarn[1].Time = 0.5;
    Patarn[1].Position = 3;
    Patarn[1].Torque = 4;
    Patarn[1].Regeneration = 5;
    Patarn[1].LoadSpeed = 6;
    Patarn_InsertRow(Patarn, 1);
    const PatarnRow& moved = Patarn[2];
    EXPECT_EQ(moved.DeltaTime, 0.5);
    EXPECT_EQ(moved.Speed, 100);
    EXPECT_EQ(moved.LoadSpeed, 6);
    EXPECT_EQ(moved.RowState, 3);
    EXPECT_EQ(moved.Time, 0);
    EXPECT_EQ(moved.Position, 0);
    EXPECT_EQ(moved.Torque, 0);
    EXPECT_EQ(moved.Regeneration, 0);
}

TEST_F(PatternRows, ClearedRowIsEmpty) {
    Row(Patarn, 3, 1, 100);
    Patarn_ClearRow(Patarn, 3);
    EXPECT_EQ(Patarn[3].DeltaTime, 0);
    EXPECT_EQ(Patarn[3].Speed, 0);
    EXPECT_EQ(Patarn[3].RowState, 0);
}

TEST_F(PatternRows, TimesRunUpToTheFirstRowWithoutTime) {
    Row(Patarn, 1, 0.1, 100);
    Patarn_SetField(Patarn, 2, 0, 1, 0.2, FieldDeltaTime);  // time only still counts
    Patarn_SetField(Patarn, 3, 5, 0, 100, FieldSpeed);      // speed only ends it
    Patarn_SetField(Patarn, 4, 0, 1, 0.4, FieldDeltaTime);
    Patarn_UpdateTimes(Patarn);
    EXPECT_DOUBLE_EQ(Patarn[1].Time, 0.1);
    EXPECT_DOUBLE_EQ(Patarn[2].Time, 0.1 + 0.2);
    EXPECT_EQ(Patarn[3].Time, 0);
    EXPECT_EQ(Patarn[4].Time, 0);
}

TEST_F(PatternRows, LoadSpeedFollowsTheMotorThroughTheRatio) {
    TotalRatio = 0.002;
    LoadMotion = 0;
    Row(Patarn, 1, 0.5, 600);
    Patarn_SetLoadSpeed(Patarn, 1, 0, 0, 0);
    EXPECT_DOUBLE_EQ(Patarn[1].LoadSpeed, 0.002 * (600 / (60 / 6.28)));
}

TEST_F(PatternRows, LoadSpeedByDistanceEndsAStraightRamp) {
    Row(Patarn, 1, 0.5, 600);
    Patarn_SetLoadSpeed(Patarn, 1, 1, 0.1, 0.2);
    EXPECT_DOUBLE_EQ(Patarn[1].LoadSpeed, (2 * 0.2 - 0.1 * 0.5) / 0.5);
    Patarn_SetField(Patarn, 2, 0, 1, 0, FieldDeltaTime);
    Patarn[2].LoadSpeed = 7;
    Patarn_SetLoadSpeed(Patarn, 2, 1, 0.1, 0.2);
    EXPECT_EQ(Patarn[2].LoadSpeed, 7);
}

TEST_F(PatternRows, MotorSpeedFromLoadSpeedIsRoundedToOneDecimal) {
    TotalRatio = 0.01 / 6.28;
    UnitTable[5].Sel = 0;
    Patarn[1].LoadSpeed = 0.1;  // m/s
    Patarn_SetSpeed(Patarn, 1);
    // 0.1 / r rad/s is 0.1 * 6.28 / 0.01 * 60 / 6.28 = 600 r/min, to one decimal.
    EXPECT_DOUBLE_EQ(Patarn[1].Speed, 600);
    EXPECT_EQ(Patarn[1].RowState, 2);
    Patarn[2].LoadSpeed = 0.10001;
    Patarn_SetSpeed(Patarn, 2);
    EXPECT_DOUBLE_EQ(Patarn[2].Speed, 600.1);
}

TEST_F(PatternRows, MotorSpeedWithoutRatioTakesTheLoadSpeedItself) {
    TotalRatio = 0;
    UnitTable[5].Sel = 0;
    Patarn[1].LoadSpeed = 2;  // rad/s
    Patarn_SetSpeed(Patarn, 1);
    EXPECT_DOUBLE_EQ(Patarn[1].Speed, 19.1);  // 2 * 60 / 6.28 = 19.108...
}

TEST_F(PatternRows, RetimeCoversTheTravelAtTheMeanSpeed) {
    Patarn[1].LoadSpeed = 0.2;
    Patarn[1].Position = 0.01;
    Patarn[2].LoadSpeed = 0.2;
    Patarn[2].Position = 0.05;
    Patarn_Retime(Patarn, 3);
    EXPECT_DOUBLE_EQ(Patarn[2].DeltaTime, 2 * (0.05 - 0.01) / (0.2 + 0.2));
    EXPECT_EQ(Patarn[2].RowState & 1, 1);
}

TEST_F(PatternRows, RetimeAtRestTakesThePreviousDuration) {
    Patarn[1].DeltaTime = 0.3;
    Patarn[2].DeltaTime = 0.7;
    Patarn_Retime(Patarn, 3);
    EXPECT_EQ(Patarn[2].DeltaTime, 0.3);
    Patarn_Retime(Patarn, 2);
    EXPECT_EQ(Patarn[1].DeltaTime, 0.3);
}

TEST_F(PatternRows, LastRowHasNoSignChange) {
    Patarn[20].Speed = 100;
    Patarn[21].Speed = -100;
    EXPECT_FALSE(Patarn_SignChange(Patarn, 20));
}

TEST_F(PatternRows, SplitResetsTheStartPoint) {
    Patarn[0].Speed = 5;
    Patarn_SplitZero(Patarn);
    EXPECT_EQ(Patarn[0].Speed, 0);
    EXPECT_EQ(Patarn[0].RowState, 3);
}

TEST_F(PatternRows, OperationsWorkOnTheTrialTableAlone) {
    Row(PatarnTrial, 1, 1, 100);
    Row(PatarnTrial, 2, 2, -100);
    Patarn_SplitZero(PatarnTrial);
    EXPECT_EQ(Patarn_CountRows(PatarnTrial), 3);
    EXPECT_EQ(Patarn_CountRows(Patarn), 0);
}

}  // namespace
