// The results file (reports): the motor line, the components and their rows, the inertia, torque and regeneration.
#include <gtest/gtest.h>

#include <filesystem>

#include "base/NumberFormat.h"
#include "calc/mdlCulcurate.h"
#include "core/Tables.h"
#include "core/HistoryLog.h"
#include "reports/ResultsText.h"
#include "reports/mdlFileOutput.h"
#include "tests/reports/ReportFixture.h"

namespace {

class ResultsFileTest : public ReportTest {
protected:
    // The lines of the saved file.
    std::vector<std::string> Saved() { return Lines(SaveResults()); }
};

// Index of the first line equal to text; lines.size() when there is none.
std::size_t Find(const std::vector<std::string>& lines, const std::string& text) {
    std::size_t i = 0;
    while (i < lines.size() && lines[i] != text) ++i;
    return i;
}

const std::string kTableHead =
    "    Interval|    v1    |    v2    | Time Interval |Acceleration/Deceleration Torque | External Torque  |"
    " Friction Torque  |  Torque  |      Regeneration";

}  // namespace

TEST_F(ResultsFileTest, TheMotorLineHasAllSixtyCharactersEvenWhenNeverSet) {
    Chain({1});
    Culcurate_All();
    EXPECT_EQ(Saved().front(), "  Motor Name   :" + std::string(60, ' '));
}

TEST_F(ResultsFileTest, TheMotorLineIsNotTrimmed) {
    Chain({1});
    ChooseMotor();
    Culcurate_All();
    EXPECT_EQ(Saved().front(), "  Motor Name   :SVM-0400-A" + std::string(50, ' '));
}

TEST_F(ResultsFileTest, ComponentHeadAndRowsInSiUnits) {
    Chain({11});
    Culcurate_All();
    const auto lines = Saved();
    EXPECT_EQ(lines[1], "");
    EXPECT_EQ(lines[2], "    1 H ballscrew");
    EXPECT_EQ(lines[3], "              Item                |SI Units|Setting");
    EXPECT_EQ(lines[4], "        " + std::string(48, '-'));
    EXPECT_EQ(lines[5], "        [0] Screw pitch           |m       |      0.01");
    EXPECT_EQ(lines[8], "        [3] Trans. efficiency     |-       |       0.9");
    EXPECT_EQ(lines[9], "        [4] Table mass            |kg      |         1");
    EXPECT_EQ(lines[10], "        [5] Friction coef.        |-       |       0.1");
    EXPECT_EQ(lines[11], "        ");
}

TEST_F(ResultsFileTest, DirectInertiaInputShowsDashesExceptTheExternalTorque) {
    Chain({5});
    Element[1].InputMode = 1;
    Element[1].DirectValue = 0.05;
    Element[1].Item[4].Value = 2.5;
    Culcurate_All();
    const auto lines = Saved();
    EXPECT_EQ(lines[5], "        [0] Outer diameter        |m       |         -");
    EXPECT_EQ(lines[8], "        [3] Density               |gcm\xB3    |         -");
    EXPECT_EQ(lines[9], "        [4] External torque       |N\xB7m     |       2.5");
    EXPECT_EQ(lines[10], "        ");
}

TEST_F(ResultsFileTest, TheRowListEndsAtTheFirstEmptyName) {
    Chain({5});
    Culcurate_All();
    const auto lines = Saved();
    EXPECT_EQ(lines[9].substr(0, 28), "        [4] External torque ");
    EXPECT_EQ(lines[10], "        ");
    EXPECT_EQ(lines[11], "        <Calculation Values for General Parameters>");
}

TEST_F(ResultsFileTest, AValueLongerThanItsColumnPushesTheBarAndIsNotCut) {
    Chain({1});
    Element[1].Item[2].Value = 0.000123456789;
    Element[1].Item[0].Value = 1.0 / 3;
    Culcurate_All();
    const auto lines = Saved();
    EXPECT_EQ(lines[5], "        [0] Reduction ratio       |-       |0.333333333333333");
    EXPECT_EQ(lines[7], "        [2] Input axis inertia    |kg\xB7m\xB2   |0.000123456789");
    Rows({{0.12345678901234, 1234.567891}});
    Culcurate_All();
    const auto again = Saved();
    EXPECT_TRUE(again[Find(again, kTableHead) + 2].starts_with("           1|         0|1234.567891|0.12345678901234|"));
}

TEST_F(ResultsFileTest, ACartOrPinionCartHasNoInertiaSection) {
    for (const int16_t type : {41, 42}) {
        Chain({type});
        Culcurate_All();
        const auto lines = Saved();
        const std::size_t torque = Find(lines, "    <Torque Calculation> N\xB7m");
        ASSERT_LT(torque, lines.size());
        EXPECT_EQ(lines[torque - 1], "");
        EXPECT_EQ(lines[torque - 2], "        <Calculation Values for General Parameters>");
        EXPECT_EQ(Find(lines, "    <Inertia Calculation> kg\xB7m\xB2"), lines.size());
    }
}

