// The selection wizard driven as a user drives it: from the menu over a
// sized document through "Judgement" and "Next >" to "Finish".
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>
#include <QToolBar>

#include "selection/DriverPage.h"
#include "selection/mdlDataBase.h"
#include "selection/ui/GridView.h"
#include "selection/ui/frmList1.h"
#include "selection/ui/frmList2.h"
#include "tests/support/WorkbenchFixture.h"
#include "tests/selection/CatalogueFixture.h"
#include "tests/selection/SizedDocument.h"
#include "common/ui/FileDialog.h"
#include "workbench/ResultGrid.h"

namespace {

constexpr double kJm = 1e-4;
const QColor kRed(255, 0, 0);
const QColor kOrange(255, 128, 0);

class ListWindowsTest : public WorkbenchTest {
protected:
    void SetUp() override {
        WorkbenchTest::SetUp();
        w = std::make_unique<frmMain>();
        StartWith(*w, 1);
        Document_Sized();
        w->Disp_Refresh();
        v = Trial(kJm, 2);
    }

    void TearDown() override {
        w.reset();
        MotorRecordset.Close();
        DriverRecordset.Close();
        SeriesConnection.Close();
        WorkbenchTest::TearDown();
    }

    static std::string Motor(const std::string& model, int capacity, double rated, double maximum, double speed,
                             double inertia, double ratio) {
        return "INSERT INTO MotorTable VALUES (1, 1, '" + model + "', " + std::to_string(capacity) + ", " + Sql(speed) +
               ", " + Sql(inertia) + ", " + Sql(rated) + ", " + Sql(maximum) + ", " + Sql(ratio) +
               ", 2, 0, 'about " + model + "');";
    }
    static std::string Driver(const std::string& model, const std::string& r1, const std::string& r2, int type) {
        return "INSERT INTO DriverTable VALUES ('" + model + "', " + r1 + ", " + r2 + ", " + std::to_string(type) +
               ", 'Pulse', '200', 'Three-phase');";
    }

    // Series "S" with the group "G" of five motors, one of each verdict and a
    // hidden FAIR, and the group "Empty"; series "T" has no group at all.
    // OK1 fits three drivers, FAIR1 one, the others none.
    void Build() {
        const double R = 2 * std::max(v.T1, v.T3), X = 2 * v.T2, N = 2 * v.N, A = 2 * v.JL / kJm;
        Catalogue_Build(appDir.Path(),
                        "INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1), ('T', 20, 2);"
                        "INSERT INTO ModelMaster VALUES (10, 'G', 1), (10, 'Empty', 2);" +
                            Motor("OK1", 100, R, X, N, kJm, A) + Motor("FAIR1", 200, R, v.T2 / 0.9, N, kJm, A) +
                            Motor("NG1", 400, R, X, v.N / 2, kJm, A) +
                            Motor("NGF", 750, v.T1 / 1.5, v.T2 / 0.9, N, kJm, A) +
                            Motor("DASH", 1000, 0, 0, 0, 0, 0) +
                            "INSERT INTO DriverTypeMaster VALUES (1, 'ok1', 'ng1', 0, 2), (2, 'ok2', 'ng2', 0, 1);" +
                            Driver("D1", "NULL", "NULL", 1) + Driver("D2", Sql(v.peak / 2), Sql(2 * v.mean), 1) +
                            Driver("D3", Sql(v.peak / 2), "NULL", 2) +
                            "INSERT INTO MotorDriverTable VALUES ('OK1', 'D1'), ('OK1', 'D2'), ('OK1', 'D3'),"
                            " ('FAIR1', 'D1');");
    }

    frmList1* Open() {
        w->Action("mnuMortorSelect")->trigger();
        return w->Wizard();
    }

    // The wizard at the motors of "S"/"G", judged.
    frmList1* Judged() {
        Build();
        frmList1* page = Open();
        page->lstS->setCurrentRow(0);
        page->cmdJudge->click();
        return page;
    }

