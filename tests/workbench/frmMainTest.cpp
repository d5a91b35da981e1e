// The main window (frmMain) as a user drives it: the start, the strip, the pattern grid, the menus and the files.
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <filesystem>

#include "core/Catalogue.h"
#include "core/PatarnRows.h"
#include "core/Tables.h"
#include "pattern/ui/PatarnGrid.h"
#include "pattern/ui/PatternGraph.h"
#include "tests/support/Controls.h"
#include "tests/support/TestState.h"
#include "tests/support/WorkbenchFixture.h"
#include "workbench/ChainStrip.h"
#include "common/ui/FileDialog.h"
#include "workbench/frmInfobox.h"
#include "workbench/frmItem.h"
#include "workbench/frmMain.h"

TEST_F(WorkbenchTest, StartWithoutAFileShowsTheQuestionAndBuildsThePickedMachine) {
    frmMain w;
    StartWith(w, 1);
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(SlotCaption(w, 0), "Motor");
    EXPECT_EQ(SlotCaption(w, 1), "Reduct. gear");
    EXPECT_EQ(SlotCaption(w, 2), "H ballscrew");
    EXPECT_EQ(SlotCaption(w, 3), "H linear");
    EXPECT_EQ(SlotCaption(w, 4), "");
    EXPECT_EQ(w.windowTitle(), "Torvane-[Horizontal ballscrew]");
    EXPECT_EQ(DocumentNamed, 0);
}

