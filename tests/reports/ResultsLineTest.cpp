// The pieces of a results line (reports/ResultsLine, ResultsText): padding to a column and the unit texts.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/Tables.h"
#include "core/HistoryLog.h"
#include "reports/ResultsLine.h"
#include "reports/ResultsText.h"
#include "tests/reports/ReportFixture.h"

using ResultsLineTest = ReportTest;

TEST(ResultsPad, WidthOfTheColumnMinusTheBytesOfTheText) {
    EXPECT_EQ(Results_Pad("", 1), 14);
    EXPECT_EQ(Results_Pad("[0] Screw pitch", 2), 11);
    EXPECT_EQ(Results_Pad("m", 3), 7);
    EXPECT_EQ(Results_Pad("0.01", 4), 6);
    EXPECT_EQ(Results_Pad("1", 5), 7);
    EXPECT_EQ(Results_Pad("3000", 6), 6);
    EXPECT_EQ(Results_Pad("3000", 7), 6);
    EXPECT_EQ(Results_Pad("0.1", 8), 12);
    EXPECT_EQ(Results_Pad("1.234E+1", 9), 25);
    EXPECT_EQ(Results_Pad("1.234E+1", 10), 10);
    EXPECT_EQ(Results_Pad("1.234E+1", 11), 10);
    EXPECT_EQ(Results_Pad("1.234E+1", 12), 2);
}

TEST(ResultsPad, NeverBelowZero) {
    EXPECT_EQ(Results_Pad("0.000123456789012", 4), 0);
    EXPECT_EQ(Results_Pad("1234567890", 4), 0);
}

TEST(ResultsPad, CountsBytesOfTheCodePage) {
    EXPECT_EQ(Results_Pad("kg\xB7m\xB2", 3), 3);
}

TEST(ResultsUnitText, TheTableOfUnitKinds) {
    EXPECT_EQ(Results_UnitText(0), "s");
    EXPECT_EQ(Results_UnitText(1), "m");
    EXPECT_EQ(Results_UnitText(2), "m");
    EXPECT_EQ(Results_UnitText(3), "rad");
    EXPECT_EQ(Results_UnitText(4), "m/s");
    EXPECT_EQ(Results_UnitText(5), "r/min");
    EXPECT_EQ(Results_UnitText(6), "rad/s");
    EXPECT_EQ(Results_UnitText(7), "kg");
    EXPECT_EQ(Results_UnitText(8), "kg\xB7m\xB2");
    EXPECT_EQ(Results_UnitText(9), "N");
    EXPECT_EQ(Results_UnitText(10), "N\xB7m");
    EXPECT_EQ(Results_UnitText(11), "-");
    EXPECT_EQ(Results_UnitText(12), "gcm\xB3");
}

TEST(ResultsUnitText, EveryOtherKindIsADash) {
    EXPECT_EQ(Results_UnitText(13), "-");
    EXPECT_EQ(Results_UnitText(15), "-");
    EXPECT_EQ(Results_UnitText(9999), "-");
    EXPECT_EQ(Results_UnitText(-1), "-");
}

TEST(TorqueText, FourSignificantDigitsWithSignedExponent) {
    EXPECT_EQ(TorqueText(12.34), "1.234E+1");
    EXPECT_EQ(TorqueText(0.002), "2.0E-3");
    EXPECT_EQ(TorqueText(-0.5), "-5.0E-1");
    EXPECT_EQ(TorqueText(0), ".0E+0");
}

TEST_F(ResultsLineTest, LinesEndWithCrLfAndBlanksGoInFront) {
    Results_Open(ResultsPath());
    Results_Print(2, "ab", false);
    Results_Print(1, "c", true);
    Results_Print(0, "", true);
    Results_Close();
    EXPECT_EQ(ReadFile(ResultsPath()), "  ab c\r\n\r\n");
}

TEST_F(ResultsLineTest, OpeningEmptiesAFileThatExists) {
    WriteFile(ResultsPath(), "old contents\r\n");
    Results_Open(ResultsPath());
    Results_Print(0, "new", true);
    Results_Close();
    EXPECT_EQ(ReadFile(ResultsPath()), "new\r\n");
}

TEST_F(ResultsLineTest, LogErrorWritesTimeTwoBlanksAndTheNumberWithItsSignPlace) {
    Results_LogError(52);
    Results_LogError(-3);
    const std::string log = ReadFile(History_Path());
    EXPECT_EQ(log.substr(19), "   52\r\n" + log.substr(0, 19) + "  -3\r\n");
    EXPECT_EQ(LogTexts(History_Path()), (std::vector<std::string>{" 52", "-3"}));
}

TEST_F(ResultsLineTest, AFileThatCannotBeOpenedLogsTheOpenAndEveryStatement) {
    const std::string bad = appDir.File("no such folder/Results.TXT");
    Results_Open(bad);
    Results_Print(0, "one", true);
    Results_Print(0, "two", false);
    Results_Close();
    EXPECT_FALSE(std::filesystem::exists(bad));
    EXPECT_EQ(LogTexts(History_Path()), (std::vector<std::string>{" 75", " 52", " 52"}));
}

TEST_F(ResultsLineTest, TheLogGrowsWithEveryEntry) {
    WriteFile(History_Path(), "earlier entry\r\n");
    Results_LogError(5);
    EXPECT_EQ(ReadFile(History_Path()).substr(0, 15), "earlier entry\r\n");
    EXPECT_EQ(Lines(ReadFile(History_Path())).size(), 2u);
}

TEST_F(ResultsLineTest, TheSiblingLogIsTheFolderNameFollowedByHistoryLog) {
    EXPECT_EQ(History_Path(), appDir.Path() + "/History.log");
    EXPECT_EQ(History_SiblingPath(), appDir.Path() + "History.log");
}
