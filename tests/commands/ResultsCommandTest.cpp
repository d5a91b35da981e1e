// Save Results (commands/ResultsCommand): the refusal without components, the dialog cancelled, the name as given.
#include <gtest/gtest.h>

#include <filesystem>

#include "calc/mdlCulcurate.h"
#include "core/Tables.h"
#include "commands/ResultsCommand.h"
#include "tests/reports/ReportFixture.h"

using ResultsCommandTest = ReportTest;

TEST_F(ResultsCommandTest, TheMotorAloneIsRefusedWithoutADialog) {
    bool asked = false;
    EXPECT_FALSE(Results_Command([&asked](std::string&) { return asked = true; }));
    EXPECT_FALSE(asked);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Calculation results cannot be saved because there are no connected components.");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Critical);
    EXPECT_EQ(msg.Seen()[0].buttons, MsgButtons::OK);
}

TEST_F(ResultsCommandTest, CancellingTheDialogWritesAndShowsNothing) {
    Chain({1});
    Culcurate_All();
    EXPECT_FALSE(Results_Command([](std::string&) { return false; }));
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_TRUE(std::filesystem::is_empty(appDir.Path()));
}

TEST_F(ResultsCommandTest, TheNameIsTakenAsGivenWithoutExtension) {
    Chain({1});
    Culcurate_All();
    InstallParamIni();
    const std::string name = appDir.File("results");
    EXPECT_TRUE(Results_Command([&name](std::string& fileName) {
        fileName = name;
        return true;
    }));
    EXPECT_TRUE(std::filesystem::exists(name));
    EXPECT_FALSE(std::filesystem::exists(name + ".TXT"));
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ResultsCommandTest, AFileThatCannotBeWrittenIsFalseLoggedAndToldNothing) {
    Chain({1});
    Culcurate_All();
    InstallParamIni();
    EXPECT_FALSE(Results_Command([this](std::string& fileName) {
        fileName = appDir.File("no-such-folder/results.TXT");
        return true;
    }));
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_FALSE(ReadFile(appDir.File("History.log")).empty());
}

TEST_F(ResultsCommandTest, AFullDiskIsFalse) {
    Chain({1});
    Culcurate_All();
    InstallParamIni();
    EXPECT_FALSE(Results_Command([](std::string& fileName) {
        fileName = "/dev/full";
        return true;
    }));
    EXPECT_TRUE(msg.Seen().empty());
}
