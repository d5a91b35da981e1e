// torvane-cli catalogue build and check: a catalogue built from SQL text,
// its rows checked, and the exit codes of each outcome.
#include <gtest/gtest.h>

#include "tests/selection/CatalogueFixture.h"
#include "tests/support/CliRun.h"

namespace {

const std::string kSchema = std::string(TORVANE_SOURCE_DIR) + "/data/catalogue/10_schema.sql";

class CatalogueCliTest : public StateTest {};

TEST_F(CatalogueCliTest, BuildMakesTheBundledCatalogueFromItsSqlText) {
    std::string files;
    for (const char* name : {"10_schema", "20_series", "30_motors", "40_drivers"})
        files += " " + Quote(std::string(TORVANE_SOURCE_DIR) + "/data/catalogue/" + name + ".sql");
    const CliRun run = RunCli(appDir, "catalogue build " + Quote(appDir.File("built.db")) + files);
    ASSERT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(ReadFile(appDir.File("built.db")), ReadFile(Catalogue_Bundled()));
}

TEST_F(CatalogueCliTest, ACleanCatalogueChecksWithExitZero) {
    WriteFile(appDir.File("rows.sql"), "INSERT INTO MotorSeriesMaster VALUES ('S', 1, 1);");
    ASSERT_EQ(RunCli(appDir, "catalogue build " + Quote(appDir.File("Series.db")) + " " + Quote(kSchema) + " " +
                                 Quote(appDir.File("rows.sql")))
                  .code,
              0);
    const CliRun run = RunCli(appDir, "catalogue check");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, appDir.File("Series.db") + ": no row to look at\n");
}

TEST_F(CatalogueCliTest, FindingsArePrintedOnePerRowWithExitOne) {
    WriteFile(appDir.File("rows.sql"),
              "INSERT INTO MotorTable VALUES (1, 1, 'Z''1', 100, 3000, 0, 0.3, 0.9, 30, 1, 0, '');");
    ASSERT_EQ(RunCli(appDir, "catalogue build " + Quote(appDir.File("c.db")) + " " + Quote(kSchema) + " " +
                                 Quote(appDir.File("rows.sql")))
                  .code,
              0);
    const CliRun run = RunCli(appDir, "catalogue check " + Quote(appDir.File("c.db")));
    EXPECT_EQ(run.code, 1);
    EXPECT_NE(run.out.find("MotorTable  Z'1  Inertia is 0 while MaxInertia is 30"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("MotorTable  Z'1  the model holds a single quote"), std::string::npos);
    EXPECT_NE(run.out.find("MotorTable  Z'1  no driver"), std::string::npos);
    EXPECT_NE(run.out.find(": 3 to look at\n"), std::string::npos);
}

TEST_F(CatalogueCliTest, FailuresSayWhyAndExitOneBadUsageTwo) {
    CliRun run = RunCli(appDir, "catalogue check " + Quote(appDir.File("none.db")));
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err, "torvane-cli: " + appDir.File("none.db") + ": no such file\n");
    WriteFile(appDir.File("bad.sql"), "THIS IS NOT SQL;");
    run = RunCli(appDir, "catalogue build " + Quote(appDir.File("out.db")) + " " + Quote(appDir.File("bad.sql")));
    EXPECT_EQ(run.code, 1);
    EXPECT_NE(run.err.find("bad.sql"), std::string::npos);
    EXPECT_EQ(RunCli(appDir, "catalogue").code, 2);
    EXPECT_EQ(RunCli(appDir, "catalogue build " + Quote(appDir.File("out.db"))).code, 2);
}

// The SQL block the README shows for adding a series, a motor and a driver.
std::string Readme_Sql() {
    const std::string readme = ReadFile(std::string(TORVANE_SOURCE_DIR) + "/README.md");
    const auto start = readme.find("```sql\n");
    const auto end = readme.find("```", start + 7);
    return start == std::string::npos || end == std::string::npos ? "" : readme.substr(start + 7, end - start - 7);
}

TEST_F(CatalogueCliTest, TheReadmesSeriesAddsToTheBundledCatalogueAndChecksClean) {
    ASSERT_FALSE(Readme_Sql().empty());
    WriteFile(appDir.File("my_series.sql"), Readme_Sql());
    std::string files;
    for (const char* name : {"10_schema", "20_series", "30_motors", "40_drivers"})
        files += " " + Quote(std::string(TORVANE_SOURCE_DIR) + "/data/catalogue/" + name + ".sql");
    ASSERT_EQ(RunCli(appDir, "catalogue build " + Quote(appDir.File("Series.db")) + files + " " +
                                 Quote(appDir.File("my_series.sql")))
                  .code,
              0);
    const CliRun check = RunCli(appDir, "catalogue check");
    EXPECT_EQ(check.out.find("XM-040"), std::string::npos) << check.out;
    EXPECT_NE(check.out.find(": 1 to look at"), std::string::npos) << check.out;  // TVM-R150, as bundled
    const CliRun series = RunCli(appDir, "series");
    EXPECT_NE(series.out.find("XM Custom\n  Standard\n"), std::string::npos) << series.out;
    const CliRun drivers = RunCli(appDir, "drivers " + Quote(std::string(TORVANE_SOURCE_DIR) + "/examples/cart.AP2") +
                                              " --motor XM-040");
    EXPECT_EQ(drivers.code, 0) << drivers.err;
    EXPECT_NE(drivers.out.find("XD-04"), std::string::npos) << drivers.out;
}

}  // namespace
