// The motor page of the wizard (frmList1) as a user drives it: series and models picked, motors judged, "Next >".
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QToolBar>
#include <gtest/gtest.h>

#include "base/MsgBox.h"
#include "core/Tables.h"
#include "tests/support/Controls.h"
#include "tests/support/WizardFixture.h"

namespace {

class frmList1Test : public WizardTest {};

TEST_F(frmList1Test, WithoutACompletePatternRowTheMenuSaysSoAndNoWizardOpens) {
    PatternRowCount = 0;
    Build();
    EXPECT_EQ(Open(), nullptr);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Motor cannot be selected because operating pattern is not input.");
}

TEST_F(frmList1Test, TheMenuOpensTheMotorPageBesideTheMainWindow) {
    Build();
    ASSERT_TRUE(w->Action("mnuMortorSelect")->isEnabled());
    frmList1* page = Open();
    ASSERT_NE(page, nullptr);
    auto* lstS = Ctl<QListWidget>(page, "lstS");
    auto* vsfData = Ctl<GridView>(page, "vsfData");
    EXPECT_TRUE(page->isVisible());
    EXPECT_FALSE(page->isModal());
    EXPECT_TRUE(w->isEnabled());
    EXPECT_EQ(page->windowTitle(), "Motor Selection");
    EXPECT_EQ(page->WizardOpening, 1);
    ASSERT_EQ(lstS->count(), 2);
    EXPECT_EQ(lstS->item(0)->text(), "S");
    EXPECT_EQ(lstS->currentRow(), -1);
    EXPECT_EQ(Ctl<QListWidget>(page, "lstM")->count(), 0);
    EXPECT_EQ(vsfData->rowCount(), 0);
    EXPECT_EQ(vsfData->CellText(0, 1), "Model number");
    EXPECT_EQ(vsfData->CellText(1, 1), "<Units>");
    EXPECT_EQ(vsfData->CellText(1, 3), "r/min");
    EXPECT_EQ(vsfData->CellText(0, 9), "Brake inertia");
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(frmList1Test, PrintIsEnabledAndDoesNothingWhileNoSeriesIsPicked) {
    Build();
    frmList1* page = Open();
    auto* print = Ctl<QPushButton>(page, "CmdPrint");
    EXPECT_TRUE(print->isEnabled());
    print->click();
    QApplication::processEvents();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(frmList1Test, TheToolbarKeyMotorOpensTheWizardAndASecondCallBringsTheSameOneForward) {
    Build();
    QAction* key = Ctl<QToolBar>(w.get(), "tbToolBar")->findChild<QAction*>("tbMotor");
    ASSERT_NE(key, nullptr);
    EXPECT_TRUE(key->isEnabled());
    key->trigger();
    frmList1* page = w->Wizard();
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(Open(), page);
}

TEST_F(frmList1Test, TheHourglassShowsWhileThePageLoadsAndGoesAfterwards) {
    Qt::CursorShape during = Qt::ArrowCursor;
    MsgHandler scripted = MsgBox_SetHandler([&during](const MsgRequest&) {
        if (const QCursor* c = QApplication::overrideCursor()) during = c->shape();
        return MsgAnswer::OK;
    });
    Open();  // no catalogue: its message comes during the load
    MsgBox_SetHandler(scripted);
    EXPECT_EQ(during, Qt::WaitCursor);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(frmList1Test, AMissingCatalogueIsToldAndThePageStaysWithEmptyLists) {
    frmList1* page = Open();
    ASSERT_NE(page, nullptr);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Series.db File was not found.");
    EXPECT_EQ(msg.Seen()[0].title, "Motor Selection");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
    EXPECT_TRUE(page->isVisible());
    EXPECT_EQ(Ctl<QListWidget>(page, "lstS")->count(), 0);
    Ctl<QPushButton>(page, "cmdJudge")->click();
    Ctl<QPushButton>(page, "cmdNext")->click();
    EXPECT_EQ(msg.Seen().back().text, "Motor is not selected.");
}

TEST_F(frmList1Test, AFailedGroupQueryIsToldWithoutTheBlank) {
    Catalogue_Build(appDir.Path(), "INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1); DROP TABLE ModelMaster;");
    frmList1* page = Open();
    Ctl<QListWidget>(page, "lstS")->setCurrentRow(0);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Series.dbFile was not found.");
    EXPECT_EQ(msg.Seen()[0].title, "Motor Selection");
    EXPECT_EQ(Ctl<QListWidget>(page, "lstM")->count(), 0);
}

TEST_F(frmList1Test, PickingASeriesShowsItsGroupsAndTheMotorsOfTheFirst) {
    Build();
    frmList1* page = Open();
    auto* lstM = Ctl<QListWidget>(page, "lstM");
    auto* vsfData = Ctl<GridView>(page, "vsfData");
    Ctl<QListWidget>(page, "lstS")->setCurrentRow(0);
    ASSERT_EQ(lstM->count(), 2);
    EXPECT_EQ(lstM->currentRow(), 0);
    EXPECT_EQ(lstM->item(1)->text(), "Empty");
    ASSERT_EQ(vsfData->rowCount(), 5);
    EXPECT_EQ(vsfData->CellText(2, 1), "OK1");
    EXPECT_EQ(vsfData->CellText(2, 2), "100");
    EXPECT_EQ(vsfData->CellText(6, 1), "DASH");
    EXPECT_EQ(vsfData->CellText(2, 0), "");  // nothing judged yet
    EXPECT_EQ(vsfData->item(0, 1)->textAlignment(), int(Qt::AlignLeft | Qt::AlignVCenter));
    EXPECT_EQ(vsfData->item(0, 2)->textAlignment(), int(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_EQ(MotorRowCount, 5);
}

TEST_F(frmList1Test, TheFocusComingIntoTheSeriesListPicksNothing) {
    Build();
    frmList1* page = Open();
    page->activateWindow();
    Ctl<QListWidget>(page, "lstS")->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    EXPECT_EQ(Ctl<QListWidget>(page, "lstM")->count(), 0);
    EXPECT_EQ(Ctl<GridView>(page, "vsfData")->rowCount(), 0);
}

TEST_F(frmList1Test, TheCommentFollowsTheCurrentRow) {
    Build();
    frmList1* page = Open();
    auto* lblComment = Ctl<QLabel>(page, "lblComment");
    auto* vsfData = Ctl<GridView>(page, "vsfData");
    Ctl<QListWidget>(page, "lstS")->setCurrentRow(0);
    EXPECT_EQ(lblComment->text(), "about OK1");
    vsfData->SetGridRow(4);
    EXPECT_EQ(lblComment->text(), "about NG1");
    QTest::mouseClick(vsfData->viewport(), Qt::LeftButton, {},
                      vsfData->visualItemRect(vsfData->item(1, 1)).center());
    EXPECT_EQ(lblComment->text(), "about FAIR1");
}

TEST_F(frmList1Test, JudgementColoursTheVerdictsAndTheCellsAsDecided) {
    frmList1* page = Judged();
    const GridView* g = Ctl<GridView>(page, "vsfData");
    ExpectCell(g, 2, 0, "OK", true, Text());
    ExpectCell(g, 2, 5, g->CellText(2, 5), false, Text());
    ExpectCell(g, 3, 0, "FAIR", true, kOrange);
    ExpectCell(g, 3, 6, g->CellText(3, 6), true, kOrange);
    ExpectCell(g, 4, 0, "NG", true, kRed);
    ExpectCell(g, 4, 3, g->CellText(4, 3), true, kRed);
    ExpectCell(g, 5, 0, "NG", true, kRed);  // the NG of the rated torque hides the FAIR of the maximum
    ExpectCell(g, 5, 5, g->CellText(5, 5), true, kRed);
    ExpectCell(g, 5, 6, g->CellText(5, 6), true, kOrange);
    ExpectCell(g, 6, 0, "-", true, Text());  // no datum at all is not OK
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(frmList1Test, JudgingTwiceShowsTheSameAndKeepsTheCurrentRow) {
    frmList1* page = Judged();
    auto* vsfData = Ctl<GridView>(page, "vsfData");
    vsfData->SetGridRow(5);
    QStringList first;
    for (int row = 2; row <= 6; ++row) first << vsfData->CellText(row, 0);
    Ctl<QPushButton>(page, "cmdJudge")->click();
    QStringList second;
    for (int row = 2; row <= 6; ++row) second << vsfData->CellText(row, 0);
    EXPECT_EQ(first, second);
    EXPECT_EQ(vsfData->GridRow(), 5);
    EXPECT_EQ(Patarn[1].Speed, 3000);  // the document's pattern is not touched
}

TEST_F(frmList1Test, AMotorWithoutRotorInertiaButWithARatioIsToldAndThePageStaysUsable) {
    Catalogue_Build(appDir.Path(), "INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1);"
                                   "INSERT INTO ModelMaster VALUES (10, 'G', 1);" +
                                       Motor("GOOD", 100, 10, 30, 6000, kJm, 1e6) +
                                       Motor("BROKEN", 200, 10, 30, 6000, 0, 10) +
                                       Motor("LATER", 400, 10, 30, 6000, kJm, 1e6));
    frmList1* page = Open();
    auto* vsfData = Ctl<GridView>(page, "vsfData");
    Ctl<QListWidget>(page, "lstS")->setCurrentRow(0);
    Ctl<QPushButton>(page, "cmdJudge")->click();
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Division by zero");
    EXPECT_EQ(msg.Seen()[0].title, "Motor Selection");
    EXPECT_EQ(vsfData->CellText(2, 0), "OK");  // judged before the failure
    EXPECT_EQ(vsfData->CellText(4, 0), "");
    EXPECT_TRUE(page->isVisible());
    vsfData->SetGridRow(2);
    Ctl<QPushButton>(page, "cmdNext")->click();
    ASSERT_NE(page->List2(), nullptr);
    EXPECT_EQ(Ctl<QLabel>(page->List2(), "lblMotor")->text(), "GOOD");
}

TEST_F(frmList1Test, AGroupWithoutMotorsHasOnlyItsHeadersAndNextRefuses) {
    Build();
    frmList1* page = Open();
    Ctl<QListWidget>(page, "lstS")->setCurrentRow(0);
    Ctl<QListWidget>(page, "lstM")->setCurrentRow(1);
    EXPECT_EQ(Ctl<GridView>(page, "vsfData")->rowCount(), 0);
    EXPECT_EQ(MotorRowCount, 0);
    Ctl<QPushButton>(page, "cmdNext")->click();
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Motor is not selected.");
    EXPECT_EQ(msg.Seen()[0].title, "Motor Selection");
    EXPECT_EQ(page->List2(), nullptr);
    EXPECT_TRUE(page->isVisible());
}

TEST_F(frmList1Test, NextShowsTheDriverPageInPlaceOfTheMotorPage) {
    frmList1* page = Judged();
    page->move(140, 90);
    frmList2* drivers = Next(page, 2);
    ASSERT_NE(drivers, nullptr);
    EXPECT_FALSE(page->isVisible());
    EXPECT_TRUE(drivers->isVisible());
    EXPECT_EQ(drivers->pos(), page->pos());
    EXPECT_EQ(drivers->windowTitle(), "Driver Selection");
    EXPECT_EQ(Ctl<QLabel>(drivers, "lblMotor")->text(), "OK1");
    EXPECT_EQ(Ctl<QLineEdit>(drivers, "txtMotor")->text(), "OK1");
    EXPECT_EQ(CandidateJm, kJm);
    EXPECT_EQ(w->Wizard()->ShownPage(), drivers);
}

TEST_F(frmList1Test, AnNgMotorMayBeTakenOn) {
    frmList1* page = Judged();
    frmList2* drivers = Next(page, 4);
    ASSERT_NE(drivers, nullptr);
    EXPECT_EQ(Ctl<QLabel>(drivers, "lblMotor")->text(), "NG1");
}

TEST_F(frmList1Test, TheFirstActivationLeavesTheFocusAndLaterOnesGiveItToTheGrid) {
    Build();
    frmList1* page = Open();
    Activate(page);
    EXPECT_EQ(page->WizardOpening, 0);
    EXPECT_EQ(page->focusWidget(), Ctl<QListWidget>(page, "lstS"));
    Activate(w.get());
    Activate(page);
    EXPECT_EQ(page->focusWidget(), Ctl<GridView>(page, "vsfData"));
}

TEST_F(frmList1Test, JudgementWithoutAPickOrWithoutAPatternLeavesTheFocusOnTheButton) {
    Build();
    frmList1* page = Open();
    auto* cmdJudge = Ctl<QPushButton>(page, "cmdJudge");
    auto* vsfData = Ctl<GridView>(page, "vsfData");
    cmdJudge->setFocus();
    cmdJudge->click();  // no series picked: nothing happens
    EXPECT_EQ(page->focusWidget(), cmdJudge);
    Ctl<QListWidget>(page, "lstS")->setCurrentRow(0);
    PatternRowCount = 0;  // the pattern was emptied in the main window meanwhile
    cmdJudge->setFocus();
    cmdJudge->click();
    EXPECT_EQ(vsfData->CellText(2, 0), "NA");
    EXPECT_EQ(page->focusWidget(), cmdJudge);
    PatternRowCount = 2;
    cmdJudge->click();
    EXPECT_EQ(vsfData->CellText(2, 0), "OK");
    EXPECT_EQ(page->focusWidget(), vsfData);
}

TEST_F(frmList1Test, TheMnemonicsOfTheMotorPageReachTheListsAndPressBack) {
    Build();
    frmList1* page = Open();
    auto* lstM = Ctl<QListWidget>(page, "lstM");
    Activate(page);
    Ctl<QPushButton>(page, "cmdNext")->setFocus();
    QTest::keyClick(page, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(page->focusWidget(), Ctl<QListWidget>(page, "lstS"));
    EXPECT_EQ(lstM->count(), 0);  // the focus alone picks no series
    QTest::keyClick(page, Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(page->focusWidget(), lstM);
    QTest::keyClick(page, Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(Ctl<QPushButton>(page, "cmdReverce")->isDown());
}

TEST_F(frmList1Test, TheGridsFollowTheWindowsSize) {
    frmList1* page = Judged();
    auto* vsfData = Ctl<GridView>(page, "vsfData");
    page->resize(900, 500);
    QApplication::processEvents();
    const int narrow = vsfData->width();
    const int name = vsfData->columnWidth(1);
    page->resize(1300, 700);
    QApplication::processEvents();
    EXPECT_GT(vsfData->width(), narrow + 300);
    EXPECT_GT(vsfData->columnWidth(1), name);
}

}  // namespace
