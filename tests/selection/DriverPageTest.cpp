// The driver page without its window (selection/DriverPage): the drivers of the motor, their verdicts, Finish.
#include "selection/DriverPage.h"

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "core/Tables.h"
#include "selection/MotorPage.h"
#include "selection/mdlDataBase.h"
#include "tests/selection/CatalogueFixture.h"
#include "tests/selection/SizedDocument.h"

namespace {

constexpr double kJm = 1e-4;
constexpr double kMass = 2;

std::string Quoted(std::string text) {
    for (std::size_t at = text.find('\''); at != std::string::npos; at = text.find('\'', at + 2)) text.insert(at, 1, '\'');
    return text;
}

class DriverPageTest : public SeriesDbTest {
protected:
    void SetUp() override {
        SeriesDbTest::SetUp();
        Document_Sized();
        v = Trial(kJm, kMass);
    }
    // One motor M1 (and M'Q, M-alone) and the given drivers, all fitting M1;
    // the motor page is at M1 and the candidate taken on.
    void Open(const std::string& drivers, const std::string& model = "M1") {
        std::string fits;
        for (const char* d : {"D1", "D2", "D3", "D4", "D5"})
            fits += "INSERT INTO MotorDriverTable VALUES ('M1', '" + std::string(d) + "');";
        Build("INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1);"
              "INSERT INTO ModelMaster VALUES (10, 'G', 1);"
              "INSERT INTO MotorTable VALUES (1, 1, '" + Quoted(model) + "', 100, 3000, " + Sql(kJm) +
              ", 1.5, 4.5, 10, 2, 0, 'c1');"
              "INSERT INTO DriverTypeMaster VALUES (1, 'ok1', 'ng1', 0, 2), (2, 'ok2', 'ng2', 0, 1),"
              " (3, 'ok3', 'ng3', 2, 2), (4, 'ok4', 'ng4', 3, 3);" +
              drivers + fits);
        MotorPage_Load(motors);
        MotorPage_PickSeries(motors, 0);
        ASSERT_TRUE(MotorPage_TakeMotor(motors, page));
        DriverPage_Fill(page);
    }
    static std::string Driver(const std::string& model, const std::string& r1, const std::string& r2, int type) {
        return "INSERT INTO DriverTable VALUES ('" + model + "', " + r1 + ", " + r2 + ", " + std::to_string(type) +
               ", 'Pulse', '200', 'Three-phase');";
    }
    const GridCell& Cell(int row, int col) const { return page.vsfDrvList.Cell(row, col); }

