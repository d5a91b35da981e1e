// The commands of the pattern grid without its window: storing an edited cell
// with everything it drives, and deleting a block of rows.
#include <gtest/gtest.h>

#include <string>

#include "base/MsgBox.h"
#include "calc/mdlCulcurate.h"
#include "commands/PatternCommands.h"
#include "pattern/GridText.h"
#include "pattern/PatarnCell.h"
#include "tests/calc/CalcFixture.h"
#include "units/UnitTable.h"

namespace {

constexpr double kScrewRatio = 0.01 / 6.28;  // default lead of a ballscrew per radian

class PatternCommandsTest : public CalcTest {
protected:
    // The text typed into a cell, through validation and then the after-edit
    // step, as the grid runs them. The cell above is what the grid shows.
    void Type(int gridRow, int col, const std::string& text) {
        const std::string above = gridRow > 2 ? Patarn_CellTexts(Patarn, LoadMotion)[gridRow - 2][col] : "";
        const CellCheck check = Patarn_Validate(gridRow, col, text, above, escape);
        ASSERT_FALSE(check.cancel) << "row " << gridRow << " col " << col << " text " << text;
        ASSERT_EQ(Patarn_AfterEdit(gridRow, col, check.text, escape), PatternEdit::Stored);
    }

    // A record whose eight fields all differ from those of every other record.
    static PatarnRow Distinct(int r, int16_t state = 3) {
        return {r * 1.0, r * 0.1, r * 100.0, r * 0.01, r * 0.001, r * 0.5, r * 0.25, state};
    }

    static void ExpectRow(const PatarnRow& row, const PatarnRow& want, const char* what) {
        EXPECT_EQ(row.Time, want.Time) << what;
        EXPECT_EQ(row.DeltaTime, want.DeltaTime) << what;
        EXPECT_EQ(row.Speed, want.Speed) << what;
        EXPECT_EQ(row.LoadSpeed, want.LoadSpeed) << what;
        EXPECT_EQ(row.Position, want.Position) << what;
        EXPECT_EQ(row.Torque, want.Torque) << what;
        EXPECT_EQ(row.Regeneration, want.Regeneration) << what;
        EXPECT_EQ(row.RowState, want.RowState) << what;
    }

    static void ExpectTable(const PatarnTable& want) {
        for (int r = 0; r < kPatarnRecords; ++r) ExpectRow(Patarn[r], want[r], ("record " + std::to_string(r)).c_str());
    }

    // Records 1..n complete, each with distinct fields and a positive speed.
    static void Fill(int n) {
        for (int r = 1; r <= n; ++r) Patarn[r] = Distinct(r);
    }

    // The one message shown: a refusal of the pattern grid.
    void ExpectRefusal(const std::string& text) const {
        ASSERT_EQ(msg.Seen().size(), 1u);
        EXPECT_EQ(msg.Seen()[0].text, text);
        EXPECT_EQ(msg.Seen()[0].title, "Operating Pattern");
        EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
    }

    void ExpectNoRefusal() const {
        for (const MsgRequest& m : msg.Seen()) EXPECT_NE(m.text, "Some data cannot be deleted.");
    }

