// torvane-cli answers --help and --version, and every command that cannot
// write its output says so on standard error and exits 1.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include "base/Version.h"
#include "tests/selection/CatalogueFixture.h"
#include "tests/support/CliRun.h"

namespace {

const std::string kExample = Quote(std::string(TORVANE_SOURCE_DIR) + "/examples/horizontal-ballscrew.AP2");

class CliOutputTest : public StateTest {};

TEST_F(CliOutputTest, VersionPrintsTheProgramsVersion) {
    const CliRun run = RunCli(appDir, "--version");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, std::string("torvane-cli ") + kVersionText + "\n");
}

TEST_F(CliOutputTest, HelpListsEveryCommand) {
    const CliRun run = RunCli(appDir, "--help");
    EXPECT_EQ(run.code, 0);
    for (const char* command : {"template", "size", "results", "series", "judge", "drivers", "select", "report",
                                "series-list", "catalogue", "--version"})
        EXPECT_NE(run.out.find(command), std::string::npos) << command;
}

TEST_F(CliOutputTest, EachCommandThatCannotWriteItsFileSaysSoAndExitsOne) {
    const std::string bad = "/proc/no-such-folder/out";
    WriteFile(appDir.File("Series.db"), ReadFile(Catalogue_Bundled()));
    const std::string sql = Quote(std::string(TORVANE_SOURCE_DIR) + "/data/catalogue/10_schema.sql");
    for (const std::string& args :
         {"results " + kExample + " " + bad + ".TXT",
          "select " + kExample + " --motor TVM-A020S3 --driver TVD-A04 --out " + bad + ".AP2",
          "report " + kExample + " " + bad + ".pdf", "series-list " + kExample +
                                                         " --series 'TVM-A Compact' --model 'Low inertia' " + bad + ".pdf",
          "catalogue build " + bad + ".db " + sql}) {
        const CliRun run = RunCli(appDir, args);
        EXPECT_EQ(run.code, 1) << args;
        EXPECT_FALSE(run.err.empty()) << args;
    }
}

TEST_F(CliOutputTest, TheResultsFileThatFailsIsStillLoggedAsTheWindowDoes) {
    const CliRun run = RunCli(appDir, "results " + kExample + " /proc/no-such-folder/out.TXT");
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err, "torvane-cli: the results file could not be written: /proc/no-such-folder/out.TXT\n");
    EXPECT_FALSE(ReadFile(appDir.File("History.log")).empty());
}

TEST_F(CliOutputTest, AFullDiskIsToldForAFileAndForStandardOutput) {
    CliRun run = RunCli(appDir, "results " + kExample + " /dev/full");
    EXPECT_EQ(run.code, 1);
    EXPECT_NE(run.err.find("could not be written"), std::string::npos);
    const std::string err = appDir.File("full.err");
    const int status = std::system(("TORVANE_APP_PATH=" + Quote(appDir.Path()) + " " + Quote(TORVANE_CLI) + " size " +
                                    kExample + " >/dev/full 2>" + Quote(err))
                                       .c_str());
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_EQ(ReadFile(err), "torvane-cli: the output could not be written\n");
}

}  // namespace
