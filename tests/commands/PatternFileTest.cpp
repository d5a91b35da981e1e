// Importing and exporting the pattern as a point table file (commands/
// PatternFile): a sign change inside an interval, Windows line ends, a
// byte-order mark, every refusal leaving the document as it was, files that
// cannot be read or written, and the way back through an export.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "base/MsgBox.h"
#include "calc/mdlCulcurate.h"
#include "commands/PatternCommands.h"
#include "commands/PatternFile.h"
#include "core/PatarnRows.h"
#include "tests/calc/CalcFixture.h"
#include "units/UnitTable.h"

namespace {

class PatternFileTest : public CalcTest {
protected:
    void SetUp() override {
        CalcTest::SetUp();
        BuildSizedBallscrew();
        Patarn_Recalculate();
        DirtyFlag = 0;
    }

    // Imports the text through a file of its own.
    bool Import(const std::string& text) {
        const std::string path = appDir.File("points.csv");
        WriteFile(path, text);
        return Pattern_Import(path);
    }

    static void ExpectRow(int16_t r, double dt, double speed) {
        EXPECT_NEAR(Patarn[r].DeltaTime, dt, 1e-12) << "row " << r;
        EXPECT_EQ(Patarn[r].Speed, speed) << "row " << r;
        EXPECT_EQ(Patarn[r].RowState, 3) << "row " << r;
    }

    // The document as it stands: its rows, their count, its changed mark and its sizing values.
    struct Snapshot {
        PatarnTable rows;
        int16_t count, dirty;
        decltype(ResultValues) results;
    };
    static Snapshot Take() { return {Patarn, PatternRowCount, DirtyFlag, ResultValues}; }

    static void ExpectUntouched(const Snapshot& s) {
        for (int r = 0; r < kPatarnRecords; ++r) {
            EXPECT_EQ(Patarn[r].Time, s.rows[r].Time) << r;
            EXPECT_EQ(Patarn[r].DeltaTime, s.rows[r].DeltaTime) << r;
            EXPECT_EQ(Patarn[r].Speed, s.rows[r].Speed) << r;
            EXPECT_EQ(Patarn[r].LoadSpeed, s.rows[r].LoadSpeed) << r;
            EXPECT_EQ(Patarn[r].Position, s.rows[r].Position) << r;
            EXPECT_EQ(Patarn[r].Torque, s.rows[r].Torque) << r;
            EXPECT_EQ(Patarn[r].Regeneration, s.rows[r].Regeneration) << r;
            EXPECT_EQ(Patarn[r].RowState, s.rows[r].RowState) << r;
        }
        EXPECT_EQ(PatternRowCount, s.count);
        EXPECT_EQ(DirtyFlag, s.dirty);
        EXPECT_EQ(ResultValues, s.results);
    }

    // The text is refused with the one message, and the document stays as it was.
    void ExpectRefused(const std::string& text, const std::string& message, const std::string& title) {
        msg.Clear();
        const Snapshot before = Take();
        EXPECT_FALSE(Import(text));
        ExpectOneMessage(message, title);
        ExpectUntouched(before);
    }

    void ExpectOneMessage(const std::string& text, const std::string& title) const {
        ASSERT_EQ(msg.Seen().size(), 1u);
        EXPECT_EQ(msg.Seen()[0].text, text);
        EXPECT_EQ(msg.Seen()[0].title, title);
        EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
    }
};

}  // namespace

TEST_F(PatternFileTest, AnAcceptedTableReplacesThePatternMarksTheDocumentAndSizesIt) {
    ASSERT_TRUE(Import("time (s),speed (r/min)\n0,0\n0.2,2000\n1.2,2000\n1.4,0\n"));
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_EQ(PatternRowCount, 3);
    ExpectRow(1, 0.2, 2000);
    ExpectRow(2, 1.0, 2000);
    ExpectRow(3, 0.2, 0);
    EXPECT_EQ(Patarn[4].RowState, 0);  // the fourth row of the pattern before is gone
    EXPECT_NEAR(Patarn[3].Time, 1.4, 1e-12);
    EXPECT_GT(Patarn[1].Torque, 0);
    EXPECT_LT(Patarn[3].Torque, Patarn[1].Torque);
    EXPECT_GT(Patarn[3].Position, Patarn[2].Position);
    EXPECT_EQ(ResultValues[Cul][MaxRotationalSpeed], 2000);
    EXPECT_DOUBLE_EQ(ResultValues[Cul][MaxTorque], Patarn[1].Torque);
}

