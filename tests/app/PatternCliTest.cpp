// torvane-cli pattern import and export, run as a separate process: the
// pattern into and out of a point table, the exit codes, the messages.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "commands/PatternCommands.h"
#include "core/Tables.h"
#include "persist/mdlFile.h"
#include "tests/calc/CalcFixture.h"
#include "tests/support/CliRun.h"

namespace {

class PatternCliTest : public CalcTest {
protected:
    void SetUp() override {
        CalcTest::SetUp();
        BuildSizedBallscrew();
        Patarn_Recalculate();
        ASSERT_TRUE(File_Save(document));
    }

    CliRun Run(const std::string& args) { return RunCli(appDir, args); }

    const std::string document = appDir.File("doc.AP2");
    const std::string points = appDir.File("points.csv");
    const std::string saved = appDir.File("new.AP2");
};

}  // namespace

TEST_F(PatternCliTest, ImportReplacesThePatternAndSavesTheNewFile) {
    WriteFile(points, "time,speed\r\n1,100\r\n3,-100\r\n");
    const CliRun r = Run("pattern import " + Quote(document) + " " + Quote(points) + " --out " + Quote(saved));
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.err, "");
    State_Reset();
    ASSERT_TRUE(File_Load(saved));
    EXPECT_EQ(PatternRowCount, 3);
    EXPECT_EQ(Patarn[1].Speed, 100);
    EXPECT_EQ(Patarn[2].Speed, 0);
    EXPECT_EQ(Patarn[3].Speed, -100);
    EXPECT_NEAR(Patarn[2].DeltaTime, 1, 1e-12);
    EXPECT_EQ(ElementCount, 4);  // the chain came along
}

TEST_F(PatternCliTest, ExportWritesTheTimePointsOrTheIntervals) {
    const std::string out = appDir.File("out.csv");
    CliRun r = Run("pattern export " + Quote(document) + " " + Quote(out));
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(ReadFile(out), "time (s),speed (r/min)\n0.000,0.0\n0.100,3000.0\n0.600,3000.0\n0.700,0.0\n1.000,0.0\n");
    r = Run("pattern export " + Quote(document) + " " + Quote(out) + " --intervals");
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(ReadFile(out), "interval (s),speed (r/min)\n0.100,3000.0\n0.500,3000.0\n0.100,0.0\n0.300,0.0\n");
}

TEST_F(PatternCliTest, ARefusedTableExitsOneWithTheMessageAndWritesNothing) {
    WriteFile(points, "time,speed\n1,100\n2,abc\n");
    const CliRun r = Run("pattern import " + Quote(document) + " " + Quote(points) + " --out " + Quote(saved));
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err, "Operating Pattern: Illegal input value.\r\nLine 3: the speed is no number.\n");
    EXPECT_FALSE(std::filesystem::exists(saved));
}

TEST_F(PatternCliTest, APointTableThatCannotBeReadExitsOne) {
    const CliRun r = Run("pattern import " + Quote(document) + " " + Quote(appDir.File("missing.csv")) + " --out " +
                         Quote(saved));
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err, "Import Pattern: File read failed.\n");
    EXPECT_FALSE(std::filesystem::exists(saved));
}

TEST_F(PatternCliTest, AnApplicationFileThatCannotBeReadExitsOne) {
    const std::string out = appDir.File("out.csv");
    const CliRun r = Run("pattern export " + Quote(appDir.File("missing.AP2")) + " " + Quote(out));
    EXPECT_EQ(r.code, 1);
    EXPECT_NE(r.err.find("File read failed."), std::string::npos) << r.err;
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(PatternCliTest, AFileThatCannotBeWrittenExitsOne) {
    const CliRun r = Run("pattern export " + Quote(document) + " " + Quote(appDir.File("no/folder/out.csv")));
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err, "Export Pattern: The point table could not be written.\n");
    WriteFile(points, "time,speed\n1,100\n");
    const CliRun s = Run("pattern import " + Quote(document) + " " + Quote(points) + " --out " +
                         Quote(appDir.File("no/folder/new.AP2")));
    EXPECT_EQ(s.code, 1);
    EXPECT_NE(s.err.find("File write failed."), std::string::npos) << s.err;
}

TEST_F(PatternCliTest, BadUsageExitsTwo) {
    EXPECT_EQ(Run("pattern").code, 2);
    EXPECT_EQ(Run("pattern import " + Quote(document) + " " + Quote(points)).code, 2);  // no --out
    EXPECT_EQ(Run("pattern export " + Quote(document)).code, 2);
    const std::string out = appDir.File("out.csv");
    EXPECT_EQ(Run("pattern export " + Quote(document) + " " + Quote(out) + " --frobnicate").code, 2);
    EXPECT_FALSE(std::filesystem::exists(out));
}