    MotorPage motors;
    DriverPage page;
    TrialValues v{};
};

TEST_F(DriverPageTest, TheSizedPatternRegenerates) {
    EXPECT_GT(v.peak, 0);
    EXPECT_GT(v.mean, 0);
}

TEST_F(DriverPageTest, DriversOfTheMotorInModelOrder) {
    Open(Driver("D2", "1e6", "1e6", 1) + Driver("D1", "1e6", "1e6", 1));
    EXPECT_EQ(page.DriverRowCount, 2);
    EXPECT_EQ(page.Row, 2);
    EXPECT_EQ(Cell(2, 1).text, "D1");
    EXPECT_EQ(Cell(2, 0).text, "OK");
    EXPECT_TRUE(Cell(2, 0).bold);
    EXPECT_EQ(Cell(2, 4).text, "Pulse");
    EXPECT_EQ(Cell(2, 5).text, "200");
    EXPECT_EQ(Cell(2, 7).text, "ok1");
    EXPECT_EQ(Cell(0, 7).text, "External regeneration comment");
    EXPECT_EQ(Cell(1, 2).text, "J(max)");
}

TEST_F(DriverPageTest, BothLimitsBlankTakeTheOkFlagAndComment) {
    Open(Driver("D1", "NULL", "NULL", 2));
    EXPECT_EQ(Cell(2, 0).text, "OK");
    EXPECT_EQ(Cell(2, 7).text, "ok2");
    EXPECT_EQ(Cell(2, 2).text, "");
    EXPECT_EQ(Cell(2, 3).text, "");
}

TEST_F(DriverPageTest, ExceededLimitTakesTheNgFlagAndIsRed) {
    Open(Driver("D1", Sql(v.peak / 2), "NULL", 2) + Driver("D2", "1e6", Sql(v.mean / 2), 1));
    EXPECT_EQ(Cell(2, 0).text, "FAIR");
    EXPECT_EQ(Cell(2, 0).color, kColorOrange);
    EXPECT_EQ(Cell(2, 7).text, "ng2");
    EXPECT_EQ(Cell(2, 2).color, kColorRed);
    EXPECT_EQ(Cell(3, 0).text, "NG");
    EXPECT_EQ(Cell(3, 0).color, kColorRed);
    EXPECT_EQ(Cell(3, 2).color, kColorWindowText);
    EXPECT_EQ(Cell(3, 3).color, kColorRed);
}

TEST_F(DriverPageTest, OnlyRegeneration1BlankIsJudgedAgainst9999) {
    Open(Driver("D1", "NULL", "1e6", 1));
    EXPECT_EQ(Cell(2, 0).text, v.peak > 9999 ? "NG" : "OK");
    EXPECT_EQ(Cell(2, 2).text, "");
}

TEST_F(DriverPageTest, Regeneration2OfZeroNeverFailsAndIsNeverRed) {
    Open(Driver("D1", "1e6", "0", 1));
    EXPECT_EQ(Cell(2, 0).text, "OK");
    EXPECT_EQ(Cell(2, 3).text, "0");
    EXPECT_EQ(Cell(2, 3).color, kColorWindowText);
}

TEST_F(DriverPageTest, LimitEqualToTheValuePasses) {
    Open(Driver("D1", Sql(v.peak), Sql(v.mean), 1));
    EXPECT_EQ(Cell(2, 0).text, "OK");
    EXPECT_EQ(Cell(2, 2).color, kColorWindowText);
}

TEST_F(DriverPageTest, OkFlagTwoShowsRedNgAndThreeShowsNa) {
    Open(Driver("D1", "1e6", "1e6", 3) + Driver("D2", "1e6", "1e6", 4));
    EXPECT_EQ(Cell(2, 0).text, "NG");
    EXPECT_EQ(Cell(2, 0).color, kColorRed);
    EXPECT_EQ(Cell(3, 0).text, "NA");
    EXPECT_EQ(Cell(3, 0).color, kColorWindowText);
}

TEST_F(DriverPageTest, UnknownDriverTypeEndsTheFilling) {
    EXPECT_THROW(Open(Driver("D1", "1e6", "1e6", 9)), RuntimeError);
}

TEST_F(DriverPageTest, ADriverTypeOutsideSixteenBitsIsTheFailureOverflow) {
    try {
        Open("INSERT INTO DriverTable VALUES ('D1', 1e6, 1e6, 1e11, 'Pulse', '200', 'Three-phase');");
        ADD_FAILURE();
    } catch (const RuntimeError& e) {
        EXPECT_STREQ(e.what(), "Overflow");
    }
}

TEST_F(DriverPageTest, ActivationRebuildsAndPutsTheRowBackToTwo) {
    Open(Driver("D1", "1e6", "1e6", 1) + Driver("D2", "1e6", "1e6", 1));
    page.Row = 3;
    page.vsfDrvList.Cell(2, 0).text = "stale";
    DriverPage_Fill(page);
    EXPECT_EQ(page.Row, 2);
    EXPECT_EQ(Cell(2, 0).text, "OK");
    EXPECT_EQ(page.vsfDrvList.Rows(), 4);
}

TEST_F(DriverPageTest, QuoteInTheMotorModelFailsTheQuerySilently) {
    Open(Driver("D1", "1e6", "1e6", 1), "M'Q");
    EXPECT_EQ(page.DriverRowCount, 0);
    EXPECT_EQ(page.vsfDrvList.Rows(), 2);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(DriverPageTest, MotorWithoutDriversGivesAnEmptyGridAndFinishRefuses) {
    Open(Driver("D1", "1e6", "1e6", 1), "M-alone");
    EXPECT_EQ(page.vsfDrvList.Rows(), 2);
    EXPECT_FALSE(DriverPage_Finish(motors, page));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Driver is not selected.");
    EXPECT_EQ(msg.Seen()[0].title, "Driver Selection");
    EXPECT_EQ(MotorSelected, 0);
}

TEST_F(DriverPageTest, FinishStoresMotorAndDriverAndRecalculates) {
    Open(Driver("D1", "NULL", "1e6", 1) + Driver("D2", "120", "35.5", 2));
    page.Row = 3;
    page.txtMotor = "M1-OPT";  // does not change the query, but reaches the document
    ResultValues[1][4] = 77;
    ASSERT_TRUE(DriverPage_Finish(motors, page));
    EXPECT_EQ(SelectedJm, kJm);
    EXPECT_EQ(SelectedMotorMass, 2);
    EXPECT_EQ(ResultValues[1][0], 1.5);
    EXPECT_EQ(ResultValues[1][1], 4.5);
    EXPECT_EQ(ResultValues[1][2], 3000);
    EXPECT_EQ(ResultValues[1][3], kJm);
    EXPECT_EQ(ResultValues[1][4], 120);
    EXPECT_EQ(ResultValues[1][5], 35.5);
    EXPECT_EQ(ResultValues[1][6], 1.5);
    EXPECT_EQ(Element[0].Item[0].ItemText.Str(), "100");
    EXPECT_EQ(Element[0].Item[3].Value, 1.5);
    EXPECT_EQ(Element[0].Item[5].ItemText.Str(), "10");
    EXPECT_EQ(Element[0].Item[9].Value, 35.5);
    EXPECT_EQ(MotorModelText.Str(), "M1-OPT");
    EXPECT_EQ(MotorComment.Str(), "c1");
    EXPECT_EQ(DriverModelText.Str(), "D2");
    EXPECT_EQ(DriverComment.Str(), Cell(3, 7).text);
    EXPECT_EQ(MotorSelected, 1);
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_NE(ResultValues[2][0], 0);
}

TEST_F(DriverPageTest, FinishLeavesRatingsOfBlankFields) {
    Open(Driver("D1", "NULL", "NULL", 1));
    ResultValues[1][4] = 77;
    ResultValues[1][5] = 88;
    ASSERT_TRUE(DriverPage_Finish(motors, page));
    EXPECT_EQ(ResultValues[1][4], 77);
    EXPECT_EQ(ResultValues[1][5], 88);
}

}  // namespace
