// The rows of a point table (commands/PointRows) under the rules of a typed
// row: precision cut by truncation, the checks on times and intervals, the
// start point, at most 20 rows with the splits at zero speed, the units.
#include <gtest/gtest.h>

#include <string>

#include "calc/mdlCulcurate.h"
#include "commands/PointRows.h"
#include "core/PatarnRows.h"
#include "pattern/PointTable.h"
#include "tests/calc/CalcFixture.h"
#include "units/UnitTable.h"

namespace {

constexpr double kScrewRatio = 0.01 / 6.28;  // the ballscrew's lead per radian: load m/s per rad/s

class PointRowsTest : public CalcTest {
protected:
    void SetUp() override {
        CalcTest::SetUp();
        Build(1);
        Culcurate_All();  // as every document stands once it is shown
    }

    // The table of the text, read without a refusal.
    static PointTable Table(const std::string& text) {
        PointTable table;
        EXPECT_EQ(PointTable_Parse(text, table), "");
        return table;
    }

    PointRefusal Rows(const std::string& text) { return PointTable_Rows(Table(text), rows); }

    // Lines of alternating speeds +100 and -100, a second apart: every row
    // after the first changes sign.
    static std::string Alternating(int count) {
        std::string text = "time,speed\n";
        for (int i = 1; i <= count; ++i) text += std::to_string(i) + (i % 2 ? ",100\n" : ",-100\n");
        return text;
    }

    // Lines of the same speed, a second apart.
    static std::string Steady(int count) {
        std::string text = "time,speed\n";
        for (int i = 1; i <= count; ++i) text += std::to_string(i) + ",500\n";
        return text;
    }

    void ExpectIllegal(const PointRefusal& r, int line, const std::string& why) const {
        EXPECT_EQ(r.text, "Illegal input value.\r\nLine " + std::to_string(line) + ": " + why);
        EXPECT_EQ(r.title, "Operating Pattern");
    }

    PatarnTable rows{};
};

}  // namespace

TEST_F(PointRowsTest, TimePointsBecomeCompleteRowsWithTheirIntervalsAndLoadSpeeds) {
    ASSERT_EQ(Rows("time,speed\n0.1,3000\n0.6,3000\n0.7,0\n").text, "");
    EXPECT_EQ(Patarn_CountRows(rows), 3);
    EXPECT_EQ(rows[4].RowState, 0);
    EXPECT_NEAR(rows[1].DeltaTime, 0.1, 1e-12);
    EXPECT_NEAR(rows[2].DeltaTime, 0.5, 1e-12);
    EXPECT_NEAR(rows[3].DeltaTime, 0.1, 1e-12);
    EXPECT_NEAR(rows[2].Time, 0.6, 1e-12);
    EXPECT_NEAR(rows[3].Time, 0.7, 1e-12);
    EXPECT_EQ(rows[1].Speed, 3000);
    EXPECT_EQ(rows[3].Speed, 0);
    EXPECT_NEAR(rows[1].LoadSpeed, 3000 * 6.28 / 60 * kScrewRatio, 1e-12);
    EXPECT_EQ(rows[3].LoadSpeed, 0);
}

TEST_F(PointRowsTest, IntervalsBecomeRowsWhoseTimesAddUp) {
    ASSERT_EQ(Rows("interval,speed\n0.1,3000\n0.5,3000\n0.1,0\n").text, "");
    EXPECT_EQ(Patarn_CountRows(rows), 3);
    EXPECT_NEAR(rows[1].Time, 0.1, 1e-12);
    EXPECT_NEAR(rows[2].Time, 0.6, 1e-12);
    EXPECT_NEAR(rows[3].Time, 0.7, 1e-12);
    EXPECT_NEAR(rows[2].DeltaTime, 0.5, 1e-12);
}

