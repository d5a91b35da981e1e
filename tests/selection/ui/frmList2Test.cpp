// The driver page of the wizard (frmList2) as a user drives it: its drivers, "Finish", "< Back", "Cancel" and after.
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>
#include <QTest>
#include <filesystem>
#include <gtest/gtest.h>
#include <vector>

#include "core/Tables.h"
#include "tests/support/Controls.h"
#include "tests/support/WizardFixture.h"
#include "common/ui/FileDialog.h"

namespace {

class frmList2Test : public WizardTest {};

TEST_F(frmList2Test, TheDriverGridShowsVerdictsLimitsInRedAndComments) {
    frmList2* drivers = Next(Judged(), 2);
    const GridView* g = Ctl<GridView>(drivers, "vsfDrvList");
    ASSERT_EQ(g->rowCount(), 3);
    EXPECT_EQ(g->CellText(0, 7), "External regeneration comment");
    EXPECT_EQ(g->CellText(1, 2), "J(max)");
    ExpectCell(g, 2, 0, "OK", true, Text());  // both limits blank: the OK flag whatever regenerates
    EXPECT_EQ(g->CellText(2, 2), "");
    EXPECT_EQ(g->CellText(2, 7), "ok1");
    ExpectCell(g, 3, 0, "NG", true, kRed);
    EXPECT_EQ(g->CellColor(3, 2), kRed);
    EXPECT_EQ(g->CellColor(3, 3), Text());
    EXPECT_EQ(g->CellText(3, 7), "ng1");
    ExpectCell(g, 4, 0, "FAIR", true, kOrange);  // a type with an external resistor
    EXPECT_EQ(g->CellText(4, 7), "ng2");
    EXPECT_EQ(g->CellText(2, 4), "Pulse");
    EXPECT_EQ(g->item(0, 4)->textAlignment(), int(Qt::AlignCenter));
    EXPECT_EQ(g->GridRow(), 2);
}

TEST_F(frmList2Test, FinishStoresTheMotorAndTheDriverAndTheMainWindowShowsThem) {
    frmList1* page = Judged();
    frmList2* drivers = Next(page, 2);
    Ctl<QLineEdit>(drivers, "txtMotor")->setText("OK1-B");
    Ctl<GridView>(drivers, "vsfDrvList")->SetGridRow(3);
    Ctl<QPushButton>(drivers, "cmdDecide")->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(w->Wizard(), nullptr);
    EXPECT_EQ(MotorSelected, 1);
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_EQ(MotorModelText.Str(), "OK1-B");
    EXPECT_EQ(DriverModelText.Str(), "D2");
    EXPECT_EQ(MotorComment.Str(), "about OK1");
    EXPECT_EQ(DriverComment.Str(), "ng1");
    EXPECT_EQ(Element[0].Item[0].ItemText.Str(), "100");
    EXPECT_EQ(Element[0].Item[2].Value, kJm);
    EXPECT_EQ(ResultValues[1][0], 2 * std::max(v.T1, v.T3));
    EXPECT_EQ(ResultValues[1][2], 2 * v.N);
    EXPECT_EQ(ResultValues[1][3], kJm);
    EXPECT_DOUBLE_EQ(ResultValues[1][4], v.peak / 2);
    EXPECT_EQ(Ctl<QLabel>(w.get(), "lblMotor")->text(), "OK1-B");
    EXPECT_EQ(Ctl<QLabel>(w.get(), "lblDriver")->text(), "D2");
    auto* vsfMotor = Ctl<QTableWidget>(w.get(), "vsfMotor");
    EXPECT_FALSE(vsfMotor->item(0, 3)->text().isEmpty());  // the rating of the effective torque
    EXPECT_FALSE(vsfMotor->item(0, 4)->text().isEmpty());  // and its ratio
}

TEST_F(frmList2Test, TheSelectionIsSavedAndComesBackWithTheFile) {
    frmList2* drivers = Next(Judged(), 3);
    Ctl<QLineEdit>(drivers, "txtMotor")->setText("FAIR1-X");
    Ctl<QPushButton>(drivers, "cmdDecide")->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QString path = QString::fromStdString(appDir.File("chosen.AP2"));
    FileDialog_Script({path});
    w->Action("mnuFileSaveAs")->trigger();
    const auto ratings = ResultValues[1];

    frmMain reopened;
    FileDialog_Script({path});
    reopened.Action("mnuFileOpen")->trigger();
    EXPECT_EQ(MotorSelected, 1);
    EXPECT_EQ(MotorModelText.Str(), "FAIR1-X");
    EXPECT_EQ(DriverModelText.Str(), "D1");
    EXPECT_EQ(ResultValues[1], ratings);
    EXPECT_EQ(Ctl<QLabel>(&reopened, "lblMotor")->text(), "FAIR1-X");
    EXPECT_EQ(Ctl<QLabel>(&reopened, "lblDriver")->text(), "D1");
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(frmList2Test, TheTypedModelNumberDoesNotChangeTheDriversOfTheMotor) {
    frmList2* drivers = Next(Judged(), 2);
    auto* txtMotor = Ctl<QLineEdit>(drivers, "txtMotor");
    txtMotor->setText("SOMETHING-ELSE");
    drivers->Form_Activate();
    EXPECT_EQ(Ctl<GridView>(drivers, "vsfDrvList")->rowCount(), 3);
    EXPECT_EQ(txtMotor->text(), "SOMETHING-ELSE");
}

TEST_F(frmList2Test, AMotorWithoutDriversGivesAnEmptyGridAndFinishRefuses) {
    frmList2* drivers = Next(Judged(), 4);
    ASSERT_NE(drivers, nullptr);
    EXPECT_EQ(Ctl<GridView>(drivers, "vsfDrvList")->rowCount(), 0);
    Ctl<QPushButton>(drivers, "cmdDecide")->click();
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Driver is not selected.");
    EXPECT_EQ(msg.Seen()[0].title, "Driver Selection");
    EXPECT_EQ(MotorSelected, 0);
    EXPECT_TRUE(drivers->isVisible());
}

TEST_F(frmList2Test, ReturningFromTheMainWindowToTheDriverPageRebuildsTheGridWithTheCurrentRowAtTwo) {
    frmList2* drivers = Next(Judged(), 2);
    auto* vsfDrvList = Ctl<GridView>(drivers, "vsfDrvList");
    Activate(drivers);
    vsfDrvList->SetGridRow(4);
    vsfDrvList->item(0, 0)->setText("stale");
    Activate(w.get());
    EXPECT_EQ(vsfDrvList->CellText(2, 0), "stale");
    Activate(drivers);
    EXPECT_EQ(vsfDrvList->CellText(2, 0), "OK");
    EXPECT_EQ(vsfDrvList->GridRow(), 2);
}

TEST_F(frmList2Test, ADriverOfAnUnknownTypeIsToldAndNotAgainOnReturningFromTheMessage) {
    const double R = 2 * std::max(v.T1, v.T3);
    Catalogue_Build(appDir.Path(), "INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1);"
                                   "INSERT INTO ModelMaster VALUES (10, 'G', 1);" +
                                       Motor("OK1", 100, R, 2 * v.T2, 2 * v.N, kJm, 1e6) +
                                       "INSERT INTO DriverTypeMaster VALUES (1, 'ok1', 'ng1', 0, 2);" +
                                       Driver("D1", "NULL", "NULL", 1) + Driver("D9", "NULL", "NULL", 9) +
                                       "INSERT INTO MotorDriverTable VALUES ('OK1', 'D1'), ('OK1', 'D9');");
    frmList1* page = Open();
    Ctl<QListWidget>(page, "lstS")->setCurrentRow(0);
    frmList2* drivers = Next(page, 2);
    ASSERT_NE(drivers, nullptr);
    ASSERT_FALSE(msg.Seen().empty());
    EXPECT_EQ(msg.Seen().back().text, "Subscript out of range");
    EXPECT_EQ(msg.Seen().back().title, "Driver Selection");
    EXPECT_EQ(Ctl<GridView>(drivers, "vsfDrvList")->CellText(2, 1), "D1");  // filled before the failure: it stays
    drivers->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(drivers));
    drivers->Form_Activate();
    const std::size_t told = msg.Seen().size();
    QEvent activation(QEvent::ActivationChange);
    QApplication::sendEvent(drivers, &activation);  // back from the message
    EXPECT_EQ(msg.Seen().size(), told);
    QApplication::sendEvent(drivers, &activation);  // a later return rebuilds, and tells again
    EXPECT_EQ(msg.Seen().size(), told + 1);
    EXPECT_TRUE(drivers->isVisible());
}

TEST_F(frmList2Test, BackShowsTheMotorPageWithItsGridAsItWas) {
    frmList1* page = Judged();
    auto* vsfData = Ctl<GridView>(page, "vsfData");
    frmList2* drivers = Next(page, 3);
    drivers->move(60, 70);
    Ctl<QPushButton>(drivers, "cmdReverse")->click();
    EXPECT_TRUE(page->isVisible());
    EXPECT_FALSE(drivers->isVisible());
    EXPECT_EQ(page->pos(), drivers->pos());
    EXPECT_EQ(vsfData->CellText(3, 0), "FAIR");
    EXPECT_EQ(vsfData->GridRow(), 3);
    EXPECT_EQ(MotorSelected, 0);
}

TEST_F(frmList2Test, CancelOnEitherPageKeepsTheSelectionThatStood) {
    frmList1* page = Judged();
    frmList2* drivers = Next(page, 2);
    Ctl<QPushButton>(drivers, "cmdDecide")->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(MotorModelText.Str(), "OK1");

    page = Open();
    Ctl<QListWidget>(page, "lstS")->setCurrentRow(0);
    drivers = Next(page, 3);
    Ctl<QPushButton>(drivers, "CmdCancel")->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(w->Wizard(), nullptr);
    EXPECT_EQ(MotorModelText.Str(), "OK1");
    EXPECT_EQ(DriverModelText.Str(), "D1");
    EXPECT_EQ(Ctl<QLabel>(w.get(), "lblMotor")->text(), "OK1");

    page = Open();
    Ctl<QPushButton>(page, "cmdReverce")->click();  // the first page has nothing to go back to: it cancels
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(w->Wizard(), nullptr);
    EXPECT_EQ(MotorModelText.Str(), "OK1");
}

TEST_F(frmList2Test, BothPagesShareTheStoredPosition) {
    Build();
    frmList1* page = Open();
    page->move(200, 150);
    Ctl<QPushButton>(page, "CmdCancel")->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QSettings settings;
    EXPECT_EQ(settings.value("Settings/ListLeft").toInt(), 200 * 15);
    EXPECT_EQ(settings.value("Settings/ListTop").toInt(), 150 * 15);
    page = Open();
    EXPECT_EQ(page->pos(), QPoint(200, 150));
    Ctl<QListWidget>(page, "lstS")->setCurrentRow(0);
    frmList2* drivers = Next(page, 2);
    drivers->move(260, 180);
    Ctl<QPushButton>(drivers, "CmdCancel")->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    page = Open();
    EXPECT_EQ(page->pos(), QPoint(260, 180));
}

TEST_F(frmList2Test, EnterPressesTheButtonThatHasTheFocusOnEitherPage) {
    Build();
    frmList1* page = Open();
    auto* cmdJudge = Ctl<QPushButton>(page, "cmdJudge");
    auto* cmdNext = Ctl<QPushButton>(page, "cmdNext");
    Ctl<QListWidget>(page, "lstS")->setCurrentRow(0);
    cmdJudge->setFocus();
    QTest::keyClick(cmdJudge, Qt::Key_Return);
    EXPECT_EQ(Ctl<GridView>(page, "vsfData")->CellText(2, 0), "OK");
    cmdNext->setFocus();
    QTest::keyClick(cmdNext, Qt::Key_Enter);
    frmList2* drivers = page->List2();
    ASSERT_NE(drivers, nullptr);
    auto* cmdReverse = Ctl<QPushButton>(drivers, "cmdReverse");
    EXPECT_TRUE(drivers->isVisible());
    cmdReverse->setFocus();
    QTest::keyClick(cmdReverse, Qt::Key_Return);
    EXPECT_TRUE(page->isVisible());
    EXPECT_FALSE(drivers->isVisible());
}

TEST_F(frmList2Test, TheMnemonicsOfTheDriverPageReachTheGridAndPressBack) {
    frmList2* drivers = Next(Judged(), 2);
    Activate(drivers);
    Ctl<QLineEdit>(drivers, "txtMotor")->setFocus();
    QTest::keyClick(drivers, Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(drivers->focusWidget(), Ctl<GridView>(drivers, "vsfDrvList"));
    QTest::keyClick(drivers, Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(Ctl<QPushButton>(drivers, "cmdReverse")->isDown());
}

TEST_F(frmList2Test, TabWalksEachPageInTheOrderOfItsControls) {
    frmList1* page = Judged();
    auto* lstS = Ctl<QListWidget>(page, "lstS");
    std::vector<QWidget*> walked;
    for (QWidget* at = lstS; walked.size() < 9; at = at->nextInFocusChain())
        if (at->focusPolicy() & Qt::TabFocus) walked.push_back(at);
    EXPECT_EQ(walked, (std::vector<QWidget*>{lstS, Ctl<QListWidget>(page, "lstM"), Ctl<GridView>(page, "vsfData"),
                                             Ctl<QPushButton>(page, "cmdJudge"), Ctl<QPushButton>(page, "CmdPrint"),
                                             Ctl<QPushButton>(page, "cmdRecommend"),
                                             Ctl<QPushButton>(page, "cmdReverce"), Ctl<QPushButton>(page, "cmdNext"),
                                             Ctl<QPushButton>(page, "CmdCancel")}));
    frmList2* drivers = Next(page, 2);
    auto* txtMotor = Ctl<QLineEdit>(drivers, "txtMotor");
    walked.clear();
    for (QWidget* at = txtMotor; walked.size() < 5; at = at->nextInFocusChain())
        if (at->focusPolicy() & Qt::TabFocus) walked.push_back(at);
    EXPECT_EQ(walked, (std::vector<QWidget*>{txtMotor, Ctl<GridView>(drivers, "vsfDrvList"),
                                             Ctl<QPushButton>(drivers, "cmdReverse"),
                                             Ctl<QPushButton>(drivers, "cmdDecide"),
                                             Ctl<QPushButton>(drivers, "CmdCancel")}));
}

TEST_F(frmList2Test, TheBundledCatalogueCanBeJudgedAndFinished) {
    std::filesystem::copy_file(std::filesystem::path(TORVANE_GUI_EXE).parent_path() / "Series.db",
                               appDir.File("Series.db"));
    frmList1* page = Open();
    auto* lstS = Ctl<QListWidget>(page, "lstS");
    auto* vsfData = Ctl<GridView>(page, "vsfData");
    ASSERT_GE(lstS->count(), 4);
    lstS->setCurrentRow(0);
    ASSERT_GT(vsfData->rowCount(), 0);
    Ctl<QPushButton>(page, "cmdJudge")->click();
    for (int row = 2; row < vsfData->rowCount() + 2; ++row) {
        const QString verdict = vsfData->CellText(row, 0);
        EXPECT_TRUE(verdict == "OK" || verdict == "FAIR" || verdict == "NG" || verdict == "-") << verdict.toStdString();
    }
    frmList2* drivers = Next(page, 2);
    ASSERT_NE(drivers, nullptr);
    ASSERT_GT(Ctl<GridView>(drivers, "vsfDrvList")->rowCount(), 0);
    Ctl<QPushButton>(drivers, "cmdDecide")->click();
    EXPECT_EQ(MotorSelected, 1);
    EXPECT_EQ(Ctl<QLabel>(w.get(), "lblMotor")->text(), vsfData->CellText(2, 1));
    EXPECT_TRUE(msg.Seen().empty());
}

// Every text the main window shows in its labels and grids, in widget order.
std::vector<std::string> ShownNumbers(const frmMain& window) {
    std::vector<std::string> texts;
    for (const QLabel* label : window.findChildren<QLabel*>()) texts.push_back(label->text().toStdString());
    for (const QTableWidget* grid : window.findChildren<QTableWidget*>())
        for (int r = 0; r < grid->rowCount(); ++r)
            for (int c = 0; c < grid->columnCount(); ++c)
                texts.push_back(grid->item(r, c) ? grid->item(r, c)->text().toStdString() : "");
    return texts;
}

TEST_F(frmList2Test, AfterFinishWithTheBundledCatalogueTheMainWindowShowsWhatTheSavedFileShowsWhenReopened) {
    std::filesystem::copy_file(std::filesystem::path(TORVANE_GUI_EXE).parent_path() / "Series.db",
                               appDir.File("Series.db"));
    frmList1* page = Open();
    Ctl<QListWidget>(page, "lstS")->setCurrentRow(0);
    Ctl<QPushButton>(page, "cmdJudge")->click();
    ASSERT_EQ(Ctl<GridView>(page, "vsfData")->CellText(6, 1), "TVM-A075S3");
    frmList2* drivers = Next(page, 6);
    auto* vsfDrvList = Ctl<GridView>(drivers, "vsfDrvList");
    ASSERT_EQ(vsfDrvList->CellText(2, 1), "TVD-A08");
    vsfDrvList->SetGridRow(2);
    Ctl<QPushButton>(drivers, "cmdDecide")->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_DOUBLE_EQ(SelectedJm, 9.73e-05);
    const std::vector<std::string> finished = ShownNumbers(*w);
    const auto sized = ResultValues;

    const QString path = QString::fromStdString(appDir.File("chosen.AP2"));
    FileDialog_Script({path});
    w->Action("mnuFileSaveAs")->trigger();
    frmMain reopened;
    FileDialog_Script({path});
    reopened.Action("mnuFileOpen")->trigger();
    EXPECT_EQ(ResultValues, sized);
    EXPECT_EQ(ShownNumbers(reopened), finished);
    EXPECT_TRUE(msg.Seen().empty());
}

}  // namespace
