// The motor page without its window (selection/MotorPage): series, groups, motors, the judgement and Next.
#include "selection/MotorPage.h"

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "core/Tables.h"
#include "selection/DriverPage.h"
#include "selection/mdlDataBase.h"
#include "tests/selection/CatalogueFixture.h"
#include "tests/selection/SizedDocument.h"

namespace {

constexpr double kJm = 1e-4;
constexpr double kMass = 2;

std::string Motor(const std::string& model, double capacity, double rated, double maximum, double speed,
                  double inertia, double ratio, const std::string& brake = "NULL", const std::string& mass = "2") {
    return "INSERT INTO MotorTable VALUES (1, 1, '" + model + "', " + Sql(capacity) + ", " + Sql(speed) + ", " +
           Sql(inertia) + ", " + Sql(rated) + ", " + Sql(maximum) + ", " + Sql(ratio) + ", " + mass + ", " + brake +
           ", 'about " + model + "');\n";
}

class MotorPageTest : public SeriesDbTest {
protected:
    void SetUp() override {
        SeriesDbTest::SetUp();
        Document_Sized();
        v = Trial(kJm, kMass);
    }
    // A motor that keeps every limit by a factor of two, with its own
    // changes of the rated torque and the allowable ratio.
    std::string Kept(const std::string& model, double capacity, double rated = 0, double ratio = 1000) {
        return Motor(model, capacity, rated != 0 ? rated : 2 * std::max(v.T1, v.T3), 2 * v.T2, 2 * v.N, kJm, ratio);
    }
    void Open(const std::string& motors) {
        Build("INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1);"
              "INSERT INTO ModelMaster VALUES (10, 'G', 1), (10, 'Empty', 2);" +
              motors);
        MotorPage_Load(page);
        MotorPage_PickSeries(page, 0);
    }
    std::string Verdict(int row) const { return page.vsfData.Cell(row, 0).text; }

