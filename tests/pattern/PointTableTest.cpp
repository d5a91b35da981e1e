// Reading a point table (pattern/PointTable): the header and its units, the
// line ends, the byte-order mark, blanks, quotes, and the lines refused with
// their line numbers.
#include <gtest/gtest.h>

#include <string>

#include "pattern/PointTable.h"

namespace {

PointTable Parsed(const std::string& text) {
    PointTable table;
    const std::string why = PointTable_Parse(text, table);
    EXPECT_EQ(why, "") << text;
    return table;
}

std::string Refusal(const std::string& text) {
    PointTable table;
    return PointTable_Parse(text, table);
}

void ExpectLine(const PointLine& line, int number, const std::string& first, const std::string& speed) {
    EXPECT_EQ(line.line, number);
    EXPECT_EQ(line.first, first);
    EXPECT_EQ(line.speed, speed);
}

}  // namespace

TEST(PointTableTest, AHeaderOfTimeAndSpeedWithUnitsIsReadAndTheValuesFollowIt) {
    const PointTable t = Parsed("time (s),speed (r/min)\n0.000,0.0\n0.100,3000.0\n");
    EXPECT_EQ(t.columns, PointColumns::Time);
    EXPECT_EQ(t.timeUnit, "s");
    EXPECT_EQ(t.speedUnit, "r/min");
    ASSERT_EQ(t.lines.size(), 2u);
    ExpectLine(t.lines[0], 2, "0.000", "0.0");
    ExpectLine(t.lines[1], 3, "0.100", "3000.0");
}

TEST(PointTableTest, AHeaderOfIntervalAndSpeedInAnyCaseWithoutUnits) {
    const PointTable t = Parsed("Interval,SPEED\n0.5,100\n");
    EXPECT_EQ(t.columns, PointColumns::Interval);
    EXPECT_EQ(t.timeUnit, "");
    EXPECT_EQ(t.speedUnit, "");
    ASSERT_EQ(t.lines.size(), 1u);
    ExpectLine(t.lines[0], 2, "0.5", "100");
}

TEST(PointTableTest, WithoutAHeaderTheColumnsAreTimeAndSpeed) {
    const PointTable t = Parsed("0.5,1000\n1.0,0\n");
    EXPECT_EQ(t.columns, PointColumns::Time);
    ASSERT_EQ(t.lines.size(), 2u);
    ExpectLine(t.lines[0], 1, "0.5", "1000");
    ExpectLine(t.lines[1], 2, "1.0", "0");
}

TEST(PointTableTest, WindowsLineEndsAreOneLineEndEach) {
    const PointTable t = Parsed("interval,speed\r\n0.1,3000\r\n0.5,3000\r\n");
    ASSERT_EQ(t.lines.size(), 2u);
    ExpectLine(t.lines[0], 2, "0.1", "3000");
    ExpectLine(t.lines[1], 3, "0.5", "3000");
}

TEST(PointTableTest, OldMacLineEndsAndALastLineWithoutAnEndAreRead) {
    const PointTable t = Parsed("time,speed\r1,100\r2,0");
    ASSERT_EQ(t.lines.size(), 2u);
    ExpectLine(t.lines[0], 2, "1", "100");
    ExpectLine(t.lines[1], 3, "2", "0");
}

TEST(PointTableTest, AByteOrderMarkBeforeTheHeaderIsPassedOver) {
    const PointTable t = Parsed("\xEF\xBB\xBFinterval (s),speed (r/min)\n0.2,50\n");
    EXPECT_EQ(t.columns, PointColumns::Interval);
    EXPECT_EQ(t.timeUnit, "s");
    ASSERT_EQ(t.lines.size(), 1u);
}

TEST(PointTableTest, AByteOrderMarkBeforeAValueIsPassedOver) {
    const PointTable t = Parsed("\xEF\xBB\xBF" "0.2,50\n");
    ASSERT_EQ(t.lines.size(), 1u);
    ExpectLine(t.lines[0], 1, "0.2", "50");
}

TEST(PointTableTest, BlankLinesAreSkippedButCountedAndBlanksAroundFieldsGo) {
    const PointTable t = Parsed("\n  \ntime , speed\n\n\t0.5 ,  -100 \n \t\n");
    ASSERT_EQ(t.lines.size(), 1u);
    ExpectLine(t.lines[0], 5, "0.5", "-100");
}

TEST(PointTableTest, FieldsInDoubleQuotesLoseTheirQuotes) {
    const PointTable t = Parsed("\"time (s)\",\"speed\"\n\"0.5\", \" 20 \"\n");
    EXPECT_EQ(t.timeUnit, "s");
    ASSERT_EQ(t.lines.size(), 1u);
    ExpectLine(t.lines[0], 2, "0.5", "20");
}

TEST(PointTableTest, AnEmptyTextIsATableWithoutLines) {
    EXPECT_TRUE(Parsed("").lines.empty());
    EXPECT_TRUE(Parsed("time,speed\r\n").lines.empty());
}

TEST(PointTableTest, ALineOfOtherThanTwoFieldsIsRefusedWithItsNumber) {
    EXPECT_EQ(Refusal("time,speed\n1,2,3\n"),
              "Line 2 holds 3 fields: a point table has two columns, time,speed or interval,speed.");
    EXPECT_EQ(Refusal("1,100\r\n\r\n2\r\n"),
              "Line 3 holds 1 field: a point table has two columns, time,speed or interval,speed.");
    EXPECT_EQ(Refusal("1;100\n"), "Line 1 holds 1 field: a point table has two columns, time,speed or interval,speed.");
}

TEST(PointTableTest, AHeaderOfOtherNamesIsRefused) {
    const std::string why = "Line 1 does not name the columns time,speed or interval,speed.";
    EXPECT_EQ(Refusal("speed,time\n1,2\n"), why);
    EXPECT_EQ(Refusal("time,position\n1,2\n"), why);
    EXPECT_EQ(Refusal("time (s,speed\n1,2\n"), why);
    EXPECT_EQ(Refusal("time (),speed\n1,2\n"), why);
}

TEST(PointTableTest, AWordOnALaterLineIsAValueForTheRowsToRefuse) {
    const PointTable t = Parsed("time,speed\n1,100\ntime,speed\n");
    ASSERT_EQ(t.lines.size(), 2u);
    ExpectLine(t.lines[1], 3, "time", "speed");
}

TEST(PointTableTest, AFirstLineWithoutAWordIsALineOfValues) {
    const PointTable t = Parsed(",100\n");
    ASSERT_EQ(t.lines.size(), 1u);
    ExpectLine(t.lines[0], 1, "", "100");
}

TEST(PointTableTest, AnExponentIsANumberNotAHeader) {
    const PointTable t = Parsed("1e-1,100\n");
    ASSERT_EQ(t.lines.size(), 1u);
    ExpectLine(t.lines[0], 1, "1e-1", "100");
}

TEST(PointTableTest, ReadingAgainStartsFromAnEmptyTable) {
    PointTable t;
    ASSERT_EQ(PointTable_Parse("interval (ms),speed\n1,2\n", t), "");
    ASSERT_EQ(PointTable_Parse("3,4\n", t), "");
    EXPECT_EQ(t.columns, PointColumns::Time);
    EXPECT_EQ(t.timeUnit, "");
    ASSERT_EQ(t.lines.size(), 1u);
}
