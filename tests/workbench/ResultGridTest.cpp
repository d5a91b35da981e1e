// The results grid of the main window at the window's default size: with the
// sized example and every unit that the grid can show, every text and every
// header shows whole.
#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QTableWidget>
#include <gtest/gtest.h>

#include <filesystem>

#include "common/ui/ClippedTips.h"
#include "common/ui/FileDialog.h"
#include "core/Tables.h"
#include "tests/support/Controls.h"
#include "tests/support/WorkbenchFixture.h"
#include "units/UnitTable.h"
#include "workbench/frmMain.h"

namespace {

void ExpectWhole(const QTableWidget* grid, const std::string& what) {
    for (int c = 0; c < grid->columnCount(); ++c) {
        EXPECT_FALSE(Header_Clipped(grid->horizontalHeader(), c))
            << what << ": header " << grid->horizontalHeaderItem(c)->text().toStdString();
        for (int r = 0; r < grid->rowCount(); ++r)
            EXPECT_FALSE(Cell_Clipped(grid, grid->model()->index(r, c)))
                << what << ": " << grid->item(r, c)->text().toStdString();
    }
}

TEST_F(WorkbenchTest, AtTheDefaultSizeTheResultsGridShowsEveryTextWholeInEveryUnit) {
    const std::string example = appDir.File("horizontal-ballscrew.AP2");
    std::filesystem::copy_file(TORVANE_SOURCE_DIR "/examples/horizontal-ballscrew.AP2", example);
    frmMain w;
    w.show();
    FileDialog_Script({QString::fromStdString(example)});
    w.Action("mnuFileOpen")->trigger();
    ASSERT_EQ(MotorSelected, 1);
    ASSERT_EQ(w.size(), QSize(1180, 760));
    const auto* vsfMotor = Ctl<QTableWidget>(&w, "vsfMotor");
    for (const int16_t kind : {UnitKind::Torque, UnitKind::Inertia, UnitKind::MotorSpeed}) {
        const int16_t picked = UnitTable[kind].Sel;
        for (int16_t sel = 0; sel < 7 && !UnitTable[kind].Names[sel].empty(); ++sel) {
            UnitTable[kind].Sel = sel;
            w.Disp_Refresh();
            QApplication::processEvents();
            ExpectWhole(vsfMotor, "unit " + UnitTable[kind].Names[sel]);
        }
        UnitTable[kind].Sel = picked;
    }
}

}  // namespace
