// The unit dialog (frmUnit) as a user drives it: the picks shown, Defaults, Apply, OK and Cancel.
#include <QAbstractButton>
#include <QAction>
#include <QButtonGroup>
#include <QPushButton>
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "core/UnitFile.h"
#include "pattern/ui/PatarnGrid.h"
#include "tests/support/Controls.h"
#include "tests/support/WorkbenchFixture.h"
#include "workbench/frmUnit.h"

namespace {

class frmUnitTest : public WorkbenchTest {
protected:
    static frmUnit* OpenUnits(frmMain& w) {
        w.Action("mnuPerSet")->trigger();
        frmUnit* u = w.UnitWindow();
        EXPECT_TRUE(u->isVisible());
        return u;
    }

    // The option buttons of a unit category.
    static QButtonGroup* Options(const frmUnit* u, int category) { return Ctl<QButtonGroup>(u, "options", category); }
};

TEST_F(frmUnitTest, UnitDialogShowsThePicksAndApplyStartsDisabled) {
    frmMain w;
    StartWith(w, 1);
    frmUnit* u = OpenUnits(w);
    auto* cmdReNew = Ctl<QPushButton>(u, "cmdReNew");
    EXPECT_EQ(u->windowTitle(), "Unit Selections");
    for (int k = 0; k < kUnitCategories; ++k) EXPECT_EQ(Options(u, k)->checkedId(), UnitTable[k].Sel) << k;
    EXPECT_EQ(Options(u, 10)->button(0)->text(), "N\u00B7mm");
    EXPECT_FALSE(cmdReNew->isEnabled());
    Options(u, 10)->button(0)->click();
    EXPECT_TRUE(cmdReNew->isEnabled());
}

TEST_F(frmUnitTest, DefaultsThenCancelChangesNothing) {
    frmMain w;
    StartWith(w, 1);
    UnitTable[6].Sel = 1;  // rad/s; "Defaults" gives r/min
    Unit_Save();
    const std::string before = ReadFile(UnitFile_Path());
    frmUnit* u = OpenUnits(w);
    Ctl<QPushButton>(u, "cmdStartSet")->click();
    EXPECT_EQ(Options(u, 6)->checkedId(), 0);
    Ctl<QPushButton>(u, "CmdCancel")->click();
    EXPECT_FALSE(u->isVisible());
    EXPECT_EQ(UnitTable[6].Sel, 1);
    EXPECT_EQ(ReadFile(UnitFile_Path()), before);
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(frmUnitTest, DefaultsEnableApplyWhichTakesThemOn) {
    frmMain w;
    StartWith(w, 1);
    ASSERT_EQ(UnitTable[6].Sel, 1);  // a fresh installation: rad/s
    frmUnit* u = OpenUnits(w);
    auto* cmdReNew = Ctl<QPushButton>(u, "cmdReNew");
    ASSERT_FALSE(cmdReNew->isEnabled());
    Ctl<QPushButton>(u, "cmdStartSet")->click();
    EXPECT_TRUE(cmdReNew->isEnabled());
    cmdReNew->click();
    EXPECT_EQ(UnitTable[6].Sel, 0);
    EXPECT_FALSE(cmdReNew->isEnabled());
}

TEST_F(frmUnitTest, DefaultsThenOkGiveRevolutionsPerMinuteForRotationalSpeed) {
    frmMain w;
    StartWith(w, 1);
    frmUnit* u = OpenUnits(w);
    Ctl<QPushButton>(u, "cmdStartSet")->click();
    Ctl<QPushButton>(u, "cmdOK")->click();
    EXPECT_FALSE(u->isVisible());
    EXPECT_EQ(UnitTable[6].Sel, 0);
    EXPECT_EQ(ReadFile(UnitFile_Path()), "1\r\n0\r\n0\r\n1\r\n0\r\n0\r\n0\r\n1\r\n1\r\n1\r\n1\r\n");
}

TEST_F(frmUnitTest, ApplyThenCancelKeepsTheNewUnits) {
    frmMain w;
    StartWith(w, 1);
    frmUnit* u = OpenUnits(w);
    auto* cmdReNew = Ctl<QPushButton>(u, "cmdReNew");
    Options(u, 10)->button(0)->click();  // torque in N.mm
    cmdReNew->click();
    EXPECT_FALSE(cmdReNew->isEnabled());
    EXPECT_EQ(UnitTable[10].Sel, 0);
    EXPECT_TRUE(Ctl<PatarnGrid>(&w, "vsfPatarn")->horizontalHeaderItem(6)->text().endsWith("N\u00B7mm"));
    Ctl<QPushButton>(u, "CmdCancel")->click();
    EXPECT_EQ(UnitTable[10].Sel, 0);
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(frmUnitTest, OkTakesThePicksOnAndCloses) {
    frmMain w;
    StartWith(w, 1);
    frmUnit* u = OpenUnits(w);
    Options(u, 7)->button(0)->click();  // mass in g
    Ctl<QPushButton>(u, "cmdOK")->click();
    EXPECT_FALSE(u->isVisible());
    EXPECT_EQ(UnitTable[7].Sel, 0);
    EXPECT_EQ(Element[3].Item[0].ItemText.Str(), "1000");  // the 1 kg workpiece
}

}  // namespace