TEST_F(PatternFileTest, ASignChangeInsideAnIntervalIsSplitAtZeroSpeed) {
    // 100 to -100 over 2 s: a row of 1 s down to 0 and a row of 1 s on to -100.
    ASSERT_TRUE(Import("time,speed\n1,100\n3,-100\n"));
    EXPECT_EQ(PatternRowCount, 3);
    ExpectRow(1, 1, 100);
    ExpectRow(2, 1, 0);
    ExpectRow(3, 1, -100);
    EXPECT_NEAR(Patarn[3].Time, 3, 1e-12);
}

TEST_F(PatternFileTest, AnUnevenSignChangeIsSplitWhereTheSpeedCrossesZero) {
    ASSERT_TRUE(Import("interval,speed\n0.5,300\n2,-100\n"));
    EXPECT_EQ(PatternRowCount, 3);
    ExpectRow(2, 1.5, 0);  // 300 / 400 of the 2 s
    ExpectRow(3, 0.5, -100);
}

TEST_F(PatternFileTest, WindowsLineEndsAndAByteOrderMarkReadAsPlainLines) {
    ASSERT_TRUE(Import("interval,speed\n0.1,3000\n0.5,3000\n0.1,0\n"));
    const PatarnTable plain = Patarn;
    ASSERT_TRUE(Import("\xEF\xBB\xBFinterval,speed\r\n0.1,3000\r\n0.5,3000\r\n0.1,0\r\n"));
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(PatternRowCount, 3);
    for (int r = 0; r < kPatarnRecords; ++r) {
        EXPECT_EQ(Patarn[r].DeltaTime, plain[r].DeltaTime) << r;
        EXPECT_EQ(Patarn[r].Speed, plain[r].Speed) << r;
        EXPECT_EQ(Patarn[r].Torque, plain[r].Torque) << r;
    }
}

TEST_F(PatternFileTest, TooManyRowsAreRefusedAndTheDocumentStaysAsItWas) {
    std::string text;
    for (int i = 1; i <= 21; ++i) text += std::to_string(i) + ",100\n";
    ExpectRefused(text, "The operating pattern holds at most 20 rows; the point table gives 21.", "Operating Pattern");
}

TEST_F(PatternFileTest, TooManyRowsAfterTheSplitsAreRefusedAndTheDocumentStaysAsItWas) {
    std::string text;
    for (int i = 1; i <= 12; ++i) text += std::to_string(i) + (i % 2 ? ",100\n" : ",-100\n");
    ExpectRefused(text,
                  "The operating pattern holds at most 20 rows; the point table gives 12, and 11 more where the speed "
                  "changes sign within a row.",
                  "Operating Pattern");
}

TEST_F(PatternFileTest, ABadNumberIsRefusedAndTheDocumentStaysAsItWas) {
    ExpectRefused("time,speed\r\n0.1,3000\r\n0.6,3,000\r\n",
                  "Line 3 holds 3 fields: a point table has two columns, time,speed or interval,speed.", "Import Pattern");
    ExpectRefused("time,speed\r\n0.1,3000\r\n0.6,3000rpm\r\n", "Illegal input value.\r\nLine 3: the speed is no number.",
                  "Operating Pattern");
}

TEST_F(PatternFileTest, ATimeGoingBackIsRefusedAndTheDocumentStaysAsItWas) {
    ExpectRefused("1,100\n0.9,0\n",
                  "Illegal input value.\r\nLine 2: the time must be greater than 0 and than the time before it.",
                  "Operating Pattern");
}

