// Writing the pattern as a point table (pattern/PointTableText): the header in
// the picked units, the start point, the leading complete rows in the grid's
// precision, and the form with intervals.
#include <gtest/gtest.h>

#include "core/PatarnRows.h"
#include "core/Tables.h"
#include "pattern/PointTable.h"
#include "pattern/PointTableText.h"
#include "tests/support/TestState.h"
#include "units/UnitTable.h"

namespace {

class PointTableTextTest : public StateTest {
protected:
    // A complete row: DeltaTime in s, Speed in r/min, and Time after the row before.
    static void Row(int16_t row, double dt, double speed) {
        Patarn_SetField(Patarn, row, UnitKind::Time, 1, dt, FieldDeltaTime);
        Patarn_SetField(Patarn, row, UnitKind::MotorSpeed, 0, speed, FieldSpeed);
        Patarn_UpdateTimes(Patarn);
    }
};

}  // namespace

TEST_F(PointTableTextTest, TimesStartAtTheStartPointAndEndEachRow) {
    Row(1, 0.1, 3000);
    Row(2, 0.5, 3000);
    Row(3, 0.1, 0);
    EXPECT_EQ(PointTable_Text(Patarn, PointColumns::Time),
              "time (s),speed (r/min)\n0.000,0.0\n0.100,3000.0\n0.600,3000.0\n0.700,0.0\n");
}

TEST_F(PointTableTextTest, IntervalsAreTheLengthsOfTheRowsWithoutAStartPoint) {
    Row(1, 0.1, 3000);
    Row(2, 0.5, -1500.25);
    EXPECT_EQ(PointTable_Text(Patarn, PointColumns::Interval),
              "interval (s),speed (r/min)\n0.100,3000.0\n0.500,-1500.3\n");
}

TEST_F(PointTableTextTest, ValuesAreInThePickedUnits) {
    UnitTable[UnitKind::Time].Sel = 0;        // ms
    UnitTable[UnitKind::MotorSpeed].Sel = 2;  // r/s
    Row(1, 0.25, 600);
    EXPECT_EQ(PointTable_Text(Patarn, PointColumns::Time), "time (ms),speed (r/s)\n0.000,0.0\n250.000,10.0\n");
}

TEST_F(PointTableTextTest, AUnitOutsideAsciiIsWrittenInUtf8) {
    UnitTable[UnitKind::MotorSpeed].Sel = 3;  // the degree unit, whose name opens with a quotation mark
    Row(1, 1, 1);
    EXPECT_EQ(PointTable_Text(Patarn, PointColumns::Interval),
              "interval (s),speed (\xE2\x80\x9C" "degree/s)\n1.000,6.0\n");
}

TEST_F(PointTableTextTest, OnlyTheLeadingCompleteRowsAreWritten) {
    Row(1, 0.1, 100);
    Patarn_SetField(Patarn, 2, UnitKind::Time, 1, 0.2, FieldDeltaTime);  // time without speed
    Row(3, 0.3, 0);
    EXPECT_EQ(PointTable_Text(Patarn, PointColumns::Interval), "interval (s),speed (r/min)\n0.100,100.0\n");
}

TEST_F(PointTableTextTest, AnEmptyPatternWritesTheHeaderAndTheStartPoint) {
    EXPECT_EQ(PointTable_Text(Patarn, PointColumns::Time), "time (s),speed (r/min)\n0.000,0.0\n");
    EXPECT_EQ(PointTable_Text(Patarn, PointColumns::Interval), "interval (s),speed (r/min)\n");
}

TEST_F(PointTableTextTest, TheOverMarkOfASpeedIsWrittenAsItsNumber) {
    Row(1, 1, -9999);
    EXPECT_EQ(PointTable_Text(Patarn, PointColumns::Interval), "interval (s),speed (r/min)\n1.000,-9999.0\n");
}

TEST_F(PointTableTextTest, WhatIsWrittenReadsBackAsTheSameColumnsAndUnits) {
    Row(1, 0.1, 3000);
    Row(2, 0.2, 0);
    PointTable table;
    ASSERT_EQ(PointTable_Parse(PointTable_Text(Patarn, PointColumns::Interval), table), "");
    EXPECT_EQ(table.columns, PointColumns::Interval);
    EXPECT_EQ(table.timeUnit, "s");
    EXPECT_EQ(table.speedUnit, "r/min");
    ASSERT_EQ(table.lines.size(), 2u);
    EXPECT_EQ(table.lines[1].first, "0.200");
    EXPECT_EQ(table.lines[1].speed, "0.0");
}