    int16_t escape = 0;
};

// --- after edit -------------------------------------------------------------------------

TEST_F(PatternCommandsTest, AfterEditWithAnEmptyTextStoresNothing) {
    Place({11});
    Fill(2);
    PatternRowCount = 2;
    const PatarnTable before = Patarn;
    EXPECT_EQ(Patarn_AfterEdit(2, 3, "", escape), PatternEdit::Skipped);
    ExpectTable(before);
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_EQ(PatternRowCount, 2);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(PatternCommandsTest, AfterEditWithAnEmptyTextLeavesAPendingEscapePending) {
    escape = 1;
    EXPECT_EQ(Patarn_AfterEdit(2, 3, "", escape), PatternEdit::Skipped);
    EXPECT_EQ(escape, 1);
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(PatternCommandsTest, AfterEditClearsAPendingEscapeAndStoresNothing) {
    Place({11});
    const PatarnTable before = Patarn;
    escape = 1;
    EXPECT_EQ(Patarn_AfterEdit(2, 3, "100.0", escape), PatternEdit::Skipped);
    EXPECT_EQ(escape, 0);
    ExpectTable(before);
    EXPECT_EQ(DirtyFlag, 0);
    // The next edit is stored again.
    EXPECT_EQ(Patarn_AfterEdit(2, 3, "100.0", escape), PatternEdit::Stored);
    EXPECT_DOUBLE_EQ(Patarn[1].Speed, 100);
}

TEST_F(PatternCommandsTest, AfterEditRefusesATextThatIsNoNumberWithTheMessageAndStoresNothing) {
    Place({11});
    Fill(2);
    PatternRowCount = 2;
    const PatarnTable before = Patarn;
    for (int col = 1; col <= 5; ++col)
        for (const std::string text : {"1-2", "-", ".", "1,5", "--3"}) {
            msg.Clear();
            SCOPED_TRACE("column " + std::to_string(col) + ", text " + text);
            EXPECT_EQ(Patarn_AfterEdit(3, col, text, escape), PatternEdit::Refused);
            ExpectRefusal("Illegal input value.");
        }
    ExpectTable(before);
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_EQ(PatternRowCount, 2);
}

TEST_F(PatternCommandsTest, AfterEditWithoutACellToStoreTakesAnyTextAndRecalculates) {
    Place({11});
    Row(Patarn, 1, 0.5, 1000);
    PatternRowCount = 0;
    // What the current cell shows after a delete may be no number at all.
    EXPECT_EQ(Patarn_AfterEdit(0, 0, "OVER", escape), PatternEdit::Stored);
    EXPECT_EQ(PatternRowCount, 1);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(PatternCommandsTest, AnEscapePendingWinsOverAnIllegalText) {
    escape = 1;
    EXPECT_EQ(Patarn_AfterEdit(2, 3, "1-2", escape), PatternEdit::Skipped);
    EXPECT_EQ(escape, 0);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(PatternCommandsTest, AfterEditOfATimeStoresTimeAndIntervalThroughThePickedUnit) {
    Place({11});
    UnitTable[0].Sel = 0;  // ms
    PatternRowCount = 7;   // stale: recounted by the edit
    EXPECT_EQ(Patarn_AfterEdit(2, 1, "1500.000", escape), PatternEdit::Stored);
    EXPECT_DOUBLE_EQ(Patarn[1].Time, 1.5);
    EXPECT_DOUBLE_EQ(Patarn[1].DeltaTime, 1.5);
    EXPECT_EQ(Patarn[1].RowState, 1);
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_EQ(PatternRowCount, 0);  // time but no speed yet

    EXPECT_EQ(Patarn_AfterEdit(2, 3, "3000.0", escape), PatternEdit::Stored);
    EXPECT_EQ(Patarn[1].RowState, 3);
    EXPECT_EQ(PatternRowCount, 1);

    EXPECT_EQ(Patarn_AfterEdit(3, 1, "2500.000", escape), PatternEdit::Stored);
    EXPECT_DOUBLE_EQ(Patarn[2].Time, 2.5);
    EXPECT_DOUBLE_EQ(Patarn[2].DeltaTime, 1.0);  // minus the time of the row above
    EXPECT_EQ(Patarn[2].RowState, 1);
    EXPECT_EQ(PatternRowCount, 1);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(PatternCommandsTest, AfterEditOfAnIntervalStoresDeltaTime) {
    Place({11});
    UnitTable[0].Sel = 2;  // min
    EXPECT_EQ(Patarn_AfterEdit(2, 2, "0.500", escape), PatternEdit::Stored);
    EXPECT_DOUBLE_EQ(Patarn[1].DeltaTime, 30);
    EXPECT_DOUBLE_EQ(Patarn[1].Time, 30);  // rebuilt by the recalculation
    EXPECT_EQ(Patarn[1].RowState, 1);
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(PatternCommandsTest, AfterEditOfASpeedFillsTheLoadSpeed) {
    Place({11});
    TotalRatio = 0;  // stale until the load inertia is worked out
    EXPECT_EQ(Patarn_AfterEdit(2, 3, "3000.0", escape), PatternEdit::Stored);
    EXPECT_DOUBLE_EQ(Patarn[1].Speed, 3000);
    EXPECT_EQ(Patarn[1].RowState, 2);
    EXPECT_DOUBLE_EQ(TotalRatio, kScrewRatio);
    EXPECT_DOUBLE_EQ(Patarn[1].LoadSpeed, kScrewRatio * FromS(5, 1, 3000));
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_EQ(PatternRowCount, 0);
}

TEST_F(PatternCommandsTest, AfterEditOfALoadSpeedSetsTheMotorSpeedToOneDecimal) {
    Place({1});
    P(1, 0) = 0.3;  // reducer
    Culcurate_All();
    ASSERT_EQ(LoadMotion, 1);
    EXPECT_EQ(Patarn_AfterEdit(2, 4, "10.00", escape), PatternEdit::Stored);  // rad/s at the load
    // 10 / 0.3 rad/s at the motor is 318.47... r/min, kept as 318.5.
    EXPECT_NEAR(Patarn[1].Speed, 318.5, 1e-9);
    EXPECT_EQ(Patarn[1].RowState, 2);
    // The recalculation derives the load speed back from that motor speed.
    EXPECT_DOUBLE_EQ(Patarn[1].LoadSpeed, 0.3 * FromS(5, 1, 318.5));
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(PatternCommandsTest, AfterEditOfALinearLoadSpeedGoesThroughThePickedUnit) {
    Place({11});
    Culcurate_All();
    ASSERT_EQ(LoadMotion, 0);
    UnitTable[4].Sel = 3;  // m/min
    EXPECT_EQ(Patarn_AfterEdit(2, 4, "3.00", escape), PatternEdit::Stored);
    // 0.05 m/s over 10 mm per turn is 300 r/min.
    EXPECT_NEAR(Patarn[1].Speed, 300, 1e-9);
    EXPECT_NEAR(Patarn[1].LoadSpeed, 0.05, 1e-12);
}

TEST_F(PatternCommandsTest, AfterEditOfAPositionBehindASpeedRetimesTheRow) {
    Place({11});
    ASSERT_EQ(Patarn_AfterEdit(2, 2, "1.000", escape), PatternEdit::Stored);
    ASSERT_EQ(Patarn_AfterEdit(2, 3, "3000.0", escape), PatternEdit::Stored);
    const double v = Patarn[1].LoadSpeed;
    ASSERT_GT(v, 0);
    EXPECT_EQ(Patarn_AfterEdit(2, 5, "10.00", escape), PatternEdit::Stored);  // mm
    // From rest to v over 10 mm.
    EXPECT_DOUBLE_EQ(Patarn[1].DeltaTime, 2 * 0.01 / v);
    EXPECT_DOUBLE_EQ(Patarn[1].Speed, 3000);
    EXPECT_NEAR(Patarn[1].Position, 0.01, 1e-12);
}

TEST_F(PatternCommandsTest, AfterEditOfAPositionBehindATimeSetsTheSpeed) {
    Place({11});
    ASSERT_EQ(Patarn_AfterEdit(2, 2, "1.000", escape), PatternEdit::Stored);
    ASSERT_EQ(Patarn[1].RowState, 1);
    EXPECT_EQ(Patarn_AfterEdit(2, 5, "10.00", escape), PatternEdit::Stored);  // mm in 1 s from rest
    // End speed 0.02 m/s, which is 120 r/min over 10 mm per turn.
    EXPECT_NEAR(Patarn[1].Speed, 120, 1e-9);
    EXPECT_NEAR(Patarn[1].LoadSpeed, 0.02, 1e-12);
    EXPECT_EQ(Patarn[1].RowState, 3);
    EXPECT_DOUBLE_EQ(Patarn[1].DeltaTime, 1);
    EXPECT_EQ(PatternRowCount, 1);
}

TEST_F(PatternCommandsTest, AfterEditOfRowZeroOrColumnZeroOnlyRecalculates) {
    Place({11});
    Row(Patarn, 1, 0.5, 1000);
    Row(Patarn, 2, 0.5, 0);
    PatternRowCount = 0;
    EXPECT_EQ(Patarn_AfterEdit(0, 0, "0.500", escape), PatternEdit::Stored);
    EXPECT_EQ(PatternRowCount, 2);
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_DOUBLE_EQ(Patarn[1].Speed, 1000);
    EXPECT_DOUBLE_EQ(Patarn[1].DeltaTime, 0.5);
    EXPECT_DOUBLE_EQ(Patarn[2].Time, 1.0);
    EXPECT_DOUBLE_EQ(Patarn[1].LoadSpeed, kScrewRatio * FromS(5, 1, 1000));

    // Column 0 of a pattern row stores nothing either.
    EXPECT_EQ(Patarn_AfterEdit(3, 0, "7", escape), PatternEdit::Stored);
    EXPECT_DOUBLE_EQ(Patarn[2].Speed, 0);
    EXPECT_DOUBLE_EQ(Patarn[2].DeltaTime, 0.5);
    EXPECT_EQ(Patarn[3].RowState, 0);
}

TEST_F(PatternCommandsTest, AfterEditSplitsAReversalTypedAcrossRowsAtZero) {
    Place({11});
    Type(2, 2, "1");
    Type(2, 3, "100");
    Type(3, 2, "2");
    ASSERT_EQ(PatternRowCount, 1);
    Type(3, 3, "-100");
    // 100 r/min to -100 r/min over 2 s passes zero after 1 s.
    EXPECT_DOUBLE_EQ(Patarn[2].Speed, 0);
    EXPECT_DOUBLE_EQ(Patarn[2].DeltaTime, 1);
    EXPECT_EQ(Patarn[2].RowState, 3);
    EXPECT_DOUBLE_EQ(Patarn[3].Speed, -100);
    EXPECT_DOUBLE_EQ(Patarn[3].DeltaTime, 1);
    EXPECT_EQ(Patarn[3].RowState, 3);
    EXPECT_DOUBLE_EQ(Patarn[3].Time, 3);
    EXPECT_DOUBLE_EQ(Patarn[3].LoadSpeed, kScrewRatio * FromS(5, 1, -100));
    EXPECT_EQ(PatternRowCount, 3);
    EXPECT_EQ(Patarn[4].RowState, 0);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(PatternCommandsTest, AfterEditDoesNotSplitWhenTheSpeedOnlyReachesZero) {
    Place({11});
    Type(2, 2, "1");
    Type(2, 3, "0");
    Type(3, 2, "2");
    Type(3, 3, "-100");
    EXPECT_DOUBLE_EQ(Patarn[2].Speed, -100);
    EXPECT_DOUBLE_EQ(Patarn[2].DeltaTime, 2);
    EXPECT_EQ(Patarn[3].RowState, 0);
    EXPECT_EQ(PatternRowCount, 2);
}

TEST_F(PatternCommandsTest, TypedValuesAreShownCutToTheColumnPrecision) {
    Place({11});
    Culcurate_All();
    ASSERT_EQ(LoadMotion, 0);
    Type(2, 1, "1.23456");
    Type(2, 3, "1000.06");
    Type(3, 2, "1");
    Type(3, 4, "12.345");
    const PatarnTexts t = Patarn_CellTexts(Patarn, LoadMotion);
    EXPECT_EQ(t[1][1], "1.234");
    EXPECT_EQ(t[1][3], "1000.0");
    EXPECT_EQ(t[2][4], "12.30");
    EXPECT_DOUBLE_EQ(Patarn[1].Time, 1.234);
    EXPECT_DOUBLE_EQ(Patarn[1].Speed, 1000);
    EXPECT_NEAR(Patarn[2].Speed, 73.8, 1e-9);  // 12.3 mm/s over 10 mm per turn
    EXPECT_TRUE(msg.Seen().empty());
}

// --- delete rows --------------------------------------------------------------------------

TEST_F(PatternCommandsTest, DeleteAboveTheFirstRowDoesNothing) {
    Fill(3);
    PatternRowCount = 3;
    const PatarnTable before = Patarn;
    EXPECT_FALSE(Patarn_DeleteRows(1, 3));
    EXPECT_FALSE(Patarn_DeleteRows(0, 0));
    EXPECT_FALSE(Patarn_DeleteRows(3, 1));
    ExpectTable(before);
    EXPECT_EQ(PatternRowCount, 3);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(PatternCommandsTest, DeleteBetweenAPositiveAndANegativeSpeedIsRefused) {
    Row(Patarn, 1, 1, 100);
    Row(Patarn, 2, 1, 50);
    Row(Patarn, 3, 1, -100);
    Row(Patarn, 4, 1, -50);
    PatternRowCount = 4;
    DirtyFlag = 0;
    const PatarnTable before = Patarn;
    EXPECT_FALSE(Patarn_DeleteRows(3, 3));  // record 2, between 100 and -100
    ExpectRefusal("Some data cannot be deleted.");
    ExpectTable(before);
    EXPECT_EQ(PatternRowCount, 4);
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(PatternCommandsTest, DeleteOfABlockBetweenANegativeAndAPositiveSpeedIsRefused) {
    Row(Patarn, 1, 1, -100);
    Row(Patarn, 2, 1, -50);
    Row(Patarn, 3, 1, 50);
    Row(Patarn, 4, 1, 100);
    Row(Patarn, 5, 1, 50);
    PatternRowCount = 5;
    const PatarnTable before = Patarn;
    EXPECT_FALSE(Patarn_DeleteRows(3, 5));  // records 2 to 4, between -100 and 50
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Some data cannot be deleted.");
    ExpectTable(before);
    EXPECT_EQ(PatternRowCount, 5);
}

TEST_F(PatternCommandsTest, DeleteNextToAZeroSpeedIsAllowed) {
    Row(Patarn, 1, 1, 100);
    Row(Patarn, 2, 1, 0);
    Row(Patarn, 3, 1, 0);
    Row(Patarn, 4, 1, -100);
    PatternRowCount = 4;
    EXPECT_TRUE(Patarn_DeleteRows(3, 3));  // between 100 and 0
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(PatternRowCount, 3);
}

TEST_F(PatternCommandsTest, DeleteOfABlockReachingRecordTwentyIsNeverRefused) {
    Fill(20);
    // A row pushed out of sight by an insert, reversing the speed.
    Patarn[21] = Distinct(21);
    Patarn[21].Speed = -100;
    PatternRowCount = 20;
    const PatarnRow outOfSight = Patarn[21];
    EXPECT_TRUE(Patarn_DeleteRows(20, 21));  // records 19 and 20, between +1800 and -100
    ExpectNoRefusal();
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(PatternRowCount, 18);
    ExpectRow(Patarn[18], Distinct(18), "record 18");
    ExpectRow(Patarn[19], PatarnRow{}, "record 19");
    ExpectRow(Patarn[20], PatarnRow{}, "record 20");
    ExpectRow(Patarn[21], outOfSight, "record 21");

    // The last row alone, and a longer block to the end, likewise.
    Fill(20);
    Patarn[21].Speed = -100;
    EXPECT_TRUE(Patarn_DeleteRows(21, 21));
    Fill(20);
    EXPECT_TRUE(Patarn_DeleteRows(8, 21));
    ExpectNoRefusal();
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(PatternCommandsTest, DeleteOfABlockStartingAtTheFirstRowIsNeverRefused) {
    // Even with a stray speed in the start record, opposite to the row after the block.
    Patarn[0].Speed = 100;
    Row(Patarn, 1, 1, 100);
    Row(Patarn, 2, 1, -100);
    Row(Patarn, 3, 1, -50);
    PatternRowCount = 3;
    const PatarnRow second = Patarn[2];
    EXPECT_TRUE(Patarn_DeleteRows(2, 2));
    ExpectNoRefusal();
    EXPECT_TRUE(msg.Seen().empty());
    ExpectRow(Patarn[1], second, "record 1");
    EXPECT_EQ(PatternRowCount, 2);

    Patarn[0].Speed = -100;
    Row(Patarn, 3, 1, 100);
    EXPECT_TRUE(Patarn_DeleteRows(2, 3));
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(PatternCommandsTest, DeleteOfTheWholeTableIsNeverRefused) {
    for (int r = 1; r <= 20; ++r) Row(Patarn, static_cast<int16_t>(r), 1, r % 2 == 0 ? -100 : 100);
    PatternRowCount = 20;
    EXPECT_TRUE(Patarn_DeleteRows(2, 21));
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(PatternRowCount, 0);
    for (int r = 1; r <= 20; ++r) ExpectRow(Patarn[r], PatarnRow{}, ("record " + std::to_string(r)).c_str());
}

TEST_F(PatternCommandsTest, DeleteMovesLaterRowsUpAndZeroesTheLastOnes) {
    Fill(20);
    Patarn[5].RowState = 1;  // an incomplete row inside the block
    Patarn[21] = Distinct(21);
    PatternRowCount = 4;
    const PatarnTable before = Patarn;
    EXPECT_TRUE(Patarn_DeleteRows(5, 7));  // records 4 to 6
    EXPECT_TRUE(msg.Seen().empty());
    // Two of the three rows were complete.
    EXPECT_EQ(PatternRowCount, 2);
    for (int r = 0; r <= 3; ++r) ExpectRow(Patarn[r], before[r], ("record " + std::to_string(r)).c_str());
    // Records 7 to 20 move up by three with every field.
    for (int r = 4; r <= 17; ++r) ExpectRow(Patarn[r], before[r + 3], ("record " + std::to_string(r)).c_str());
    for (int r = 18; r <= 20; ++r) ExpectRow(Patarn[r], PatarnRow{}, ("record " + std::to_string(r)).c_str());
    ExpectRow(Patarn[21], before[21], "record 21");
}

TEST_F(PatternCommandsTest, DeleteTakesTheBlockFromItsLowerToItsHigherRow) {
    Fill(20);
    PatternRowCount = 20;
    const PatarnTable before = Patarn;
    EXPECT_TRUE(Patarn_DeleteRows(5, 7));
    const PatarnTable forward = Patarn;
    ASSERT_EQ(PatternRowCount, 17);
    Patarn = before;
    PatternRowCount = 20;
    EXPECT_TRUE(Patarn_DeleteRows(7, 5));  // a selection made upward
    ExpectTable(forward);
    EXPECT_EQ(PatternRowCount, 17);
}

TEST_F(PatternCommandsTest, DeleteNeverLowersTheRowCountBelowZero) {
    Fill(5);
    PatternRowCount = 1;
    EXPECT_TRUE(Patarn_DeleteRows(2, 4));  // three complete rows
    EXPECT_EQ(PatternRowCount, 0);
    ExpectRow(Patarn[1], Distinct(4), "record 1");
    ExpectRow(Patarn[2], Distinct(5), "record 2");
    ExpectRow(Patarn[3], PatarnRow{}, "record 3");
}

TEST_F(PatternCommandsTest, DeleteOfEmptyRowsKeepsTheRowCount) {
    Fill(3);
    PatternRowCount = 3;
    EXPECT_TRUE(Patarn_DeleteRows(10, 12));
    EXPECT_EQ(PatternRowCount, 3);
    ExpectRow(Patarn[3], Distinct(3), "record 3");
}

TEST_F(PatternCommandsTest, DeleteFollowedByTheRecalculationRecountsTheRows) {
    Place({11});
    Row(Patarn, 1, 1, 100);
    Patarn_SetField(Patarn, 2, 0, 1, 1, FieldDeltaTime);  // time only
    Row(Patarn, 3, 1, 200);
    Culcurate_All();
    PatternRowCount = Patarn_CountRows(Patarn);
    ASSERT_EQ(PatternRowCount, 1);
    DirtyFlag = 0;
    ASSERT_TRUE(Patarn_DeleteRows(3, 3));
    EXPECT_EQ(PatternRowCount, 1);  // the row deleted was not complete
    // What the window runs next: the after-edit step on row 0, column 0.
    EXPECT_EQ(Patarn_AfterEdit(0, 0, "1.000", escape), PatternEdit::Stored);
    EXPECT_EQ(PatternRowCount, 2);
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_DOUBLE_EQ(Patarn[2].Speed, 200);
    EXPECT_DOUBLE_EQ(Patarn[2].Time, 2);
}

}  // namespace
