// torvane-cli results, run as a separate process.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>

#include "calc/mdlCulcurate.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "persist/mdlFile.h"
#include "tests/reports/ReportFixture.h"

namespace {

class ResultsCliTest : public ReportTest {
protected:
    // Runs "torvane-cli results" on the document in AppPath; standard error
    // goes to err.
    int RunResults(const std::string& document, const std::string& out) {
        const std::string command = "TORVANE_APP_PATH='" + appDir.Path() + "' '" TORVANE_CLI "' results '" +
                                    document + "' '" + out + "' >/dev/null 2>'" + appDir.File("err.txt") + "'";
        const int status = std::system(command.c_str());
        err = ReadFile(appDir.File("err.txt"));
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    std::string err;
};

}  // namespace

TEST_F(ResultsCliTest, WritesTheResultsOfTheOpenedFile) {
    Template_Fill(1, true);
    ElementCount = MecaTemplateCount[1];
    ChooseMotor();
    Rows({{0.1, 3000}, {0.3, 3000}, {0.1, 0}, {0.5, 0}});
    Culcurate_All();
    ASSERT_TRUE(File_Save(appDir.File("doc.AP2")));
    InstallParamIni();
    EXPECT_EQ(RunResults(appDir.File("doc.AP2"), appDir.File("out.TXT")), 0) << err;
    EXPECT_EQ(ReadFile(appDir.File("out.TXT")),
              ReadFile(std::string(TORVANE_SOURCE_DIR) + "/tests/data/results/HorizontalBallscrew.TXT"));
}

TEST_F(ResultsCliTest, TheMotorAloneIsRefusedWithExitCodeOne) {
    ASSERT_TRUE(File_Save(appDir.File("motor.AP2")));
    EXPECT_EQ(RunResults(appDir.File("motor.AP2"), appDir.File("out.TXT")), 1);
    EXPECT_EQ(err, "Calculation results cannot be saved because there are no connected components.\n");
    EXPECT_FALSE(std::filesystem::exists(appDir.File("out.TXT")));
}

TEST_F(ResultsCliTest, AFileThatCannotBeReadExitsOne) {
    EXPECT_EQ(RunResults(appDir.File("missing.AP2"), appDir.File("out.TXT")), 1);
    EXPECT_FALSE(std::filesystem::exists(appDir.File("out.TXT")));
}
