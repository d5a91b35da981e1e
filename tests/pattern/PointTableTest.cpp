// Reading a point table (pattern/PointTable): the header and its units, the
// line ends, the byte-order mark, blanks, quotes, and the lines refused with
// their line numbers.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "pattern/PointTable.h"

namespace {

struct Want {
    int line;
    std::string first, speed;
};

// The text read without a refusal, holding exactly the lines of values wanted.
PointTable Lines(const std::string& text, const std::vector<Want>& want) {
    PointTable table;
    EXPECT_EQ(PointTable_Parse(text, table), "") << text;
    EXPECT_EQ(table.lines.size(), want.size()) << text;
    for (std::size_t i = 0; i < std::min(want.size(), table.lines.size()); ++i) {
        EXPECT_EQ(table.lines[i].line, want[i].line) << text;
        EXPECT_EQ(table.lines[i].first, want[i].first) << text;
        EXPECT_EQ(table.lines[i].speed, want[i].speed) << text;
    }
    return table;
}

std::string Refusal(const std::string& text) {
    PointTable table;
    return PointTable_Parse(text, table);
}

}  // namespace

TEST(PointTableTest, AHeaderOfTimeAndSpeedWithUnitsIsReadAndTheValuesFollowIt) {
    const PointTable t =
        Lines("time (s),speed (r/min)\n0.000,0.0\n0.100,3000.0\n", {{2, "0.000", "0.0"}, {3, "0.100", "3000.0"}});
    EXPECT_EQ(t.columns, PointColumns::Time);
    EXPECT_EQ(t.timeUnit, "s");
    EXPECT_EQ(t.speedUnit, "r/min");
}

TEST(PointTableTest, AHeaderOfIntervalAndSpeedInAnyCaseWithoutUnits) {
    const PointTable t = Lines("Interval,SPEED\n0.5,100\n", {{2, "0.5", "100"}});
    EXPECT_EQ(t.columns, PointColumns::Interval);
    EXPECT_EQ(t.timeUnit, "");
    EXPECT_EQ(t.speedUnit, "");
}

TEST(PointTableTest, WithoutAHeaderTheColumnsAreTimeAndSpeed) {
    EXPECT_EQ(Lines("0.5,1000\n1.0,0\n", {{1, "0.5", "1000"}, {2, "1.0", "0"}}).columns, PointColumns::Time);
}

TEST(PointTableTest, WindowsLineEndsAreOneLineEndEach) {
    Lines("interval,speed\r\n0.1,3000\r\n0.5,3000\r\n", {{2, "0.1", "3000"}, {3, "0.5", "3000"}});
}

TEST(PointTableTest, OldMacLineEndsAndALastLineWithoutAnEndAreRead) {
    Lines("time,speed\r1,100\r2,0", {{2, "1", "100"}, {3, "2", "0"}});
}

TEST(PointTableTest, AByteOrderMarkBeforeTheHeaderIsPassedOver) {
    const PointTable t = Lines("\xEF\xBB\xBFinterval (s),speed (r/min)\n0.2,50\n", {{2, "0.2", "50"}});
    EXPECT_EQ(t.columns, PointColumns::Interval);
    EXPECT_EQ(t.timeUnit, "s");
}

TEST(PointTableTest, AByteOrderMarkBeforeAValueIsPassedOver) {
    Lines("\xEF\xBB\xBF" "0.2,50\n", {{1, "0.2", "50"}});
}

TEST(PointTableTest, BlankLinesAreSkippedButCountedAndBlanksAroundFieldsGo) {
    Lines("\n  \ntime , speed\n\n\t0.5 ,  -100 \n \t\n", {{5, "0.5", "-100"}});
}

TEST(PointTableTest, FieldsInDoubleQuotesLoseTheirQuotes) {
    EXPECT_EQ(Lines("\"time (s)\",\"speed\"\n\"0.5\", \" 20 \"\n", {{2, "0.5", "20"}}).timeUnit, "s");
}

TEST(PointTableTest, AnEmptyTextIsATableWithoutLines) {
    Lines("", {});
    Lines("time,speed\r\n", {});
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
    Lines("time,speed\n1,100\ntime,speed\n", {{2, "1", "100"}, {3, "time", "speed"}});
}

TEST(PointTableTest, AFirstLineWithoutAWordIsALineOfValues) {
    Lines(",100\n", {{1, "", "100"}});
}

TEST(PointTableTest, AnExponentIsANumberNotAHeader) {
    Lines("1e-1,100\n", {{1, "1e-1", "100"}});
}

TEST(PointTableTest, ReadingAgainStartsFromAnEmptyTable) {
    PointTable t;
    ASSERT_EQ(PointTable_Parse("interval (ms),speed\n1,2\n", t), "");
    ASSERT_EQ(PointTable_Parse("3,4\n", t), "");
    EXPECT_EQ(t.columns, PointColumns::Time);
    EXPECT_EQ(t.timeUnit, "");
    ASSERT_EQ(t.lines.size(), 1u);
}
