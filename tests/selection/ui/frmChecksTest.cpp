// "Engineering Checks" offscreen: opened from the Tools menu over a document
// with a chosen motor, it shows the chart and the table of the checks and
// follows every edit of the main window.
#include "selection/ui/frmChecks.h"

#include <QAction>
#include <QLabel>
#include <filesystem>
#include <memory>

#include "calc/mdlCulcurate.h"
#include "common/ui/FileDialog.h"
#include "core/PatarnRows.h"
#include "selection/ChecksGrid.h"
#include "selection/ui/ChecksChartView.h"
#include "selection/ui/GridView.h"
#include "tests/selection/CatalogueFixture.h"
#include "tests/selection/SizedDocument.h"
#include "tests/support/CliRun.h"
#include "tests/support/JsonRead.h"
#include "tests/support/WorkbenchFixture.h"
#include "units/UnitTable.h"

namespace {

class frmChecksTest : public WorkbenchTest {
protected:
    void SetUp() override {
        WorkbenchTest::SetUp();
        w = std::make_unique<frmMain>();
        StartWith(*w, 1);
    }
    void TearDown() override {
        w.reset();
        WorkbenchTest::TearDown();
    }

    // M1: 1.5 and 4.5 N m flat to 3000 r/min, falling to 0.75 and 1.5 N m at
    // 5000; D1 absorbs 0.001 J and 0.001 W, so that any braking needs a resistor.
    void Catalogue(bool curves = true) {
        Catalogue_Build(appDir.Path(),
                        (curves ? Catalogue_CurveTable() + "INSERT INTO MotorCurve VALUES ('M1', 0, 1.5, 4.5),"
                                                           " ('M1', 3000, 1.5, 4.5), ('M1', 5000, 0.75, 1.5);"
                                : std::string()) +
                            "INSERT INTO DriverTable VALUES ('D1', 0.001, 0.001, 1, '', '', '');");
    }
    // The sized document with M1 and D1 taken on.
    void Chosen() {
        Document_Sized();
        MotorSelected = kMotorChosen;
        SelectedJm = 1e-4;
        MotorModelText = "M1";
        DriverModelText = "D1";
        Culcurate_All();
        w->Disp_Refresh();
    }
    frmChecks* Open() {
        w->Action("mnuChecks")->trigger();
        QApplication::processEvents();
        return w->ChecksWindow();
    }
    // The text of a cell of the checks table by grid row.
    QString Cell(int row, int col) { return Ctl<GridView>(w->ChecksWindow(), "vsfChecks")->CellText(row, col); }