TEST_F(WorkbenchTest, TypingThreeRowsFillsTheGridTheGraphsAndTheResults) {
    frmMain w;
    StartWith(w, 1);
    Type(w, 2, 1, "0.1");
    Type(w, 2, 3, "3000");
    Type(w, 3, 2, "0.5");
    Type(w, 3, 3, "3000");
    Type(w, 4, 2, "0.1");
    Type(w, 4, 3, "0");
    EXPECT_EQ(PatternRowCount, 3);
    EXPECT_EQ(Cell(w, 2, 1), "0.100");
    EXPECT_EQ(Cell(w, 3, 1), "0.600");
    EXPECT_EQ(Cell(w, 4, 1), "0.700");
    EXPECT_EQ(Cell(w, 3, 3), "3000.0");
    EXPECT_FALSE(Cell(w, 2, 6).isEmpty());
    EXPECT_FALSE(Ctl<PatternGraph>(&w, "picCirclePatarn")->Drawing().curve.empty());
    EXPECT_EQ(Ctl<PatternGraph>(&w, "picTorquePatarn")->Drawing().curve.size(), 6u);
    auto* vsfMotor = Ctl<QTableWidget>(&w, "vsfMotor");
    EXPECT_FALSE(vsfMotor->item(0, 2)->text().isEmpty());
    EXPECT_EQ(vsfMotor->item(4, 2)->text(), "3000");
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(WorkbenchTest, IllegalTimeIsRefusedWithTheMessage) {
    frmMain w;
    StartWith(w, 1);
    Type(w, 2, 1, "0");
    ASSERT_FALSE(msg.Seen().empty());
    EXPECT_EQ(msg.Seen().back().text, "Illegal input value.");
    EXPECT_EQ(Patarn[1].RowState, 0);
}

TEST_F(WorkbenchTest, ATextThatIsNoNumberIsRefusedAndTheCellShowsItsStoredValueAgain) {
    frmMain w;
    StartOneRow(w);
    DirtyFlag = 0;
    const PatarnTable before = Patarn;
    Type(w, 2, 3, "1-2");
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Illegal input value.");
    EXPECT_EQ(msg.Seen()[0].title, "Operating Pattern");
    EXPECT_EQ(Cell(w, 2, 3), "3000.0");
    EXPECT_EQ(Patarn[1].Speed, before[1].Speed);
    EXPECT_EQ(DirtyFlag, 0);
    auto* vsfPatarn = Ctl<PatarnGrid>(&w, "vsfPatarn");
    EXPECT_EQ(vsfPatarn->indexWidget(vsfPatarn->currentIndex()), nullptr);  // the edit is over

    Type(w, 3, 2, "-");  // an empty row stays empty
    EXPECT_EQ(msg.Seen().size(), 2u);
    EXPECT_EQ(Cell(w, 3, 2), "");
    EXPECT_EQ(Patarn[2].RowState, 0);

    Type(w, 2, 3, "2500");  // and the grid takes numbers as before
    EXPECT_EQ(Cell(w, 2, 3), "2500.0");
    EXPECT_EQ(msg.Seen().size(), 2u);
}

TEST_F(WorkbenchTest, SaveResultsWithTheMotorAloneGivesTheMessageAndNoDialog) {
    frmMain w;
    FileDialog_Script({"/nonexistent/never.txt"});
    w.Action("mnuCulcurate")->trigger();
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Calculation results cannot be saved because there are no connected components.");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Critical);
    EXPECT_EQ(msg.Seen()[0].title, "");
    EXPECT_EQ(FileDialog_Remaining(), 1);
}

TEST_F(WorkbenchTest, ExitWithoutChangesAsksNothing) {
    frmMain w;
    w.show();
    EXPECT_TRUE(w.close());
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(WorkbenchTest, CancelToSaveChangesKeepsTheWindowAndTheTables) {
    frmMain w;
    StartWith(w, 1);
    DirtyFlag = 1;
    const auto before = Element;
    msg.Answer(MsgAnswer::Cancel);
    EXPECT_FALSE(w.close());
    EXPECT_TRUE(w.isVisible());
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Save changes?");
    EXPECT_EQ(msg.Seen()[0].buttons, MsgButtons::YesNoCancel);
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(DirtyFlag, 1);
    for (int i = 0; i < kElementSlots; ++i) EXPECT_EQ(Element[i].ElementType, before[i].ElementType);
    DirtyFlag = 0;
}

TEST_F(WorkbenchTest, DeletingTheOnlyComponentScrollsHomeAndSelectsNothing) {
    frmMain w;
    w.show();
    Element[1].ElementType = 5;
    Item_Defaults(5, Element[1].Item);
    ElementCount = 2;
    SelectedElement = 1;
    auto* HScroll1 = Ctl<QScrollBar>(&w, "HScroll1");
    HScroll1->setValue(1);
    msg.Answer(MsgAnswer::OK);
    w.mnuDelete1_Click();
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(SelectedElement, 0);
    EXPECT_EQ(HScroll1->value(), 0);
    EXPECT_EQ(msg.Seen()[0].text, "Delete?");
}

TEST_F(WorkbenchTest, TheMotorCannotBeDeleted) {
    frmMain w;
    SelectedElement = 0;
    w.mnuDelete1_Click();
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Cannot delete.");
    EXPECT_EQ(msg.Seen()[0].title, "Delete Component");
}

TEST_F(WorkbenchTest, LeftArrowOnTheFirstComponentOnlyScrollsHome) {
    frmMain w;
    StartWith(w, 1);
    SelectedElement = 1;
    auto* HScroll1 = Ctl<QScrollBar>(&w, "HScroll1");
    auto* Picture1 = Ctl<QWidget>(&w, "Picture1");
    HScroll1->setValue(3);
    Picture1->setFocus();
    QTest::keyClick(Picture1, Qt::Key_Left);
    EXPECT_EQ(SelectedElement, 1);
    EXPECT_EQ(HScroll1->value(), 0);
    QTest::keyClick(Picture1, Qt::Key_Right);
    EXPECT_EQ(SelectedElement, 2);
}

TEST_F(WorkbenchTest, RightButtonOnAnEmptySlotShowsNoMenu) {
    frmMain w;
    StartWith(w, 1);
    QTest::mouseClick(Ctl<QLabel>(&w, "imgElement", 5), Qt::RightButton);
    EXPECT_FALSE(Ctl<QMenu>(&w, "mnuRight1")->isVisible());
}

TEST_F(WorkbenchTest, ClickingASlotSelectsItsElementButNeverTheMotor) {
    frmMain w;
    StartWith(w, 1);
    ClickSlot(w, 2);
    EXPECT_EQ(SelectedElement, 2);
    ClickSlot(w, 0);
    EXPECT_EQ(SelectedElement, 0);
}

TEST_F(WorkbenchTest, TheElementKeyRunsTheComponentSelectionAndNotTheSettings) {
    frmMain w;
    QAction* select = w.Action("mnuElementSelect");
    QAction* settings = w.Action("mnuElementData");
    select->setEnabled(true);
    settings->setEnabled(true);
    QSignalSpy selected(select, &QAction::triggered), set(settings, &QAction::triggered);
    w.Action("tbElement")->trigger();
    EXPECT_EQ(selected.count(), 1);
    EXPECT_EQ(set.count(), 0);
    EXPECT_EQ(w.Action("tbElement")->toolTip(), "Component Settings");
}

TEST_F(WorkbenchTest, ADropOfATypeCodeFromAnySourcePlacesTheComponent) {
    frmMain w;
    StartWith(w, 1);
    QMimeData data;
    data.setData(kTypeMime, "2");
    DropOn(w, 4, data);
    EXPECT_EQ(ElementCount, 4);  // a gear cannot follow a linear load: refused
    ASSERT_FALSE(msg.Seen().empty());
    EXPECT_EQ(msg.Seen().back().text, "Cannot insert/overwrite.");
    msg.Clear();
    data.setData(kTypeMime, "2");
    msg.Answer(MsgAnswer::Insert);
    DropOn(w, 1, data);
    EXPECT_EQ(ElementCount, 5);
    EXPECT_EQ(Element[1].ElementType, 2);
    EXPECT_EQ(Element[2].ElementType, 1);
    EXPECT_EQ(SlotCaption(w, 1), "Gear");
    EXPECT_EQ(DirtyFlag, 1);
    DirtyFlag = 0;
}

TEST_F(WorkbenchTest, ADragOntoTheStripOverwritesWhenTheUserSaysOverwrite) {
    frmMain w;
    StartWith(w, 1);
    QMimeData data;
    data.setData(kTypeMime, "2");
    msg.Answer(MsgAnswer::Overwrite);
    DropOn(w, 1, data);
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(Element[1].ElementType, 2);
    EXPECT_EQ(Element[2].ElementType, 11);
    DirtyFlag = 0;
}

TEST_F(WorkbenchTest, TheFloatingWindowsFollowTheMainWindowIntoTheTaskbar) {
    frmMain w;
    StartManual(w);
    w.showMinimized();
    QApplication::processEvents();
    EXPECT_TRUE(w.ItemWindow()->isMinimized());
    EXPECT_TRUE(w.Infobox()->isMinimized());
    w.showNormal();
    QApplication::processEvents();
    EXPECT_FALSE(w.ItemWindow()->isMinimized());
    EXPECT_FALSE(w.Infobox()->isMinimized());
}

TEST_F(WorkbenchTest, SaveAsNewAndOpenRoundTripThroughTheMenus) {
    frmMain w;
    StartWith(w, 1);
    Type(w, 2, 1, "0.1");
    Type(w, 2, 3, "3000");
    const QString path = QString::fromStdString(appDir.File("round.AP2"));
    FileDialog_Script({path});
    w.Action("mnuFileSaveAs")->trigger();
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_EQ(w.windowTitle(), "Torvane-[round.AP2]");

    QTimer::singleShot(0, [&w] { Ctl<QPushButton>(w.Meca(), "CmdCancel")->click(); });
    w.Action("mnuFileNew")->trigger();
    EXPECT_EQ(ElementCount, 4);  // cancelling the question changes nothing
    Patarn_ClearRow(Patarn, 1);
    PatternRowCount = 0;

    FileDialog_Script({path});
    w.Action("mnuFileOpen")->trigger();
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(PatternRowCount, 1);
    EXPECT_EQ(DocumentNamed, 1);
    EXPECT_EQ(SlotCaption(w, 2), "H ballscrew");
    EXPECT_EQ(Cell(w, 2, 1), "0.100");
}

TEST_F(WorkbenchTest, AFolderOnTheCommandLineSaysFileReadFailedAndTheWindowGoesOn) {
    CommandFileGiven = 1;
    FileName = appDir.File("folder.AP2");
    std::filesystem::create_directory(FileName);
    frmMain w;
    w.show();
    w.Start();
    ASSERT_FALSE(msg.Seen().empty());
    EXPECT_EQ(msg.Seen()[0].text, "File read failed.");
    EXPECT_EQ(w.windowTitle(), "Torvane-[folder.AP2]");
    EXPECT_EQ(ElementCount, 1);
}

TEST_F(WorkbenchTest, CtrlSOverAFileThatCouldNotBeReadKeepsItsBytesAsBak) {
    const std::string path = appDir.File("cut.AP2");
    WriteFile(path, "Ver.1.0.0 cut short");
    frmMain w;
    w.show();
    FileDialog_Script({QString::fromStdString(path)});
    w.Action("mnuFileOpen")->trigger();
    EXPECT_EQ(msg.Seen().at(0).text, "File read failed.");
    w.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&w));
    QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &w, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_EQ(ReadFile(path + ".bak"), "Ver.1.0.0 cut short");
    EXPECT_EQ(ReadFile(path).size(), 35763u);
}