TEST_F(PointRowsTest, TheDocumentsPatternIsNotTouched) {
    Row(Patarn, 1, 0.2, 1000);
    const PatarnRow before = Patarn[1];
    ASSERT_EQ(Rows("time,speed\n5,5\n").text, "");
    EXPECT_EQ(Patarn[1].DeltaTime, before.DeltaTime);
    EXPECT_EQ(Patarn[1].Speed, before.Speed);
    EXPECT_EQ(Patarn[2].RowState, 0);
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(PointRowsTest, AFirstPointAtTimeZeroAndSpeedZeroIsTheStartPoint) {
    ASSERT_EQ(Rows("time,speed\n0.000,0.0\n0.5,100\n").text, "");
    EXPECT_EQ(Patarn_CountRows(rows), 1);
    EXPECT_NEAR(rows[1].DeltaTime, 0.5, 1e-12);
}

TEST_F(PointRowsTest, TheFirstPointAtTimeZeroWithASpeedIsIllegalAsATypedTimeOfZero) {
    ExpectIllegal(Rows("time,speed\n0,100\n1,0\n"), 2, "the time must be greater than 0 and than the time before it.");
}

TEST_F(PointRowsTest, AStartPointLaterThanTheFirstLineIsIllegal) {
    ExpectIllegal(Rows("time,speed\n1,100\n0,0\n"), 3, "the time must be greater than 0 and than the time before it.");
}

TEST_F(PointRowsTest, ATimeThatDoesNotIncreaseIsIllegal) {
    ExpectIllegal(Rows("1,100\n2,100\n2,0\n"), 3, "the time must be greater than 0 and than the time before it.");
    ExpectIllegal(Rows("1,100\n0.5,0\n"), 2, "the time must be greater than 0 and than the time before it.");
}

TEST_F(PointRowsTest, TimesAreCutToAMillisecondBeforeTheyAreCompared) {
    // 1.0004 is cut to 1.000, as the cell cuts it, and so does not come after 1.
    ExpectIllegal(Rows("1,100\n1.0004,0\n"), 2, "the time must be greater than 0 and than the time before it.");
    ASSERT_EQ(Rows("1.23456,100\n").text, "");
    EXPECT_NEAR(rows[1].Time, 1.234, 1e-12);
}

TEST_F(PointRowsTest, SpeedsAreCutToOneDecimalAsTheCellCutsThem) {
    ASSERT_EQ(Rows("interval,speed\n1,1000.06\n1,-20.99\n").text, "");
    EXPECT_EQ(rows[1].Speed, 1000.0);
    EXPECT_EQ(rows[2].Speed, -20.9);
}

TEST_F(PointRowsTest, AnIntervalOfZeroOrLessIsIllegal) {
    ExpectIllegal(Rows("interval,speed\n0.1,100\n0,0\n"), 3, "the interval must be greater than 0.");
    ExpectIllegal(Rows("interval,speed\n-1,100\n"), 2, "the interval must be greater than 0.");
    ExpectIllegal(Rows("interval,speed\n0.0009,100\n"), 2, "the interval must be greater than 0.");
}

TEST_F(PointRowsTest, ABadNumberIsIllegalAndNamesItsLineAndColumn) {
    ExpectIllegal(Rows("time,speed\n1,100\n2,fast\n"), 3, "the speed is no number.");
    ExpectIllegal(Rows("time,speed\n1.2.3,100\n"), 2, "the time is no number.");
    ExpectIllegal(Rows("interval,speed\n,100\n"), 2, "the interval is no number.");
    ExpectIllegal(Rows("interval,speed\n1,\n"), 2, "the speed is no number.");
}

TEST_F(PointRowsTest, ANumberTooLargeForADoubleIsNoNumber) {
    ExpectIllegal(Rows("time,speed\n1e999,100\n"), 2, "the time is no number.");
    ExpectIllegal(Rows("time,speed\n1,-1e400\n"), 2, "the speed is no number.");
}

TEST_F(PointRowsTest, TwentyRowsAreAccepted) {
    ASSERT_EQ(Rows(Steady(20)).text, "");
    EXPECT_EQ(Patarn_CountRows(rows), 20);
    EXPECT_EQ(rows[21].RowState, 0);
}

TEST_F(PointRowsTest, TwentyRowsAfterTheStartPointAreAccepted) {
    ASSERT_EQ(Rows("time,speed\n0,0\n" + Steady(20).substr(11)).text, "");
    EXPECT_EQ(Patarn_CountRows(rows), 20);
}

TEST_F(PointRowsTest, TooManyRowsAreRefused) {
    const PointRefusal r = Rows(Steady(21));
    EXPECT_EQ(r.text, "The operating pattern holds at most 20 rows; the point table gives 21.");
    EXPECT_EQ(r.title, "Operating Pattern");
    EXPECT_EQ(Rows(Steady(300)).text, "The operating pattern holds at most 20 rows; the point table gives 300.");
}

TEST_F(PointRowsTest, ABadNumberAfterTheTwentiethRowIsStillTold) {
    ExpectIllegal(Rows(Steady(25) + "26,x\n"), 27, "the speed is no number.");
}

TEST_F(PointRowsTest, RowsThatChangeSignCountTheirSplitsAgainstTheTwenty) {
    ASSERT_EQ(Rows(Alternating(10)).text, "");  // 10 rows and 9 splits
    const PointRefusal r = Rows(Alternating(11));  // 11 rows and 10 splits
    EXPECT_EQ(r.text, "The operating pattern holds at most 20 rows; the point table gives 11, and 10 more where the "
                      "speed changes sign within a row.");
    EXPECT_EQ(r.title, "Operating Pattern");
}

TEST_F(PointRowsTest, NineteenRowsWithOneSignChangeFillTheTwenty) {
    std::string text = Steady(18);
    text += "19,-500\n";
    EXPECT_EQ(Rows(text).text, "");
    text += "20,-500\n";
    EXPECT_EQ(Rows(text).text,
              "The operating pattern holds at most 20 rows; the point table gives 20, and 1 more where the speed "
              "changes sign within a row.");
}

TEST_F(PointRowsTest, ASpeedOfZeroBetweenTwoSignsNeedsNoSplit) {
    ASSERT_EQ(Rows(Steady(18) + "19,0\n20,-500\n").text, "");
    EXPECT_EQ(Patarn_CountRows(rows), 20);
}

TEST_F(PointRowsTest, ATableWithoutRowsIsRefused) {
    for (const char* text : {"", "time,speed\n", "time,speed\n0,0\n"}) {
        const PointRefusal r = Rows(text);
        EXPECT_EQ(r.text, "The point table holds no rows.") << text;
        EXPECT_EQ(r.title, "Import Pattern");
    }
}

TEST_F(PointRowsTest, UnitsOtherThanThePickedOnesAreRefused) {
    PointRefusal r = Rows("time (ms),speed (r/min)\n100,100\n");
    EXPECT_EQ(r.text, "The times of the point table are in ms, the picked unit is s: pick ms under Units first, or "
                      "give them in s.");
    EXPECT_EQ(r.title, "Import Pattern");
    r = Rows("interval (s),speed (rad/s)\n1,100\n");
    EXPECT_EQ(r.text, "The speeds of the point table are in rad/s, the picked unit is r/min: pick rad/s under Units "
                      "first, or give them in r/min.");
}

TEST_F(PointRowsTest, ValuesInThePickedUnitsAreTakenInThem) {
    UnitTable[UnitKind::Time].Sel = 0;        // ms
    UnitTable[UnitKind::MotorSpeed].Sel = 2;  // r/s
    ASSERT_EQ(Rows("time (ms),speed (r/s)\n100,10\n250.5,0\n").text, "");
    EXPECT_NEAR(rows[1].DeltaTime, 0.1, 1e-12);
    EXPECT_NEAR(rows[2].DeltaTime, 0.1505, 1e-12);
    EXPECT_NEAR(rows[1].Speed, 600, 1e-9);
}

TEST_F(PointRowsTest, TheDegreeUnitMatchesInUtf8AndInTheCodePage) {
    UnitTable[UnitKind::MotorSpeed].Sel = 3;
    EXPECT_EQ(Rows("interval,speed (\xE2\x80\x9C" "degree/s)\n1,60\n").text, "");
    EXPECT_NEAR(rows[1].Speed, 10, 1e-9);
    EXPECT_EQ(Rows("interval,speed (\x93" "degree/s)\n1,60\n").text, "");
}

TEST_F(PointRowsTest, ALongOrBrokenUnitIsQuotedShortAndInUtf8) {
    const PointRefusal r = Rows("time (\xFF\xFE" "abcdefghijklmnopqrstuvwxyz),speed\n1,1\n");
    EXPECT_EQ(r.text, "The times of the point table are in ??abcdefghijklmn, the picked unit is s: pick "
                      "??abcdefghijklmn under Units first, or give them in s.");
}
