// The two pages of the wizard at their default sizes over the bundled
// catalogue and the sized example: every text shows whole, or whole under
// the pointer where the page is too narrow for it.
#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QListWidget>
#include <QPushButton>
#include <gtest/gtest.h>

#include <filesystem>

#include "common/ui/ClippedTips.h"
#include "common/ui/FileDialog.h"
#include "core/Tables.h"
#include "selection/mdlDataBase.h"
#include "selection/ui/GridView.h"
#include "selection/ui/frmList1.h"
#include "selection/ui/frmList2.h"
#include "tests/selection/CatalogueFixture.h"
#include "tests/support/Controls.h"
#include "tests/support/TipAt.h"
#include "tests/support/WorkbenchFixture.h"
#include "workbench/frmMain.h"

namespace {

namespace fs = std::filesystem;

class WizardSizeTest : public WorkbenchTest {
protected:
    void SetUp() override {
        WorkbenchTest::SetUp();
        fs::copy_file(Catalogue_Bundled(), appDir.File("Series.db"));
        const std::string example = appDir.File("horizontal-ballscrew.AP2");
        fs::copy_file(TORVANE_SOURCE_DIR "/examples/horizontal-ballscrew.AP2", example);
        w.show();
        FileDialog_Script({QString::fromStdString(example)});
        w.Action("mnuFileOpen")->trigger();
    }

    void TearDown() override {
        MotorRecordset.Close();
        DriverRecordset.Close();
        SeriesConnection.Close();
        WorkbenchTest::TearDown();
    }

    // The motors of the first series and group, judged.
    frmList1* Judged() {
        w.Action("mnuMortorSelect")->trigger();
        frmList1* page = w.Wizard();
        Ctl<QListWidget>(page, "lstS")->setCurrentRow(0);
        Ctl<QListWidget>(page, "lstM")->setCurrentRow(0);
        Ctl<QPushButton>(page, "cmdJudge")->click();
        QApplication::processEvents();
        return page;
    }


    // Every cell and header shows whole, or whole under the pointer.
    static void ExpectReadable(GridView* grid) {
        QHeaderView* header = grid->horizontalHeader();
        for (int c = 0; c < grid->columnCount(); ++c) {
            const QString caption = grid->horizontalHeaderItem(c)->text();
            if (Header_Clipped(header, c)) {
                const QPoint at(header->sectionViewportPosition(c) + header->sectionSize(c) / 2, header->height() / 2);
                EXPECT_EQ(Tip_At(header->viewport(), at), caption);
            }
            for (int r = 0; r < grid->rowCount(); ++r) {
                const QModelIndex index = grid->model()->index(r, c);
                if (!Cell_Clipped(grid, index)) continue;
                grid->scrollTo(index);
                EXPECT_EQ(Tip_At(grid->viewport(), grid->visualRect(index).center()), index.data().toString())
                    << "row " << r << " col " << c;
            }
        }
    }

    frmMain w;
};

TEST_F(WizardSizeTest, TheMotorPageAtItsDefaultSizeShowsEveryTextWholeOrUnderThePointer) {
    frmList1* page = Judged();
    auto* vsfData = Ctl<GridView>(page, "vsfData");
    ASSERT_GT(vsfData->rowCount(), 3);
    ExpectReadable(vsfData);
}

TEST_F(WizardSizeTest, TheDriverPageAtItsDefaultSizeShowsTheSupplyWholeAndTheCommentWholeOrUnderThePointer) {
    frmList1* page = Judged();
    auto* vsfData = Ctl<GridView>(page, "vsfData");
    int row = -1;
    for (int r = 2; r < vsfData->rowCount() + 2; ++r)
        if (vsfData->CellText(r, 1) == "TVM-A020S3") row = r;
    ASSERT_GE(row, 2);
    vsfData->SetGridRow(row);
    Ctl<QPushButton>(page, "cmdNext")->click();
    QApplication::processEvents();
    frmList2* drivers = page->List2();
    ASSERT_NE(drivers, nullptr);
    drivers->Form_Activate();
    QApplication::processEvents();
    auto* vsfDrvList = Ctl<GridView>(drivers, "vsfDrvList");
    ASSERT_GT(vsfDrvList->rowCount(), 0);
    for (int r = 0; r < vsfDrvList->rowCount(); ++r)
        for (int c = 0; c < 7; ++c)
            EXPECT_FALSE(Cell_Clipped(vsfDrvList, vsfDrvList->model()->index(r, c)))
                << vsfDrvList->item(r, c)->text().toStdString();
    ExpectReadable(vsfDrvList);
}

}  // namespace