TEST_F(PatternFileTest, AFileThatCannotBeReadSaysSoAndTheDocumentStaysAsItWas) {
    const Snapshot before = Take();
    std::filesystem::create_directory(appDir.File("folder.csv"));
    for (const std::string& path : {appDir.File("missing.csv"), appDir.File("folder.csv")}) {
        msg.Clear();
        EXPECT_FALSE(Pattern_Import(path)) << path;
        ExpectOneMessage("File read failed.", "Import Pattern");
    }
    ExpectUntouched(before);
}

TEST_F(PatternFileTest, AFileLongerThanAnyPointTableIsRefusedUnread) {
    ExpectRefused("time,speed\n1,100\n" + std::string(kPointTableLimit, '\n'), "The file is too long for a point table.",
                  "Import Pattern");
}

TEST_F(PatternFileTest, AFileAtTheLimitIsRead) {
    std::string text = "time,speed\n1,100\n";
    text += std::string(kPointTableLimit - text.size(), '\n');
    EXPECT_TRUE(Import(text));
    EXPECT_EQ(PatternRowCount, 1);
}

TEST_F(PatternFileTest, AnEmptyFileIsRefused) {
    ExpectRefused("", "The point table holds no rows.", "Import Pattern");
}

TEST_F(PatternFileTest, ExportWritesThePatternAsItsTimePoints) {
    const std::string path = appDir.File("out.csv");
    ASSERT_TRUE(Pattern_Export(path, PointColumns::Time));
    EXPECT_EQ(ReadFile(path), "time (s),speed (r/min)\n0.000,0.0\n0.100,3000.0\n0.600,3000.0\n0.700,0.0\n1.000,0.0\n");
    ASSERT_TRUE(Pattern_Export(path, PointColumns::Interval));
    EXPECT_EQ(ReadFile(path), "interval (s),speed (r/min)\n0.100,3000.0\n0.500,3000.0\n0.100,0.0\n0.300,0.0\n");
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(PatternFileTest, AnExportThatCannotBeWrittenSaysSoAndLeavesNoFile) {
    std::filesystem::create_directory(appDir.File("folder.csv"));
    for (const std::string& path : {appDir.File("no/such/folder/out.csv"), appDir.File("folder.csv")}) {
        msg.Clear();
        EXPECT_FALSE(Pattern_Export(path, PointColumns::Time)) << path;
        ExpectOneMessage("The point table could not be written.", "Export Pattern");
    }
    EXPECT_TRUE(std::filesystem::is_directory(appDir.File("folder.csv")));
    EXPECT_TRUE(std::filesystem::is_empty(appDir.File("folder.csv")));
}

TEST_F(PatternFileTest, AnExportedTableImportsAsTheSamePattern) {
    for (const PointColumns columns : {PointColumns::Time, PointColumns::Interval}) {
        BuildSizedBallscrew();
        Patarn_Recalculate();
        const PatarnTable before = Patarn;
        const std::string path = appDir.File("round.csv");
        ASSERT_TRUE(Pattern_Export(path, columns));
        Patarn = {};
        PatternRowCount = 0;
        ASSERT_TRUE(Pattern_Import(path));
        EXPECT_EQ(PatternRowCount, 4);
        for (int r = 1; r <= 4; ++r) {
            EXPECT_NEAR(Patarn[r].DeltaTime, before[r].DeltaTime, 1e-12) << r;
            EXPECT_EQ(Patarn[r].Speed, before[r].Speed) << r;
            EXPECT_NEAR(Patarn[r].Torque, before[r].Torque, 1e-9) << r;
        }
    }
}

TEST_F(PatternFileTest, ASplitPatternExportsAndImportsToTheSameText) {
    ASSERT_TRUE(Import("interval,speed\n1,100\n1,-50\n"));
    const std::string first = appDir.File("first.csv"), second = appDir.File("second.csv");
    ASSERT_TRUE(Pattern_Export(first, PointColumns::Time));
    EXPECT_EQ(ReadFile(first), "time (s),speed (r/min)\n0.000,0.0\n1.000,100.0\n1.667,0.0\n2.000,-50.0\n");
    ASSERT_TRUE(Pattern_Import(first));
    EXPECT_EQ(PatternRowCount, 3);
    ASSERT_TRUE(Pattern_Export(second, PointColumns::Time));
    EXPECT_EQ(ReadFile(second), ReadFile(first));
}