TEST_F(ResultsFileTest, AnOrdinaryChainHasTheInertiaSectionWithJOfTheComponents) {
    Chain({1, 11, 31});
    ChooseMotor();
    Culcurate_All();
    const auto lines = Saved();
    const std::size_t head = Find(lines, "    <Inertia Calculation> kg\xB7m\xB2");
    ASSERT_LT(head, lines.size());
    EXPECT_EQ(lines[head - 1], "");
    EXPECT_EQ(lines[head + 1], "        RatioIn=1.0");
    EXPECT_EQ(lines[head + 7], "            JL=Param(i%).inert0 * (RationIn) ^ 2 * Param(i%).inert1 * (RatioOut)^2");
    EXPECT_EQ(lines[head + 9], "        NEXT i%");
    EXPECT_EQ(lines[head + 10], "");
    double J = 0, ratio = 0;
    Chain_Inertia(1, 3, J, ratio);
    EXPECT_EQ(lines[head + 11], "        J=" + NumberText(J));
    EXPECT_EQ(lines[head + 12], "");
    EXPECT_EQ(lines[head + 13], "    <Torque Calculation> N\xB7m");
}

TEST_F(ResultsFileTest, TheTorqueFormulasAreFortyFiveFixedLines) {
    Chain({1});
    Culcurate_All();
    const auto lines = Saved();
    const std::size_t head = Find(lines, "    <Torque Calculation> N\xB7m");
    ASSERT_LT(head + 45, lines.size());
    EXPECT_EQ(lines[head + 18], "        ");
    EXPECT_EQ(lines[head + 22], "        ");
    EXPECT_EQ(lines[head + 25], "                    Tfric=ABS([10]*m_all*ratio2*G/[1])");
    EXPECT_EQ(lines[head + 40], "        ");
    EXPECT_EQ(lines[head + 44], "        END IF");
    EXPECT_EQ(lines[head + 45], "");
}

TEST_F(ResultsFileTest, APatternWithoutIntervalsGivesTheHeadAndTheRuleOnly) {
    Chain({1});
    Culcurate_All();
    const auto lines = Saved();
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines[lines.size() - 2], kTableHead);
    EXPECT_EQ(lines.back(), "    " + std::string(148, '-'));
}

TEST_F(ResultsFileTest, NoRegenerationShowsNotExistAndNoSecondLine) {
    Chain({1});
    Rows({{0.1, 1000}});
    Culcurate_All();
    const auto lines = Saved();
    EXPECT_EQ(lines.back().substr(lines.back().size() - 14), "|Not Exist R=0");
    EXPECT_EQ(lines[lines.size() - 2], "    " + std::string(148, '-'));
}

TEST_F(ResultsFileTest, ARowMarkedOverShowsNotExist) {
    Chain({1});
    Rows({{0.1, 1000}});
    Culcurate_All();
    Patarn[1].Regeneration = kOver;
    EXPECT_EQ(Lines(SaveResults()).back().substr(134), "Not Exist R=0");
}

TEST_F(ResultsFileTest, RegenerationIsWorkedOutWithTheStoredTorqueAndA314) {
    Chain({1});
    ChooseMotor();
    Rows({{0.1, 1000}, {0.2, 0}});
    Culcurate_All();
    Patarn[2].Torque = -7.5;
    Patarn[2].Regeneration = 12.5;
    const auto lines = Saved();
    EXPECT_EQ(lines[lines.size() - 2].substr(134), "Exist R=ABS((1000+0)/2*-7.5*0.2*2*3.14/60)");
    std::string result = "    ";
    for (const int width : {8, 10, 10, 15, 33, 18, 18, 10}) result += std::string(width, ' ') + "|";
    EXPECT_EQ(lines.back(), result + "     =12.5");
}

TEST_F(ResultsFileTest, AFallingSpeedThatEndsBelowZeroIsInBrackets) {
    Chain({1});
    ChooseMotor();
    Rows({{0.1, 1000}, {0.2, -500}});
    Culcurate_All();
    const auto lines = Saved();
    const PatarnRow& row = Patarn[2];
    ASSERT_GT(row.Regeneration, 0);
    EXPECT_EQ(lines[lines.size() - 2].substr(134),
              "Exist R=ABS((1000+(-500))/2*" + NumberText(row.Torque) + "*0.2*2*3.14/60)");
}

TEST_F(ResultsFileTest, TheTableShowsFreshlyComputedTorqueParts) {
    Chain({1, 11, 31});
    ChooseMotor();
    Rows({{0.1, 3000}});
    Culcurate_All();
    double T = 0, R = 0, acc = 0, ex = 0, fric = 0;
    Interval_Torque(3, 0.1, 0, 3000, SelectedJm, T, R);
    Torque_Parts(acc, ex, fric);
    const std::string row = Lines(SaveResults()).back();
    const auto cell = [](const std::string& text, std::size_t width) {
        return std::string(width - text.size(), ' ') + text + "|";
    };
    EXPECT_EQ(row, "           1|         0|      3000|            0.1|" + cell(TorqueText(acc), 33) +
                       cell(TorqueText(ex), 18) + cell(TorqueText(fric), 18) + cell(TorqueText(T), 10) +
                       "Not Exist R=0");
}

TEST_F(ResultsFileTest, AFileNameThatCannotBeOpenedLeavesNoReport) {
    Chain({1});
    Culcurate_All();
    InstallParamIni();
    const std::string bad = appDir.File("missing/Results.TXT");
    Results_Save(bad);
    EXPECT_FALSE(std::filesystem::exists(bad));
    const auto log = LogTexts(History_Path());
    ASSERT_GT(log.size(), 10u);
    EXPECT_EQ(log.front(), " 75");
    for (std::size_t i = 1; i < log.size(); ++i) EXPECT_EQ(log[i], " 52");
}