    std::unique_ptr<frmMain> w;
};

TEST_F(frmChecksTest, ToolsMenuOpensTheChartAndTheTable) {
    Catalogue();
    Chosen();
    frmChecks* checks = Open();
    ASSERT_TRUE(checks->isVisible());
    EXPECT_EQ(checks->windowTitle(), "Engineering Checks");
    EXPECT_TRUE(Ctl<QLabel>(checks, "lblParts")->text().contains("curve of M1"));
    const ChecksChart& chart = Ctl<ChecksChartView>(checks, "picChart")->Chart();
    EXPECT_EQ(chart.peak.size(), 3u);
    EXPECT_EQ(chart.intervals.size(), static_cast<std::size_t>(PatternRowCount));
    EXPECT_TRUE(chart.hasMean);
    EXPECT_FALSE(chart.xTicks.empty());
    const Grid expected = Checks_Grid(checks->Checks());
    auto* table = Ctl<GridView>(checks, "vsfChecks");
    ASSERT_EQ(table->rowCount(), expected.Rows() - kFixedRows);
    for (int row = kFixedRows; row < expected.Rows(); ++row)
        for (int col = 0; col < expected.Cols(); ++col)
            EXPECT_EQ(Cell(row, col).toStdString(), expected.Cell(row, col).text) << row << ' ' << col;
    EXPECT_EQ(Cell(2, 1), "Interval 1, peak torque");
    EXPECT_EQ(Cell(2, 2), "0 to 3000");
    EXPECT_TRUE(table->CellBold(2, 0));
    EXPECT_FALSE(Cell(2, 4).isEmpty());
}

TEST_F(frmChecksTest, AnEditOfThePatternIsFollowed) {
    Catalogue();
    Chosen();
    Open();
    EXPECT_EQ(Cell(3, 2), "3000 to 3000");
    Type(*w, 3, 3, "6000");  // the second row now ends above the top speed
    EXPECT_EQ(Cell(3, 2), "3000 to 6000");
    EXPECT_EQ(Cell(3, 0), "NG");
    EXPECT_TRUE(Cell(3, 7).startsWith("above the top speed"));
    EXPECT_EQ(Ctl<GridView>(w->ChecksWindow(), "vsfChecks")->CellColor(3, 0), QColor(255, 0, 0));
}

TEST_F(frmChecksTest, AChangeOfUnitsIsFollowed) {
    Catalogue();
    Chosen();
    Open();
    const QString newtonMetres = Cell(2, 3);
    UnitTable[UnitKind::Torque].Sel = 0;  // N mm
    w->Disp_Refresh();
    EXPECT_EQ(Cell(2, 3).toDouble(), newtonMetres.toDouble() * 1000);
    EXPECT_EQ(Cell(2, 5), QString::fromUtf8("N\u00b7mm"));
    EXPECT_TRUE(Ctl<ChecksChartView>(w->ChecksWindow(), "picChart")->Chart().yTitle.ends_with("[N\u00b7mm]"));
}

TEST_F(frmChecksTest, ACatalogueWithoutCurvesIsSaidNotPassed) {
    Catalogue(false);
    Chosen();
    Open();
    EXPECT_EQ(Cell(2, 0), "NA");
    EXPECT_EQ(Cell(2, 7), "the catalogue has no speed-torque curves");
    EXPECT_TRUE(Ctl<ChecksChartView>(w->ChecksWindow(), "picChart")->Chart().peak.empty());
}

TEST_F(frmChecksTest, WithoutAMotorTheWindowSaysSo) {
    Catalogue();
    Document_Sized();
    w->Disp_Refresh();
    Open();
    EXPECT_TRUE(Ctl<QLabel>(w->ChecksWindow(), "lblParts")->text().startsWith("No motor chosen"));
    EXPECT_EQ(Cell(2, 7), "no motor chosen");
}

TEST_F(frmChecksTest, AHiddenWindowComputesNothing) {
    Catalogue();
    Chosen();
    Open();
    w->ChecksWindow()->close();
    Type(*w, 3, 3, "6000");
    EXPECT_EQ(Cell(3, 2), "3000 to 3000");
    Open();
    EXPECT_EQ(Cell(3, 2), "3000 to 6000");
}

// Each example application opened in the program shows its motor's curves
// with every operating point, and the command line prints the same table.
TEST_F(frmChecksTest, EveryExampleShowsItsCurvesAndTheFiguresOfTheCommandLine) {
    std::filesystem::copy_file(Catalogue_Bundled(), appDir.File("Series.db"));
    Open();
    int examples = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TORVANE_SOURCE_DIR "/examples")) {
        if (entry.path().extension() != ".AP2") continue;
        ++examples;
        const std::string path = entry.path().string();
        DirtyFlag = 0;
        FileDialog_Script({QString::fromStdString(path)});
        w->Action("mnuFileOpen")->trigger();
        ASSERT_EQ(MotorSelected, kMotorChosen) << path;
        const ChecksChart& chart = Ctl<ChecksChartView>(w->ChecksWindow(), "picChart")->Chart();
        EXPECT_EQ(chart.peak.size(), 4u) << path;
        EXPECT_EQ(chart.intervals.size(), static_cast<std::size_t>(Patarn_CountRows(Patarn))) << path;
        EXPECT_TRUE(chart.hasMean) << path;

        const CliRun r = RunCli(appDir, "checks " + Quote(path) + " --json");
        ASSERT_EQ(r.code, 0) << r.err;
        Json doc;
        ASSERT_TRUE(Json_Parse(r.out, doc)) << r.out;
        const Json& rows = doc["table"]["rows"];
        auto* table = Ctl<GridView>(w->ChecksWindow(), "vsfChecks");
        ASSERT_EQ(rows.items.size(), static_cast<std::size_t>(table->rowCount())) << path;
        for (int row = 0; row < table->rowCount(); ++row)
            for (int col = 0; col < kChecksCols; ++col)
                EXPECT_EQ(rows[row][col]["text"].text, Cell(row + kFixedRows, col).toStdString())
                    << path << ' ' << row << ' ' << col;
    }
    EXPECT_EQ(examples, 6);
}

}  // namespace