    // The driver page of the motor on the grid row.
    frmList2* Next(frmList1* page, int row) {
        page->vsfData->SetGridRow(row);
        page->cmdNext->click();
        QApplication::processEvents();
        frmList2* drivers = page->List2();
        if (drivers) drivers->Form_Activate();
        return drivers;
    }

    // The window becomes the active one, as a click on it makes it.
    static void Activate(QWidget* window) {
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        QApplication::processEvents();
        ASSERT_EQ(QApplication::activeWindow(), window);
    }

    static void ExpectCell(const GridView* grid, int row, int col, const QString& text, bool bold,
                           const QColor& color) {
        EXPECT_EQ(grid->CellText(row, col), text) << "row " << row << " col " << col;
        EXPECT_EQ(grid->CellBold(row, col), bold) << "row " << row << " col " << col;
        EXPECT_EQ(grid->CellColor(row, col), color) << "row " << row << " col " << col;
    }
    QColor Text() const { return w->palette().color(QPalette::WindowText); }

    std::unique_ptr<frmMain> w;
    TrialValues v{};
};

TEST_F(ListWindowsTest, WithoutACompletePatternRowTheMenuSaysSoAndNoWizardOpens) {
    PatternRowCount = 0;
    Build();
    EXPECT_EQ(Open(), nullptr);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Motor cannot be selected because operating pattern is not input.");
}

TEST_F(ListWindowsTest, TheMenuOpensTheMotorPageBesideTheMainWindow) {
    Build();
    ASSERT_TRUE(w->Action("mnuMortorSelect")->isEnabled());
    frmList1* page = Open();
    ASSERT_NE(page, nullptr);
    EXPECT_TRUE(page->isVisible());
    EXPECT_FALSE(page->isModal());
    EXPECT_TRUE(w->isEnabled());
    EXPECT_EQ(page->windowTitle(), "Motor Selection");
    EXPECT_EQ(page->WizardOpening, 1);
    ASSERT_EQ(page->lstS->count(), 2);
    EXPECT_EQ(page->lstS->item(0)->text(), "S");
    EXPECT_EQ(page->lstS->currentRow(), -1);
    EXPECT_EQ(page->lstM->count(), 0);
    EXPECT_EQ(page->vsfData->rowCount(), 0);
    EXPECT_EQ(page->vsfData->CellText(0, 1), "Model number");
    EXPECT_EQ(page->vsfData->CellText(1, 1), "<Units>");
    EXPECT_EQ(page->vsfData->CellText(1, 3), "r/min");
    EXPECT_EQ(page->vsfData->CellText(0, 9), "Brake inertia");
    EXPECT_FALSE(page->CmdPrint->isEnabled());
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ListWindowsTest, TheToolbarKeyMotorOpensTheWizardAndASecondCallBringsTheSameOneForward) {
    Build();
    QAction* key = w->tbToolBar->findChild<QAction*>("tbMotor");
    ASSERT_NE(key, nullptr);
    EXPECT_TRUE(key->isEnabled());
    key->trigger();
    frmList1* page = w->Wizard();
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(Open(), page);
}

TEST_F(ListWindowsTest, TheHourglassShowsWhileThePageLoadsAndGoesAfterwards) {
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

TEST_F(ListWindowsTest, AMissingCatalogueIsToldAndThePageStaysWithEmptyLists) {
    frmList1* page = Open();
    ASSERT_NE(page, nullptr);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Series.db File was not found.");
    EXPECT_EQ(msg.Seen()[0].title, "Motor Selection");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
    EXPECT_TRUE(page->isVisible());
    EXPECT_EQ(page->lstS->count(), 0);
    page->cmdJudge->click();
    page->cmdNext->click();
    EXPECT_EQ(msg.Seen().back().text, "Motor is not selected.");
}

TEST_F(ListWindowsTest, AFailedGroupQueryIsToldWithoutTheBlank) {
    Catalogue_Build(appDir.Path(), "INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1); DROP TABLE ModelMaster;");
    frmList1* page = Open();
    page->lstS->setCurrentRow(0);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Series.dbFile was not found.");
    EXPECT_EQ(msg.Seen()[0].title, "Motor Selection");
    EXPECT_EQ(page->lstM->count(), 0);
}

TEST_F(ListWindowsTest, PickingASeriesShowsItsGroupsAndTheMotorsOfTheFirst) {
    Build();
    frmList1* page = Open();
    page->lstS->setCurrentRow(0);
    ASSERT_EQ(page->lstM->count(), 2);
    EXPECT_EQ(page->lstM->currentRow(), 0);
    EXPECT_EQ(page->lstM->item(1)->text(), "Empty");
    ASSERT_EQ(page->vsfData->rowCount(), 5);
    EXPECT_EQ(page->vsfData->CellText(2, 1), "OK1");
    EXPECT_EQ(page->vsfData->CellText(2, 2), "100");
    EXPECT_EQ(page->vsfData->CellText(6, 1), "DASH");
    EXPECT_EQ(page->vsfData->CellText(2, 0), "");  // nothing judged yet
    EXPECT_EQ(page->vsfData->item(0, 1)->textAlignment(), int(Qt::AlignLeft | Qt::AlignVCenter));
    EXPECT_EQ(page->vsfData->item(0, 2)->textAlignment(), int(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_EQ(MotorRowCount, 5);
}

TEST_F(ListWindowsTest, TheFocusComingIntoTheSeriesListPicksNothing) {
    Build();
    frmList1* page = Open();
    page->activateWindow();
    page->lstS->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    EXPECT_EQ(page->lstM->count(), 0);
    EXPECT_EQ(page->vsfData->rowCount(), 0);
}

TEST_F(ListWindowsTest, TheCommentFollowsTheCurrentRow) {
    Build();
    frmList1* page = Open();
    page->lstS->setCurrentRow(0);
    EXPECT_EQ(page->lblComment->text(), "about OK1");
    page->vsfData->SetGridRow(4);
    EXPECT_EQ(page->lblComment->text(), "about NG1");
    QTest::mouseClick(page->vsfData->viewport(), Qt::LeftButton, {},
                      page->vsfData->visualItemRect(page->vsfData->item(1, 1)).center());
    EXPECT_EQ(page->lblComment->text(), "about FAIR1");
}

TEST_F(ListWindowsTest, JudgementColoursTheVerdictsAndTheCellsAsDecided) {
    frmList1* page = Judged();
    const GridView* g = page->vsfData;
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

TEST_F(ListWindowsTest, JudgingTwiceShowsTheSameAndKeepsTheCurrentRow) {
    frmList1* page = Judged();
    page->vsfData->SetGridRow(5);
    QStringList first;
    for (int row = 2; row <= 6; ++row) first << page->vsfData->CellText(row, 0);
    page->cmdJudge->click();
    QStringList second;
    for (int row = 2; row <= 6; ++row) second << page->vsfData->CellText(row, 0);
    EXPECT_EQ(first, second);
    EXPECT_EQ(page->vsfData->GridRow(), 5);
    EXPECT_EQ(Patarn[1].Speed, 3000);  // the document's pattern is not touched
}

TEST_F(ListWindowsTest, AMotorWithoutRotorInertiaButWithARatioIsToldAndThePageStaysUsable) {
    Catalogue_Build(appDir.Path(), "INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1);"
                                   "INSERT INTO ModelMaster VALUES (10, 'G', 1);" +
                                       Motor("GOOD", 100, 10, 30, 6000, kJm, 1e6) +
                                       Motor("BROKEN", 200, 10, 30, 6000, 0, 10) +
                                       Motor("LATER", 400, 10, 30, 6000, kJm, 1e6));
    frmList1* page = Open();
    page->lstS->setCurrentRow(0);
    page->cmdJudge->click();
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Division by zero");
    EXPECT_EQ(msg.Seen()[0].title, "Motor Selection");
    EXPECT_EQ(page->vsfData->CellText(2, 0), "OK");  // judged before the failure
    EXPECT_EQ(page->vsfData->CellText(4, 0), "");
    EXPECT_TRUE(page->isVisible());
    page->vsfData->SetGridRow(2);
    page->cmdNext->click();
    ASSERT_NE(page->List2(), nullptr);
    EXPECT_EQ(page->List2()->lblMotor->text(), "GOOD");
}

TEST_F(ListWindowsTest, AGroupWithoutMotorsHasOnlyItsHeadersAndNextRefuses) {
    Build();
    frmList1* page = Open();
    page->lstS->setCurrentRow(0);
    page->lstM->setCurrentRow(1);
    EXPECT_EQ(page->vsfData->rowCount(), 0);
    EXPECT_EQ(MotorRowCount, 0);
    page->cmdNext->click();
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Motor is not selected.");
    EXPECT_EQ(msg.Seen()[0].title, "Motor Selection");
    EXPECT_EQ(page->List2(), nullptr);
    EXPECT_TRUE(page->isVisible());
}

TEST_F(ListWindowsTest, NextShowsTheDriverPageInPlaceOfTheMotorPage) {
    frmList1* page = Judged();
    page->move(140, 90);
    frmList2* drivers = Next(page, 2);
    ASSERT_NE(drivers, nullptr);
    EXPECT_FALSE(page->isVisible());
    EXPECT_TRUE(drivers->isVisible());
    EXPECT_EQ(drivers->pos(), page->pos());
    EXPECT_EQ(drivers->windowTitle(), "Driver Selection");
    EXPECT_EQ(drivers->lblMotor->text(), "OK1");
    EXPECT_EQ(drivers->txtMotor->text(), "OK1");
    EXPECT_EQ(CandidateJm, kJm);
    EXPECT_EQ(w->Wizard()->ShownPage(), drivers);
}

TEST_F(ListWindowsTest, AnNgMotorMayBeTakenOn) {
    frmList1* page = Judged();
    frmList2* drivers = Next(page, 4);
    ASSERT_NE(drivers, nullptr);
    EXPECT_EQ(drivers->lblMotor->text(), "NG1");
}

TEST_F(ListWindowsTest, TheDriverGridShowsVerdictsLimitsInRedAndComments) {
    frmList2* drivers = Next(Judged(), 2);
    const GridView* g = drivers->vsfDrvList;
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

TEST_F(ListWindowsTest, FinishStoresTheMotorAndTheDriverAndTheMainWindowShowsThem) {
    frmList1* page = Judged();
    frmList2* drivers = Next(page, 2);
    drivers->txtMotor->setText("OK1-B");
    drivers->vsfDrvList->SetGridRow(3);
    drivers->cmdDecide->click();
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
    EXPECT_EQ(w->lblMotor->text(), "OK1-B");
    EXPECT_EQ(w->lblDriver->text(), "D2");
    EXPECT_FALSE(w->vsfMotor->item(0, 3)->text().isEmpty());  // the rating of the effective torque
    EXPECT_FALSE(w->vsfMotor->item(0, 4)->text().isEmpty());  // and its ratio
}

TEST_F(ListWindowsTest, TheSelectionIsSavedAndComesBackWithTheFile) {
    frmList2* drivers = Next(Judged(), 3);
    drivers->txtMotor->setText("FAIR1-X");
    drivers->cmdDecide->click();
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
    EXPECT_EQ(reopened.lblMotor->text(), "FAIR1-X");
    EXPECT_EQ(reopened.lblDriver->text(), "D1");
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ListWindowsTest, TheTypedModelNumberDoesNotChangeTheDriversOfTheMotor) {
    frmList2* drivers = Next(Judged(), 2);
    drivers->txtMotor->setText("SOMETHING-ELSE");
    drivers->Form_Activate();
    EXPECT_EQ(drivers->vsfDrvList->rowCount(), 3);
    EXPECT_EQ(drivers->txtMotor->text(), "SOMETHING-ELSE");
}

TEST_F(ListWindowsTest, AMotorWithoutDriversGivesAnEmptyGridAndFinishRefuses) {
    frmList2* drivers = Next(Judged(), 4);
    ASSERT_NE(drivers, nullptr);
    EXPECT_EQ(drivers->vsfDrvList->rowCount(), 0);
    drivers->cmdDecide->click();
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Driver is not selected.");
    EXPECT_EQ(msg.Seen()[0].title, "Driver Selection");
    EXPECT_EQ(MotorSelected, 0);
    EXPECT_TRUE(drivers->isVisible());
}

TEST_F(ListWindowsTest, ReturningFromTheMainWindowToTheDriverPageRebuildsTheGridWithTheCurrentRowAtTwo) {
    frmList2* drivers = Next(Judged(), 2);
    Activate(drivers);
    drivers->vsfDrvList->SetGridRow(4);
    drivers->vsfDrvList->item(0, 0)->setText("stale");
    Activate(w.get());
    EXPECT_EQ(drivers->vsfDrvList->CellText(2, 0), "stale");
    Activate(drivers);
    EXPECT_EQ(drivers->vsfDrvList->CellText(2, 0), "OK");
    EXPECT_EQ(drivers->vsfDrvList->GridRow(), 2);
}

TEST_F(ListWindowsTest, ADriverOfAnUnknownTypeIsToldAndNotAgainOnReturningFromTheMessage) {
    const double R = 2 * std::max(v.T1, v.T3);
    Catalogue_Build(appDir.Path(), "INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1);"
                                   "INSERT INTO ModelMaster VALUES (10, 'G', 1);" +
                                       Motor("OK1", 100, R, 2 * v.T2, 2 * v.N, kJm, 1e6) +
                                       "INSERT INTO DriverTypeMaster VALUES (1, 'ok1', 'ng1', 0, 2);" +
                                       Driver("D1", "NULL", "NULL", 1) + Driver("D9", "NULL", "NULL", 9) +
                                       "INSERT INTO MotorDriverTable VALUES ('OK1', 'D1'), ('OK1', 'D9');");
    frmList1* page = Open();
    page->lstS->setCurrentRow(0);
    frmList2* drivers = Next(page, 2);
    ASSERT_NE(drivers, nullptr);
    ASSERT_FALSE(msg.Seen().empty());
    EXPECT_EQ(msg.Seen().back().text, "Subscript out of range");
    EXPECT_EQ(msg.Seen().back().title, "Driver Selection");
    EXPECT_EQ(drivers->vsfDrvList->CellText(2, 1), "D1");  // what was filled before the failure stays
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

TEST_F(ListWindowsTest, BackShowsTheMotorPageWithItsGridAsItWas) {
    frmList1* page = Judged();
    frmList2* drivers = Next(page, 3);
    drivers->move(60, 70);
    drivers->cmdReverse->click();
    EXPECT_TRUE(page->isVisible());
    EXPECT_FALSE(drivers->isVisible());
    EXPECT_EQ(page->pos(), drivers->pos());
    EXPECT_EQ(page->vsfData->CellText(3, 0), "FAIR");
    EXPECT_EQ(page->vsfData->GridRow(), 3);
    EXPECT_EQ(MotorSelected, 0);
}

TEST_F(ListWindowsTest, CancelOnEitherPageKeepsTheSelectionThatStood) {
    frmList1* page = Judged();
    frmList2* drivers = Next(page, 2);
    drivers->cmdDecide->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(MotorModelText.Str(), "OK1");

    page = Open();
    page->lstS->setCurrentRow(0);
    drivers = Next(page, 3);
    drivers->CmdCancel->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(w->Wizard(), nullptr);
    EXPECT_EQ(MotorModelText.Str(), "OK1");
    EXPECT_EQ(DriverModelText.Str(), "D1");
    EXPECT_EQ(w->lblMotor->text(), "OK1");

    page = Open();
    page->cmdReverce->click();  // the first page has nothing to go back to: it cancels
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(w->Wizard(), nullptr);
    EXPECT_EQ(MotorModelText.Str(), "OK1");
}

TEST_F(ListWindowsTest, BothPagesShareTheStoredPosition) {
    Build();
    frmList1* page = Open();
    page->move(200, 150);
    page->CmdCancel->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QSettings settings;
    EXPECT_EQ(settings.value("Settings/ListLeft").toInt(), 200 * 15);
    EXPECT_EQ(settings.value("Settings/ListTop").toInt(), 150 * 15);
    page = Open();
    EXPECT_EQ(page->pos(), QPoint(200, 150));
    page->lstS->setCurrentRow(0);
    frmList2* drivers = Next(page, 2);
    drivers->move(260, 180);
    drivers->CmdCancel->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    page = Open();
    EXPECT_EQ(page->pos(), QPoint(260, 180));
}

TEST_F(ListWindowsTest, TheFirstActivationLeavesTheFocusAndLaterOnesGiveItToTheGrid) {
    Build();
    frmList1* page = Open();
    Activate(page);
    EXPECT_EQ(page->WizardOpening, 0);
    EXPECT_EQ(page->focusWidget(), page->lstS);
    Activate(w.get());
    Activate(page);
    EXPECT_EQ(page->focusWidget(), page->vsfData);
}

TEST_F(ListWindowsTest, JudgementWithoutAPickOrWithoutAPatternLeavesTheFocusOnTheButton) {
    Build();
    frmList1* page = Open();
    page->cmdJudge->setFocus();
    page->cmdJudge->click();  // no series picked: nothing happens
    EXPECT_EQ(page->focusWidget(), page->cmdJudge);
    page->lstS->setCurrentRow(0);
    PatternRowCount = 0;  // the pattern was emptied in the main window meanwhile
    page->cmdJudge->setFocus();
    page->cmdJudge->click();
    EXPECT_EQ(page->vsfData->CellText(2, 0), "NA");
    EXPECT_EQ(page->focusWidget(), page->cmdJudge);
    PatternRowCount = 2;
    page->cmdJudge->click();
    EXPECT_EQ(page->vsfData->CellText(2, 0), "OK");
    EXPECT_EQ(page->focusWidget(), page->vsfData);
}

TEST_F(ListWindowsTest, EnterPressesTheButtonThatHasTheFocusOnEitherPage) {
    Build();
    frmList1* page = Open();
    page->lstS->setCurrentRow(0);
    page->cmdJudge->setFocus();
    QTest::keyClick(page->cmdJudge, Qt::Key_Return);
    EXPECT_EQ(page->vsfData->CellText(2, 0), "OK");
    page->cmdNext->setFocus();
    QTest::keyClick(page->cmdNext, Qt::Key_Enter);
    frmList2* drivers = page->List2();
    ASSERT_NE(drivers, nullptr);
    EXPECT_TRUE(drivers->isVisible());
    drivers->cmdReverse->setFocus();
    QTest::keyClick(drivers->cmdReverse, Qt::Key_Return);
    EXPECT_TRUE(page->isVisible());
    EXPECT_FALSE(drivers->isVisible());
}

TEST_F(ListWindowsTest, TheMnemonicsOfTheMotorPageReachTheListsAndPressBack) {
    Build();
    frmList1* page = Open();
    Activate(page);
    page->cmdNext->setFocus();
    QTest::keyClick(page, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(page->focusWidget(), page->lstS);
    EXPECT_EQ(page->lstM->count(), 0);  // the focus alone picks no series
    QTest::keyClick(page, Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(page->focusWidget(), page->lstM);
    QTest::keyClick(page, Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(page->cmdReverce->isDown());
}

TEST_F(ListWindowsTest, TheMnemonicsOfTheDriverPageReachTheGridAndPressBack) {
    frmList2* drivers = Next(Judged(), 2);
    Activate(drivers);
    drivers->txtMotor->setFocus();
    QTest::keyClick(drivers, Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(drivers->focusWidget(), drivers->vsfDrvList);
    QTest::keyClick(drivers, Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(drivers->cmdReverse->isDown());
}

TEST_F(ListWindowsTest, TabWalksEachPageInTheOrderOfItsControls) {
    frmList1* page = Judged();
    std::vector<QWidget*> walked;
    for (QWidget* at = page->lstS; walked.size() < 8; at = at->nextInFocusChain())
        if (at->focusPolicy() & Qt::TabFocus) walked.push_back(at);
    EXPECT_EQ(walked, (std::vector<QWidget*>{page->lstS, page->lstM, page->vsfData, page->cmdJudge, page->CmdPrint,
                                             page->cmdReverce, page->cmdNext, page->CmdCancel}));
    frmList2* drivers = Next(page, 2);
    walked.clear();
    for (QWidget* at = drivers->txtMotor; walked.size() < 5; at = at->nextInFocusChain())
        if (at->focusPolicy() & Qt::TabFocus) walked.push_back(at);
    EXPECT_EQ(walked, (std::vector<QWidget*>{drivers->txtMotor, drivers->vsfDrvList, drivers->cmdReverse,
                                             drivers->cmdDecide, drivers->CmdCancel}));
}

TEST_F(ListWindowsTest, TheGridsFollowTheWindowsSize) {
    frmList1* page = Judged();
    page->resize(900, 500);
    QApplication::processEvents();
    const int narrow = page->vsfData->width();
    const int name = page->vsfData->columnWidth(1);
    page->resize(1300, 700);
    QApplication::processEvents();
    EXPECT_GT(page->vsfData->width(), narrow + 300);
    EXPECT_GT(page->vsfData->columnWidth(1), name);
}

TEST_F(ListWindowsTest, TheBundledCatalogueCanBeJudgedAndFinished) {
    std::filesystem::copy_file(std::filesystem::path(TORVANE_GUI_EXE).parent_path() / "Series.db",
                               appDir.File("Series.db"));
    frmList1* page = Open();
    ASSERT_GE(page->lstS->count(), 4);
    page->lstS->setCurrentRow(0);
    ASSERT_GT(page->vsfData->rowCount(), 0);
    page->cmdJudge->click();
    for (int row = 2; row < page->vsfData->rowCount() + 2; ++row) {
        const QString verdict = page->vsfData->CellText(row, 0);
        EXPECT_TRUE(verdict == "OK" || verdict == "FAIR" || verdict == "NG" || verdict == "-") << verdict.toStdString();
    }
    frmList2* drivers = Next(page, 2);
    ASSERT_NE(drivers, nullptr);
    ASSERT_GT(drivers->vsfDrvList->rowCount(), 0);
    drivers->cmdDecide->click();
    EXPECT_EQ(MotorSelected, 1);
    EXPECT_EQ(w->lblMotor->text(), page->vsfData->CellText(2, 1));
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

TEST_F(ListWindowsTest, AfterFinishWithTheBundledCatalogueTheMainWindowShowsWhatTheSavedFileShowsWhenReopened) {
    std::filesystem::copy_file(std::filesystem::path(TORVANE_GUI_EXE).parent_path() / "Series.db",
                               appDir.File("Series.db"));
    frmList1* page = Open();
    page->lstS->setCurrentRow(0);
    page->cmdJudge->click();
    ASSERT_EQ(page->vsfData->CellText(6, 1), "TVM-A075S3");
    frmList2* drivers = Next(page, 6);
    ASSERT_EQ(drivers->vsfDrvList->CellText(2, 1), "TVD-A08");
    drivers->vsfDrvList->SetGridRow(2);
    drivers->cmdDecide->click();
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
