// torvane-cli checks, run as a separate process over the bundled catalogue.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/PatarnRows.h"
#include "core/Tables.h"
#include "persist/mdlFile.h"
#include "selection/ChecksGrid.h"
#include "tests/selection/CatalogueFixture.h"
#include "tests/selection/SizedDocument.h"
#include "tests/support/CliRun.h"
#include "tests/support/JsonRead.h"
#include "tests/support/TestState.h"

namespace {

class ChecksCliTest : public StateTest {
protected:
    void SetUp() override {
        StateTest::SetUp();
        std::filesystem::copy_file(Catalogue_Bundled(), appDir.File("Series.db"));
    }
    // The horizontal ballscrew example with a motor and a driver taken on.
    std::string Chosen(const std::string& motor, const std::string& driver) {
        const std::string out = appDir.File(motor + ".AP2");
        const CliRun r = RunCli(appDir, "select " + Quote(TORVANE_SOURCE_DIR "/tests/data/horizontal-ballscrew.AP2") +
                                            " --motor " + motor + " --driver " + driver + " --out " + Quote(out));
        EXPECT_EQ(r.code, 0) << r.err;
        return out;
    }
    // The table the program computes for the file, opened in this process.
    static Grid Table(const std::string& file) {
        EXPECT_TRUE(File_Load(file));
        EngineeringChecks checks;
        Checks_OfDocument(Parts_OfDocument(), checks);
        return Checks_Grid(checks);
    }
};

TEST_F(ChecksCliTest, TextShowsTheCurveAndEveryInterval) {
    const std::string file = Chosen("TVM-A040S3", "TVD-A04");
    const CliRun r = RunCli(appDir, "checks " + Quote(file));
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_NE(r.out.find("Motor: TVM-A040S3  Driver: TVD-A04\n"), std::string::npos) << r.out;
    EXPECT_NE(r.out.find("Curve: TVM-A040S3\n"), std::string::npos);
    EXPECT_NE(r.out.find("Interval 1, peak torque"), std::string::npos);
    EXPECT_NE(r.out.find("Effective torque at the mean speed"), std::string::npos);
    EXPECT_NE(r.out.find("Brake resistor"), std::string::npos);
}

TEST_F(ChecksCliTest, JsonCarriesTheFiguresAndTheSameTableAsTheProgram) {
    const std::string file = Chosen("TVM-B10M2", "TVD-A10");
    const CliRun r = RunCli(appDir, "checks " + Quote(file) + " --json");
    ASSERT_EQ(r.code, 0) << r.err;
    Json doc;
    ASSERT_TRUE(Json_Parse(r.out, doc)) << r.out;
    EXPECT_EQ(doc["motor"].text, "TVM-B10M2");
    EXPECT_EQ(doc["curve"]["source"].text, "found");
    EXPECT_EQ(doc["curve"]["points"].items.size(), 4u);
    const Grid table = Table(file);
    ASSERT_EQ(doc["intervals"].items.size(), static_cast<std::size_t>(Patarn_CountRows(Patarn)));
    for (std::size_t i = 0; i < doc["intervals"].items.size(); ++i) {
        const Json& interval = doc["intervals"][i];
        EXPECT_EQ(interval["speedEnd"].number, Patarn[i + 1].Speed);
        EXPECT_EQ(interval["verdict"].text, table.Cell(kFixedRows + static_cast<int>(i), 0).text);
    }
    const Json& rows = doc["table"]["rows"];
    ASSERT_EQ(rows.items.size(), static_cast<std::size_t>(table.Rows() - kFixedRows));
    for (int row = kFixedRows; row < table.Rows(); ++row)
        for (int col = 0; col < table.Cols(); ++col)
            EXPECT_EQ(rows[row - kFixedRows][col]["text"].text, table.Cell(row, col).text) << row << ' ' << col;
}

TEST_F(ChecksCliTest, AFileWithoutAMotorSaysSo) {
    Document_Sized();
    ASSERT_TRUE(File_Save(appDir.File("alone.AP2")));
    const CliRun r = RunCli(appDir, "checks " + Quote(appDir.File("alone.AP2")) + " --json");
    ASSERT_EQ(r.code, 0) << r.err;
    Json doc;
    ASSERT_TRUE(Json_Parse(r.out, doc)) << r.out;
    EXPECT_EQ(doc["curve"]["source"].text, "no motor");
    EXPECT_EQ(doc["resistor"]["state"].text, "unknown");
}

TEST_F(ChecksCliTest, AFileThatCannotBeReadExitsWithOne) {
    WriteFile(appDir.File("bad.AP2"), "not an application file");
    const CliRun r = RunCli(appDir, "checks " + Quote(appDir.File("bad.AP2")));
    EXPECT_EQ(r.code, 1);
    EXPECT_NE(r.err.find("could not be loaded"), std::string::npos) << r.err;
    EXPECT_EQ(RunCli(appDir, "checks").code, 2);
}

}  // namespace