    MotorPage page;
    DriverPage next;
    TrialValues v{};
};

TEST_F(MotorPageTest, MissingCatalogueGivesItsMessageAndEmptyLists) {
    MotorPage_Load(page);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Series.db File was not found.");
    EXPECT_TRUE(page.lstS.empty());
    EXPECT_TRUE(page.lstM.empty());
    EXPECT_EQ(page.vsfData.Rows(), 2);
}

TEST_F(MotorPageTest, SeriesPickFillsGroupsAndTheFirstGroupsMotors) {
    Open(Kept("M2", 200) + Kept("M1", 100));
    EXPECT_EQ(page.lstS, std::vector<std::string>{"S"});
    EXPECT_EQ(page.lstM, (std::vector<std::string>{"G", "Empty"}));
    EXPECT_EQ(MotorRowCount, 2);
    ASSERT_EQ(page.vsfData.Rows(), 4);
    EXPECT_EQ(page.vsfData.Cell(2, 1).text, "M1");
    EXPECT_EQ(page.vsfData.Cell(2, 2).text, "100");
    EXPECT_EQ(page.vsfData.Cell(2, 0).text, "");
    EXPECT_EQ(page.vsfData.Cell(0, 1).text, "Model number");
    EXPECT_EQ(page.vsfData.Cell(1, 1).text, "<Units>");
    EXPECT_EQ(page.lblComment, "about M1");
    MotorPage_MoveToRow(page, 3);
    EXPECT_EQ(page.lblComment, "about M2");
}

TEST_F(MotorPageTest, GroupWithoutMotorsHasOnlyHeadersAndNextRefuses) {
    Open(Kept("M1", 100));
    MotorPage_PickModel(page, 1);
    EXPECT_EQ(page.vsfData.Rows(), 2);
    EXPECT_EQ(MotorRowCount, 0);
    EXPECT_FALSE(MotorPage_TakeMotor(page, next));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Motor is not selected.");
    EXPECT_EQ(msg.Seen()[0].title, "Motor Selection");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
}

TEST_F(MotorPageTest, BlankCapacitySortsFirstAndLeavesItsCellEmpty) {
    Open(Kept("M1", 100) +
         "INSERT INTO MotorTable (SeriesID, ModelFlg, MotorModel) VALUES (1, 1, 'Blank');");
    EXPECT_EQ(page.vsfData.Cell(2, 1).text, "Blank");
    for (int col = 2; col < kMotorCols; ++col) EXPECT_EQ(page.vsfData.Cell(2, col).text, "") << col;
}

TEST_F(MotorPageTest, JudgementGivesOkFairNgAndDash) {
    Open(Kept("A-ok", 100) + Kept("B-fair", 200, v.T1 / 0.9) + Kept("C-ng", 300, v.T1 / 1.1) +
         Motor("D-none", 400, 0, 0, 0, 0, 0));
    EXPECT_TRUE(MotorPage_Judge(page));
    EXPECT_EQ(Verdict(2), "OK");
    EXPECT_EQ(Verdict(3), "FAIR");
    EXPECT_EQ(page.vsfData.Cell(3, 0).color, kColorOrange);
    EXPECT_EQ(Verdict(4), "NG");
    EXPECT_EQ(page.vsfData.Cell(4, 5).color, kColorRed);
    EXPECT_EQ(Verdict(5), "-");
}

TEST_F(MotorPageTest, OnlyRatedTorqueZeroIsJudgedOnTheRest) {
    Open(Motor("M1", 100, 0, 2 * v.T2, 2 * v.N, kJm, 1000) + Motor("M2", 200, 0, 2 * v.T2, v.N / 2, kJm, 1000));
    MotorPage_Judge(page);
    EXPECT_EQ(Verdict(2), "OK");
    EXPECT_EQ(Verdict(3), "NG");
    EXPECT_EQ(page.vsfData.Cell(3, 3).color, kColorRed);
}

TEST_F(MotorPageTest, JudgingTwiceGivesTheSame) {
    Open(Kept("A", 100) + Kept("B", 200, v.T1 / 0.9) + Kept("C", 300, 0, 0.5 * v.JL / kJm));
    MotorPage_Judge(page);
    const std::vector<std::string> first = {Verdict(2), Verdict(3), Verdict(4)};
    MotorPage_Judge(page);
    EXPECT_EQ((std::vector<std::string>{Verdict(2), Verdict(3), Verdict(4)}), first);
    EXPECT_EQ(first, (std::vector<std::string>{"OK", "FAIR", "NG"}));
}

TEST_F(MotorPageTest, JudgementLeavesTheDocumentAlone) {
    Open(Kept("A", 100));
    const PatarnTable before = Patarn;
    const auto results = ResultValues;
    MotorPage_Judge(page);
    for (int i = 0; i <= kPatarnRows; ++i) EXPECT_EQ(Patarn[i].Torque, before[i].Torque);
    EXPECT_EQ(ResultValues, results);
}

TEST_F(MotorPageTest, LoadInertiaThatCannotBeComputedCountsAsZero) {
    ElementCount = 1;  // the motor alone: no load inertia
    Open(Motor("M1", 100, 1000, 1000, 1e5, kJm, 1e-9));
    MotorPage_Judge(page);
    EXPECT_EQ(Verdict(2), "OK");
}

TEST_F(MotorPageTest, NoPatternGivesNa) {
    Open(Kept("A", 100) + Kept("B", 200));
    PatternRowCount = 0;
    EXPECT_FALSE(MotorPage_Judge(page));  // the judgement ends with the marks
    EXPECT_EQ(Verdict(2), "NA");
    EXPECT_EQ(Verdict(3), "NA");
    EXPECT_TRUE(page.vsfData.Cell(3, 0).bold);
}

TEST_F(MotorPageTest, NoPickJudgesNothing) {
    Build("INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1);");
    MotorPage_Load(page);
    EXPECT_FALSE(MotorPage_Judge(page));
    EXPECT_EQ(page.vsfData.Rows(), 2);
}

TEST_F(MotorPageTest, NoRotorInertiaWithAllowableRatioEndsTheJudgement) {
    Open(Motor("M1", 100, 1, 1, 1, 0, 10));
    EXPECT_THROW(MotorPage_Judge(page), RuntimeError);
}

TEST_F(MotorPageTest, NextTakesTheCandidate) {
    Open(Kept("A", 100) + Motor("B-brake", 200, 1, 3, 3000, 2e-4, 10, "5e-5", "3.5"));
    MotorPage_MoveToRow(page, 3);
    ASSERT_TRUE(MotorPage_TakeMotor(page, next));
    EXPECT_EQ(SelectedMotorModel, "B-brake");
    EXPECT_DOUBLE_EQ(CandidateJm, 2.5e-4);
    EXPECT_DOUBLE_EQ(CandidateJb, 5e-5);
    EXPECT_DOUBLE_EQ(CandidateMotorMass, 3.5);
    EXPECT_EQ(next.txtMotor, "B-brake");
    EXPECT_EQ(next.lblMotor, "B-brake");
}

TEST_F(MotorPageTest, NextWithBlankBrakeKeepsTheOldInertia) {
    Open(Kept("A", 100));
    CandidateJm = 7;
    CandidateJb = 8;
    ASSERT_TRUE(MotorPage_TakeMotor(page, next));
    EXPECT_EQ(CandidateJm, 7);
    EXPECT_EQ(CandidateJb, 8);
    EXPECT_EQ(CandidateMotorMass, 2);
}

TEST_F(MotorPageTest, NextRefusesRowsOutsideTheMotors) {
    Open(Kept("A", 100));
    MotorPage_MoveToRow(page, 1);
    EXPECT_FALSE(MotorPage_TakeMotor(page, next));
    MotorPage_MoveToRow(page, 3);
    EXPECT_FALSE(MotorPage_TakeMotor(page, next));
    EXPECT_EQ(msg.Seen().size(), 2u);
}

TEST_F(MotorPageTest, NgMotorMayBeTakenOn) {
    Open(Kept("C", 300, v.T1 / 1.1));
    MotorPage_Judge(page);
    EXPECT_EQ(Verdict(2), "NG");
    EXPECT_TRUE(MotorPage_TakeMotor(page, next));
}

TEST_F(MotorPageTest, TwelveGroupsEndTheFillingWithAFailure) {
    std::string rows = "INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1);";
    for (int i = 1; i <= 12; ++i) rows += "INSERT INTO ModelMaster VALUES (10, 'G" + std::to_string(i) + "', 1);";
    Build(rows);
    MotorPage_Load(page);
    EXPECT_THROW(MotorPage_PickSeries(page, 0), RuntimeError);
}

}  // namespace
