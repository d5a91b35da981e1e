// Building a catalogue from SQL text, and the rows of a catalogue the wizard
// would trip on, each named by the check.
#include <gtest/gtest.h>

#include <filesystem>

#include "selection/CatalogueBuild.h"
#include "selection/CatalogueCheck.h"
#include "tests/selection/CatalogueFixture.h"

namespace {

const std::string kSeries =
    "INSERT INTO MotorSeriesMaster VALUES ('S', 1, 1);"
    "INSERT INTO ModelMaster VALUES (1, 'G', 1);"
    "INSERT INTO DriverTable VALUES ('D1', 10, 5, 1, 'Pulse', '200', 'Single');";

// A motor row with its driver pair; inertia and allowed as SQL text.
std::string Motor(const std::string& model, const std::string& inertia, const std::string& allowed,
                  const std::string& brake = "0", bool driver = true) {
    std::string quoted;
    for (const char c : model) quoted += c == '\'' ? std::string("''") : std::string(1, c);
    return "INSERT INTO MotorTable VALUES (1, 1, '" + quoted + "', 100, 3000, " + inertia + ", 0.3, 0.9, " + allowed +
           ", 1, " + brake + ", '');" +
           (driver ? "INSERT INTO MotorDriverTable VALUES ('" + quoted + "', 'D1');" : std::string());
}

class CatalogueCheckTest : public SeriesDbTest {
protected:
    std::vector<CatalogueFinding> Check(const std::string& rows) {
        Build(kSeries + rows);
        std::vector<CatalogueFinding> findings;
        std::string error;
        EXPECT_TRUE(Catalogue_Check(appDir.File("Series.db"), findings, error)) << error;
        return findings;
    }
};

TEST_F(CatalogueCheckTest, ASoundCatalogueHasNoFinding) {
    EXPECT_TRUE(Check(Motor("M1", "1e-5", "30") + Motor("M2", "0", "0")).empty());
}

TEST_F(CatalogueCheckTest, AZeroInertiaWithAnAllowedRatioIsNamed) {
    const auto findings = Check(Motor("Good", "1e-5", "30") + Motor("Zero", "0", "30"));
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings[0].table, "MotorTable");
    EXPECT_EQ(findings[0].row, "Zero");
    EXPECT_NE(findings[0].problem.find("Inertia is 0 while MaxInertia is 30"), std::string::npos);
}

TEST_F(CatalogueCheckTest, ABlankInertiaOrBrakeInertiaIsNamed) {
    const auto findings = Check(Motor("NoBrake", "1e-5", "30", "NULL") + Motor("NoInertia", "NULL", "0"));
    ASSERT_EQ(findings.size(), 2u);
    EXPECT_EQ(findings[0].row, "NoBrake");
    EXPECT_EQ(findings[0].problem.rfind("BrakeInertia is blank", 0), 0u);
    EXPECT_EQ(findings[1].row, "NoInertia");
    EXPECT_EQ(findings[1].problem.rfind("Inertia is blank", 0), 0u);
}

TEST_F(CatalogueCheckTest, AModelHoldingASingleQuoteIsNamed) {
    const auto findings = Check(Motor("M'1", "1e-5", "30"));
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings[0].row, "M'1");
    EXPECT_NE(findings[0].problem.find("single quote"), std::string::npos);
}

TEST_F(CatalogueCheckTest, AMotorWithoutADriverIsNamed) {
    const auto findings = Check(Motor("Alone", "1e-5", "30", "0", false) +
                                "INSERT INTO MotorDriverTable VALUES ('Ghost', 'NoSuchDriver');" +
                                Motor("Ghost", "1e-5", "30", "0", false));
    ASSERT_EQ(findings.size(), 2u);
    EXPECT_EQ(findings[0].row, "Alone");
    EXPECT_EQ(findings[1].row, "Ghost");
    EXPECT_NE(findings[1].problem.find("no driver"), std::string::npos);
}

