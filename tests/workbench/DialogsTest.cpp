// The unit dialog (frmUnit), the administrator dialog (frmUser) and the About box driven as a user drives them.
#include <QAbstractButton>
#include <QAction>
#include <QButtonGroup>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "core/UnitFile.h"
#include "persist/mdlFile.h"
#include "tests/support/WorkbenchFixture.h"
#include "workbench/frmAbout.h"
#include "workbench/frmUnit.h"
#include "workbench/frmUser.h"

namespace {

class DialogsTest : public WorkbenchTest {
protected:
    frmUnit* OpenUnits(frmMain& w) {
        w.Action("mnuPerSet")->trigger();
        frmUnit* u = w.UnitWindow();
        EXPECT_TRUE(u->isVisible());
        return u;
    }

    static void Activate(QWidget* window) {
        window->show();
        QApplication::processEvents();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    }
};

}  // namespace

TEST_F(DialogsTest, UnitDialogShowsThePicksAndApplyStartsDisabled) {
    frmMain w;
    StartWith(w, 1);
    frmUnit* u = OpenUnits(w);
    EXPECT_EQ(u->windowTitle(), "Unit Selections");
    for (int k = 0; k < kUnitCategories; ++k) EXPECT_EQ(u->options[k]->checkedId(), UnitTable[k].Sel) << k;
    EXPECT_EQ(u->options[10]->button(0)->text(), "N\u00B7mm");
    EXPECT_FALSE(u->cmdReNew->isEnabled());
    u->options[10]->button(0)->click();
    EXPECT_TRUE(u->cmdReNew->isEnabled());
}

TEST_F(DialogsTest, DefaultsThenCancelChangesNothing) {
    frmMain w;
    StartWith(w, 1);
    UnitTable[6].Sel = 1;  // rad/s; "Defaults" gives r/min
    Unit_Save();
    const std::string before = ReadFile(UnitFile_Path());
    frmUnit* u = OpenUnits(w);
    u->cmdStartSet->click();
    EXPECT_EQ(u->options[6]->checkedId(), 0);
    u->CmdCancel->click();
    EXPECT_FALSE(u->isVisible());
    EXPECT_EQ(UnitTable[6].Sel, 1);
    EXPECT_EQ(ReadFile(UnitFile_Path()), before);
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(DialogsTest, DefaultsEnableApplyWhichTakesThemOn) {
    frmMain w;
    StartWith(w, 1);
    ASSERT_EQ(UnitTable[6].Sel, 1);  // a fresh installation: rad/s
    frmUnit* u = OpenUnits(w);
    ASSERT_FALSE(u->cmdReNew->isEnabled());
    u->cmdStartSet->click();
    EXPECT_TRUE(u->cmdReNew->isEnabled());
    u->cmdReNew->click();
    EXPECT_EQ(UnitTable[6].Sel, 0);
    EXPECT_FALSE(u->cmdReNew->isEnabled());
}

TEST_F(DialogsTest, DefaultsThenOkGiveRevolutionsPerMinuteForRotationalSpeed) {
    frmMain w;
    StartWith(w, 1);
    frmUnit* u = OpenUnits(w);
    u->cmdStartSet->click();
    u->cmdOK->click();
    EXPECT_FALSE(u->isVisible());
    EXPECT_EQ(UnitTable[6].Sel, 0);
    EXPECT_EQ(ReadFile(UnitFile_Path()), "1\r\n0\r\n0\r\n1\r\n0\r\n0\r\n0\r\n1\r\n1\r\n1\r\n1\r\n");
}

TEST_F(DialogsTest, ApplyThenCancelKeepsTheNewUnits) {
    frmMain w;
    StartWith(w, 1);
    frmUnit* u = OpenUnits(w);
    u->options[10]->button(0)->click();  // torque in N.mm
    u->cmdReNew->click();
    EXPECT_FALSE(u->cmdReNew->isEnabled());
    EXPECT_EQ(UnitTable[10].Sel, 0);
    EXPECT_TRUE(w.vsfPatarn->horizontalHeaderItem(6)->text().endsWith("N\u00B7mm"));
    u->CmdCancel->click();
    EXPECT_EQ(UnitTable[10].Sel, 0);
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(DialogsTest, OkTakesThePicksOnAndCloses) {
    frmMain w;
    StartWith(w, 1);
    frmUnit* u = OpenUnits(w);
    u->options[7]->button(0)->click();  // mass in g
    u->cmdOK->click();
    EXPECT_FALSE(u->isVisible());
    EXPECT_EQ(UnitTable[7].Sel, 0);
    EXPECT_EQ(Element[3].Item[0].ItemText.Str(), "1000");  // the 1 kg workpiece
}

TEST_F(DialogsTest, EnterInTheMailBoxMovesToOkWithoutPressingIt) {
    frmUser user;
    Activate(&user);
    user.boxes[6]->setFocus();
    QTest::keyClick(user.boxes[6], Qt::Key_Return);
    EXPECT_TRUE(user.cmdOK->hasFocus());
    EXPECT_TRUE(user.isVisible());
    EXPECT_EQ(ReadFile(AppPath + "/MtrUser.dat"), "");
}

TEST_F(DialogsTest, AFurtherEnterOnOkPressesIt) {
    frmUser user;
    Activate(&user);
    user.boxes[0]->setText("someone");
    user.boxes[6]->setFocus();
    QTest::keyClick(user.boxes[6], Qt::Key_Return);
    ASSERT_TRUE(user.cmdOK->hasFocus());
    QTest::keyClick(user.cmdOK, Qt::Key_Return);
    EXPECT_FALSE(user.isVisible());
    EXPECT_EQ(ReadFile(AppPath + "/MtrUser.dat"), "\"someone\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n");
}

TEST_F(DialogsTest, EnterWalksTheBoxesInOrder) {
    frmUser user;
    Activate(&user);
    user.boxes[0]->setFocus();
    for (int i = 1; i < kAdminLines; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), user.boxes[i]) << i;
    }
}

TEST_F(DialogsTest, OkWritesTheSevenQuotedLines) {
    frmUser user;
    for (int i = 0; i < kAdminLines; ++i) user.boxes[i]->setText(QString("t%1").arg(i));
    user.boxes[1]->setText("M\u00FCller");
    user.cmdOK->click();
    EXPECT_EQ(ReadFile(AppPath + "/MtrUser.dat"),
              "\"t0\"\r\n\"M\xFCller\"\r\n\"t2\"\r\n\"t3\"\r\n\"t4\"\r\n\"t5\"\r\n\"t6\"\r\n");
    EXPECT_EQ(PRINTINFO.Corporation.Str(), "M\xFCller");  // no file yet: the document takes them too
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(DialogsTest, CancelWritesNothing) {
    frmUser user;
    user.boxes[0]->setText("someone");
    user.CmdCancel->click();
    EXPECT_EQ(ReadFile(AppPath + "/MtrUser.dat"), "");
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(DialogsTest, AboutShowsTheTitleAndTheVersion) {
    frmAbout about;
    EXPECT_EQ(about.windowTitle(), "About thie Program");
    EXPECT_EQ(about.lblTitle->text(), "Torvane");
    EXPECT_EQ(about.lblVersion->text().toStdString(), File_VersionText());
    EXPECT_TRUE(about.lblVersion->text().startsWith("Ver."));
}