TEST_F(WorkbenchTest, DeleteOnAnEmptyRowRemovesItFromTheTableButLeavesTheGridUntilTheNextEdit) {
    frmMain w;
    StartWith(w, 1);
    Type(w, 2, 1, "0.1");
    Type(w, 2, 3, "3000");
    Patarn[3] = Patarn[1];  // record 2 stays empty, record 3 is complete
    auto* vsfPatarn = Ctl<PatarnGrid>(&w, "vsfPatarn");
    vsfPatarn->Disp_Patarn();
    const QString shownBelow = Cell(w, 4, 3);
    ASSERT_FALSE(shownBelow.isEmpty());
    vsfPatarn->setCurrentCell(1, 1);  // grid row 3, the empty record 2
    QTest::keyClick(vsfPatarn, Qt::Key_Delete);
    EXPECT_EQ(Patarn[2].Speed, 3000);  // record 3 moved up
    EXPECT_EQ(Patarn[3].RowState, 0);
    EXPECT_EQ(Cell(w, 3, 3), "");            // the grid still shows the old rows
    EXPECT_EQ(Cell(w, 4, 3), shownBelow);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(WorkbenchTest, InsertOpensABlankRowAndLeavesTheDocumentUnchanged) {
    frmMain w;
    StartWith(w, 1);
    Type(w, 2, 2, "0.1");
    Type(w, 2, 3, "3000");
    DirtyFlag = 0;
    Ctl<PatarnGrid>(&w, "vsfPatarn")->setCurrentCell(0, 1);
    Ctl<QMenu>(&w, "mnuRight2")->findChild<QAction*>("mnuInsert")->trigger();
    EXPECT_EQ(Patarn[1].RowState, 0);
    EXPECT_EQ(Patarn[2].Speed, 3000);
    EXPECT_EQ(Cell(w, 2, 3), "");
    EXPECT_EQ(Cell(w, 3, 3), "3000.0");
    EXPECT_EQ(DirtyFlag, 0);
}

class frmMainTest : public StateTest {};


TEST_F(frmMainTest, NewDocumentCaption) {
    frmMain w;
    EXPECT_EQ(w.windowTitle(), "Torvane-[Create application]");
}

TEST_F(frmMainTest, ActivationBuildsThePickedTemplateAndNamesIt) {
    frmMain w;
    MecaTemplateNo = 1;
    MecaResult = 1;
    w.show();
    w.activateWindow();
    QApplication::setActiveWindow(&w);
    QApplication::processEvents();
    EXPECT_EQ(w.windowTitle(), "Torvane-[Horizontal ballscrew]");
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(MecaResult, 0);
}