TEST_F(CatalogueCheckTest, TwelveSeriesOrTwelveGroupsOfASeriesAreNamed) {
    std::string rows;
    for (int i = 2; i <= 12; ++i) rows += "INSERT INTO MotorSeriesMaster VALUES ('S" + std::to_string(i) + "', 2, 2);";
    for (int i = 2; i <= 12; ++i) rows += "INSERT INTO ModelMaster VALUES (1, 'G" + std::to_string(i) + "', 2);";
    const auto findings = Check(rows);
    ASSERT_EQ(findings.size(), 2u);
    EXPECT_EQ(findings[0].table, "MotorSeriesMaster");
    EXPECT_EQ(findings[0].problem.rfind("12 series", 0), 0u);
    EXPECT_EQ(findings[1].table, "ModelMaster");
    EXPECT_EQ(findings[1].row, "S");
    EXPECT_EQ(findings[1].problem.rfind("12 model groups", 0), 0u);
}

TEST_F(CatalogueCheckTest, ElevenSeriesAndGroupsAreWithinTheLists) {
    std::string rows;
    for (int i = 2; i <= 11; ++i) rows += "INSERT INTO MotorSeriesMaster VALUES ('S" + std::to_string(i) + "', 2, 2);";
    for (int i = 2; i <= 11; ++i) rows += "INSERT INTO ModelMaster VALUES (1, 'G" + std::to_string(i) + "', 2);";
    EXPECT_TRUE(Check(rows).empty());
}

TEST_F(CatalogueCheckTest, AFileThatIsNoCatalogueIsToldNotChecked) {
    std::vector<CatalogueFinding> findings{{"x", "y", "z"}};
    std::string error;
    EXPECT_FALSE(Catalogue_Check(appDir.File("none.db"), findings, error));
    EXPECT_EQ(error, appDir.File("none.db") + ": no such file");
    EXPECT_TRUE(findings.empty());
    WriteFile(appDir.File("text.db"), "not a database at all");
    EXPECT_FALSE(Catalogue_Check(appDir.File("text.db"), findings, error));
    EXPECT_EQ(error, appDir.File("text.db") + ": not a readable database");
    WriteFile(appDir.File("rows.sql"), "CREATE TABLE Other (x);");
    ASSERT_TRUE(Catalogue_Build(appDir.File("other.db"), {appDir.File("rows.sql")}, error)) << error;
    EXPECT_FALSE(Catalogue_Check(appDir.File("other.db"), findings, error));
    EXPECT_EQ(error.rfind("not a catalogue", 0), 0u);
}

TEST_F(CatalogueCheckTest, TheBundledCatalogueHasOnlyItsDiscontinuedMotorWithoutDataToLookAt) {
    std::vector<CatalogueFinding> findings;
    std::string error;
    ASSERT_TRUE(Catalogue_Check(Catalogue_Bundled(), findings, error)) << error;
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings[0].row, "TVM-R150");
}

TEST_F(CatalogueCheckTest, ABuildThatFailsLeavesTheTargetAsItWas) {
    WriteFile(appDir.File("target.db"), "old");
    WriteFile(appDir.File("bad.sql"), "CREATE TABLE T (x); INSERT INTO Missing VALUES (1);");
    std::string error;
    EXPECT_FALSE(Catalogue_Build(appDir.File("target.db"), {appDir.File("bad.sql")}, error));
    EXPECT_NE(error.find("bad.sql"), std::string::npos);
    EXPECT_EQ(ReadFile(appDir.File("target.db")), "old");
    EXPECT_FALSE(std::filesystem::exists(appDir.File("target.db.tmp")));
    EXPECT_FALSE(Catalogue_Build(appDir.File("target.db"), {appDir.File("missing.sql")}, error));
    EXPECT_EQ(error, "cannot read " + appDir.File("missing.sql"));
    EXPECT_EQ(ReadFile(appDir.File("target.db")), "old");
}

}  // namespace
