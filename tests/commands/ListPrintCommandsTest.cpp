// The wizard's series list command: when it may print, and the sheet it takes from the judged motor page.
#include <gtest/gtest.h>

#include <filesystem>

#include "base/Cp1252.h"
#include "commands/ListPrintCommands.h"
#include "reports/RecordingReport.h"
#include "selection/MotorPage.h"
#include "tests/selection/CatalogueFixture.h"
#include "tests/selection/SizedDocument.h"

namespace {

class ListPrintCommandsTest : public SeriesDbTest {
protected:
    void SetUp() override {
        SeriesDbTest::SetUp();
        std::filesystem::copy_file(Catalogue_Bundled(), appDir.File("Series.db"));
        Document_Sized();
    }
    void TearDown() override {
        MotorPage_Unload();
        SeriesDbTest::TearDown();
    }
    MotorPage page;
};

}  // namespace

TEST_F(ListPrintCommandsTest, NothingPrintsWithoutASeriesAndAGroup) {
    EXPECT_FALSE(ListPrint_MayOpen(page));
    MotorPage_Load(page);
    ASSERT_FALSE(page.lstS.empty());
    EXPECT_FALSE(ListPrint_MayOpen(page));
    page.lstSIndex = 0;
    page.lstMIndex = -1;
    EXPECT_FALSE(ListPrint_MayOpen(page));
    page.lstSIndex = -1;
    page.lstMIndex = 0;
    EXPECT_FALSE(ListPrint_MayOpen(page));
    MotorPage_PickSeries(page, 0);
    EXPECT_TRUE(ListPrint_MayOpen(page));
}

TEST_F(ListPrintCommandsTest, TheSheetIsTheJudgedGridInTheCodePage) {
    MotorPage_Load(page);
    MotorPage_PickSeries(page, 0);
    ASSERT_TRUE(MotorPage_Judge(page));
    ASSERT_GT(MotorRowCount, 0);
    const ListSheet sheet = ListPrint_Sheet(page);
    EXPECT_EQ(sheet.series, Utf8_ToCp1252(page.lstS[0]));
    EXPECT_EQ(sheet.model, Utf8_ToCp1252(page.lstM[0]));
    ASSERT_EQ(sheet.motors.size(), static_cast<std::size_t>(MotorRowCount));
    for (int col = 0; col < kListColumns; ++col) EXPECT_EQ(sheet.units[col], Utf8_ToCp1252(page.vsfData.Cell(1, col).text));
    for (int m = 0; m < MotorRowCount; ++m)
        for (int col = 0; col < kListColumns; ++col)
            EXPECT_EQ(sheet.motors[m][col], Utf8_ToCp1252(page.vsfData.Cell(kFixedRows + m, col).text)) << m << " " << col;
    // The verdicts are there to print.
    for (const auto& motor : sheet.motors) EXPECT_FALSE(motor[0].empty());
}

TEST_F(ListPrintCommandsTest, TheSheetPrintsOneRowGroupPerMotor) {
    MotorPage_Load(page);
    MotorPage_PickSeries(page, 0);
    ASSERT_TRUE(MotorPage_Judge(page));
    const ListSheet sheet = ListPrint_Sheet(page);
    RecordingReportLibrary wr;
    ASSERT_EQ(List_Print(wr, sheet, "Office", "Nov.14,2026"), ListPrinted::Done);
    int typed = 0;
    for (const ReportCall& c : wr.Calls())
        if (c.op == "wrSetText" && c.object.size() > 5 && c.object.substr(c.object.size() - 5) == ".Type" &&
            c.object.rfind("SelectMtr", 0) == 0)
            ++typed;
    EXPECT_EQ(typed, MotorRowCount);
}

TEST_F(ListPrintCommandsTest, StatusLineHasTheListDialogsOwnWords) {
    const std::string defaultPrefix = "\x92\xCA\x8F\xED\x8E\x67\x82\xA4\xCC\xDF\xD8\xDD\xC0\x3A";
    ASSERT_EQ(defaultPrefix.size(), 14u);
    EXPECT_EQ(ListPrint_StatusLine("Office", "Office", 0), defaultPrefix + "on-line\x81]Documents in queue:0");
    EXPECT_EQ(ListPrint_StatusLine("Office", "Office", 99), defaultPrefix + "on-line\x81]Documents in queue:99");
    EXPECT_EQ(ListPrint_StatusLine("Lab", "Office", 3), "Lab:on-line\x81]Documents in queue:3");
    EXPECT_EQ(ListPrint_StatusLine("Lab", "Office", -1), "Lab:Attention required: Cannot access document to be printed.");
    EXPECT_EQ(ListPrint_StatusLine("Office", "Office", 100),
              defaultPrefix + "Attention required: Cannot access document to be printed.");
    EXPECT_EQ(ListPrint_StatusLine("Lab", "", 0), "");
}
