// The palette and the component settings driven as a user drives them: cells
// double-clicked and dragged onto the strip, settings typed into the grid,
// the direct inputs switched.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <memory>

#include "core/Catalogue.h"
#include "core/Tables.h"
#include "tests/support/WorkbenchFixture.h"
#include "units/UnitTable.h"
#include "workbench/ChainStrip.h"
#include "workbench/MsgBoxDialog.h"
#include "workbench/frmInfobox.h"
#include "workbench/frmInsertQ.h"
#include "workbench/frmItem.h"
#include "workbench/frmMain.h"

namespace {

class ComponentWindowsTest : public WorkbenchTest {
protected:
    // The motor alone, with the palette open as after a manual start.
    void StartManual(frmMain& w) {
        StartWith(w, 0);
        ASSERT_EQ(ElementCount, 1);
        ASSERT_TRUE(w.ItemWindow()->isVisible());
    }

    static void DoubleClick(frmItem* palette, int tab, int cell) {
        palette->TabStrip1->setCurrentIndex(tab - 1);
        QTest::mouseDClick(palette->picElement[cell], Qt::LeftButton);
        QApplication::processEvents();
    }

    // Opens the editor of a setting, types the text and commits it with Enter.
    static void Type(frmInfobox* box, int gridRow, const QString& text) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QTableWidget* g = box->vsfElement;
        g->setCurrentCell(gridRow - 1, 2);
        g->editItem(g->item(gridRow - 1, 2));
        QWidget* editor = g->indexWidget(g->currentIndex());
        ASSERT_NE(editor, nullptr) << "row " << gridRow << " did not open";
        auto* edit = qobject_cast<QLineEdit*>(editor);
        if (auto* combo = qobject_cast<QComboBox*>(editor)) edit = combo->lineEdit();
        ASSERT_NE(edit, nullptr);
        edit->selectAll();
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
        QApplication::processEvents();
    }

    static QWidget* OpenEditor(frmInfobox* box, int gridRow) {
        QTableWidget* g = box->vsfElement;
        g->setCurrentCell(gridRow - 1, 2);
        g->editItem(g->item(gridRow - 1, 2));
        return g->indexWidget(g->currentIndex());
    }
};

// --- the palette ------------------------------------------------------------------

TEST_F(ComponentWindowsTest, TheMenuEntryOpensThePalette) {
    frmMain w;
    w.show();
    ASSERT_TRUE(w.Action("mnuElementSelect")->isEnabled());
    w.Action("mnuElementSelect")->trigger();
    EXPECT_TRUE(w.ItemWindow()->isVisible());
    EXPECT_EQ(w.ItemWindow()->windowTitle(), "Component Selection");
    EXPECT_FALSE(w.Infobox()->isVisible());
}

TEST_F(ComponentWindowsTest, TheToolbarKeyElementOpensThePaletteAndNotTheSettings) {
    frmMain w;
    w.show();
    w.Action("tbElement")->trigger();
    EXPECT_TRUE(w.ItemWindow()->isVisible());
    EXPECT_FALSE(w.Infobox()->isVisible());
}

TEST_F(ComponentWindowsTest, TheSettingsEntryOpensTheSettings) {
    frmMain w;
    w.show();
    ASSERT_TRUE(w.Action("mnuElementData")->isEnabled());
    w.Action("mnuElementData")->trigger();
    EXPECT_TRUE(w.Infobox()->isVisible());
    EXPECT_EQ(w.Infobox()->windowTitle(), "Component Settings");
}

TEST_F(ComponentWindowsTest, TabsShowTheirCodesPicturesAndTags) {
    frmMain w;
    frmItem* p = w.ItemWindow();
    EXPECT_EQ(p->TabStrip1->count(), 5);
    EXPECT_EQ(p->TabStrip1->tabText(0), "Rotation -> Rotation");
    EXPECT_EQ(p->txtElement[0]->text(), "Reduct. gear");
    EXPECT_FALSE(p->picElement[0]->pixmap().isNull());
    p->TabStrip1->setCurrentIndex(1);
    EXPECT_EQ(ItemTab, 2);
    EXPECT_EQ(p->txtElement[0]->text(), "H ballscrew");
    EXPECT_EQ(p->txtElement[8]->text(), "");
    EXPECT_TRUE(p->picElement[8]->pixmap().isNull());
}

TEST_F(ComponentWindowsTest, TabFiveShowsOnlyCartAndPinionCart) {
    frmMain w;
    frmItem* p = w.ItemWindow();
    p->TabStrip1->setCurrentIndex(4);
    EXPECT_EQ(p->TabStrip1->tabText(4), "Special Mechanism");
    EXPECT_EQ(p->txtElement[0]->text(), "Cart");
    EXPECT_EQ(p->txtElement[1]->text(), "Pinion cart");
    for (int c = 2; c < 10; ++c) EXPECT_EQ(p->txtElement[c]->text(), "") << c;
}

TEST_F(ComponentWindowsTest, DoubleClicksBuildAChainFromTheMotorOutward) {
    frmMain w;
    StartManual(w);
    frmItem* p = w.ItemWindow();
    DoubleClick(p, 1, 0);  // reduction gear
    DoubleClick(p, 2, 0);  // horizontal ballscrew
    DoubleClick(p, 4, 0);  // horizontal linear load
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(Element[1].ElementType, 1);
    EXPECT_EQ(Element[2].ElementType, 11);
    EXPECT_EQ(Element[3].ElementType, 31);
    EXPECT_EQ(SelectedElement, 3);
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_EQ(w.strip->lblElement[3]->text(), "H linear");
    EXPECT_EQ(w.Infobox()->cboElement->count(), 3);
    EXPECT_EQ(w.Infobox()->cboElement->currentText(), "3.H linear");
    EXPECT_EQ(w.Infobox()->CellText(1, 0), "Workpiece mass");
    EXPECT_GT(LoadInertiaTotal, 0);
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(p->PaletteFocus, 0);
    DirtyFlag = 0;
}

TEST_F(ComponentWindowsTest, DoubleClickOnAnEmptyCellDoesNothing) {
    frmMain w;
    StartManual(w);
    DoubleClick(w.ItemWindow(), 2, 8);  // code 19
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ComponentWindowsTest, ATwentyFirstElementCannotBeConnected) {
    frmMain w;
    StartManual(w);
    for (int i = 1; i < 20; ++i) DoubleClick(w.ItemWindow(), 1, 0);
    ASSERT_EQ(ElementCount, 20);
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(w.strip->HScroll1->value(), 12);  // the last element is in sight
    DoubleClick(w.ItemWindow(), 1, 0);
    EXPECT_EQ(ElementCount, 20);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Cannot be connected.");
    EXPECT_EQ(msg.Seen()[0].title, "Connection");
    DirtyFlag = 0;
}

TEST_F(ComponentWindowsTest, EnterAppendsAndArrowsMoveTheFocusLook) {
    frmMain w;
    StartManual(w);
    frmItem* p = w.ItemWindow();
    p->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(p));
    p->picElement[4]->setFocus();
    EXPECT_EQ(p->PaletteFocus, 4);
    EXPECT_TRUE(p->Shape[4]->frameShape() == QFrame::Box);
    EXPECT_TRUE(p->Shape[0]->frameShape() == QFrame::NoFrame);
    QTest::keyClick(p->picElement[4], Qt::Key_Return);
    EXPECT_EQ(ElementCount, 2);
    EXPECT_EQ(Element[1].ElementType, 5);
    EXPECT_EQ(p->PaletteFocus, 4);
    QTest::keyClick(p->picElement[4], Qt::Key_Right);
    EXPECT_EQ(p->PaletteFocus, 5);
    QTest::keyClick(p->picElement[5], Qt::Key_Up);
    EXPECT_EQ(p->PaletteFocus, 0);
    QTest::keyClick(p->picElement[0], Qt::Key_Left);
    EXPECT_EQ(p->PaletteFocus, 9);
    QTest::keyClick(p->picElement[9], Qt::Key_Down);
    EXPECT_EQ(p->PaletteFocus, 4);
    QTest::keyClick(p->picElement[4], Qt::Key_A);
    EXPECT_EQ(p->PaletteFocus, 0);
    DirtyFlag = 0;
}

TEST_F(ComponentWindowsTest, DeleteOnAPictureDeletesTheSelectedComponent) {
    frmMain w;
    StartManual(w);
    frmItem* p = w.ItemWindow();
    DoubleClick(p, 1, 0);
    ASSERT_EQ(ElementCount, 2);
    p->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(p));
    p->picElement[3]->setFocus();
    msg.Answer(MsgAnswer::OK);  // "Delete?"
    QTest::keyClick(p->picElement[3], Qt::Key_Delete);
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(p->PaletteFocus, 0);
    DirtyFlag = 0;
}

TEST_F(ComponentWindowsTest, APressAndReleaseWithoutAMoveStartsNoDrag) {
    frmMain w;
    frmItem* p = w.ItemWindow();
    int drags = 0;
    p->startDrag = [&drags](QMimeData* data, const QPixmap&) {
        ++drags;
        delete data;
    };
    w.show();
    p->show();
    QTest::mousePress(p->picElement[2], Qt::LeftButton);
    EXPECT_EQ(p->DragArmed, 1);
    QTest::mouseRelease(p->picElement[2], Qt::LeftButton);
    EXPECT_EQ(p->DragArmed, 0);
    QMouseEvent move(QEvent::MouseMove, QPointF(10, 10), QPointF(10, 10), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(p->picElement[2], &move);
    EXPECT_EQ(drags, 0);
}

TEST_F(ComponentWindowsTest, ADragOntoTheStripInsertsWhenTheUserSaysInsert) {
    frmMain w;
    StartWith(w, 1);  // 51, 1, 11, 31
    frmItem* p = w.ItemWindow();
    p->show();
    std::unique_ptr<QMimeData> carried;
    p->startDrag = [&carried](QMimeData* data, const QPixmap&) { carried.reset(data); };
    p->TabStrip1->setCurrentIndex(0);
    QTest::mousePress(p->picElement[1], Qt::LeftButton);  // gear
    QMouseEvent move(QEvent::MouseMove, QPointF(12, 12), QPointF(12, 12), Qt::LeftButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(p->picElement[1], &move);
    ASSERT_NE(carried, nullptr);
    EXPECT_EQ(DragType, 2);
    EXPECT_EQ(p->DragArmed, 0);
    msg.Answer(MsgAnswer::Insert);
    DropOn(w.strip->imgElement[1], *carried);
    EXPECT_EQ(msg.Seen().back().buttons, MsgButtons::InsertOverwriteCancel);
    EXPECT_EQ(ElementCount, 5);
    EXPECT_EQ(Element[1].ElementType, 2);
    EXPECT_EQ(Element[2].ElementType, 1);
    EXPECT_EQ(w.strip->lblElement[1]->text(), "Gear");
    DirtyFlag = 0;
}

TEST_F(ComponentWindowsTest, ADragOntoTheStripOverwritesWhenTheUserSaysOverwrite) {
    frmMain w;
    StartWith(w, 1);
    QMimeData data;
    data.setData(kTypeMime, "2");
    msg.Answer(MsgAnswer::Overwrite);
    DropOn(w.strip->imgElement[1], data);
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(Element[1].ElementType, 2);
    EXPECT_EQ(Element[2].ElementType, 11);
    DirtyFlag = 0;
}

TEST_F(ComponentWindowsTest, TheInsertQuestionAnswersByItsThreeButtons) {
    auto answerWith = [](const char* button) {
        QTimer::singleShot(0, [button] {
            auto* q = qobject_cast<frmInsertQ*>(QApplication::activeModalWidget());
            ASSERT_NE(q, nullptr);
            EXPECT_EQ(q->windowTitle(), QString::fromUtf8("Insert\xEF\xBC\x8FOverwrite"));
            q->findChild<QPushButton*>(button)->click();
        });
        return MsgBox_DialogHandler({"Insert?  Overwrite?", "", MsgIcon::Question, MsgButtons::InsertOverwriteCancel});
    };
    EXPECT_EQ(answerWith("cmdInsert"), MsgAnswer::Insert);
    EXPECT_EQ(answerWith("cmdUpdate"), MsgAnswer::Overwrite);
    EXPECT_EQ(answerWith("Command1"), MsgAnswer::Cancel);
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    EXPECT_EQ(frmInsertQ::Ask(nullptr), MsgAnswer::Cancel);
}

TEST_F(ComponentWindowsTest, TabOnTheTabsGoesToTheCellInFocusAndDeleteDeletes) {
    frmMain w;
    StartManual(w);
    frmItem* p = w.ItemWindow();
    DoubleClick(p, 1, 2);  // belt
    ASSERT_EQ(ElementCount, 2);
    p->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(p));
    p->TabStrip1->setFocus();
    QTest::keyClick(p->TabStrip1, Qt::Key_Tab);
    EXPECT_TRUE(p->picElement[2]->hasFocus());
    p->TabStrip1->setFocus();
    msg.Answer(MsgAnswer::OK);
    QTest::keyClick(p->TabStrip1, Qt::Key_Delete);
    EXPECT_EQ(ElementCount, 1);
    DirtyFlag = 0;
}

TEST_F(ComponentWindowsTest, ANinthElementComesIntoSightAndIntoTheSettings) {
    frmMain w;
    StartManual(w);
    for (int i = 1; i <= 9; ++i) DoubleClick(w.ItemWindow(), 1, 0);
    ASSERT_EQ(ElementCount, 10);
    EXPECT_EQ(SelectedElement, 9);
    EXPECT_EQ(w.Infobox()->cboElement->currentIndex(), 8);
    EXPECT_EQ(w.Infobox()->cboElement->currentText(), "9.Reduct. gear");
    EXPECT_EQ(w.strip->HScroll1->value(), 2);
    EXPECT_TRUE(w.strip->Shape1[7]->isVisible());
    DirtyFlag = 0;
}

TEST_F(ComponentWindowsTest, ArrowsOnTheStripFollowInTheSettings) {
    frmMain w;
    StartWith(w, 1);
    QTest::mouseClick(w.strip->imgElement[1], Qt::LeftButton);
    QTest::keyClick(w.Picture1, Qt::Key_Right);
    EXPECT_EQ(SelectedElement, 2);
    EXPECT_EQ(w.Infobox()->cboElement->currentText(), "2.H ballscrew");
    EXPECT_EQ(w.Infobox()->CellText(1, 0), "Screw pitch");
}

TEST_F(ComponentWindowsTest, TheFloatingWindowsFollowTheMainWindowIntoTheTaskbar) {
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

// --- the component settings --------------------------------------------------------

TEST_F(ComponentWindowsTest, AClickOnASlotShowsItsRowsInTheSettings) {
    frmMain w;
    StartWith(w, 1);
    frmInfobox* box = w.Infobox();
    EXPECT_TRUE(box->isVisible());
    QTest::mouseClick(w.strip->imgElement[2], Qt::LeftButton);
    EXPECT_EQ(SelectedElement, 2);
    EXPECT_EQ(box->cboElement->currentText(), "2.H ballscrew");
    EXPECT_EQ(box->vsfElement->horizontalHeaderItem(0)->text(), "Item");
    EXPECT_EQ(box->vsfElement->horizontalHeaderItem(1)->text(), "Unit");
    EXPECT_EQ(box->vsfElement->horizontalHeaderItem(2)->text(), "Setting");
    EXPECT_EQ(box->vsfElement->rowCount(), 14);
    EXPECT_EQ(box->CellText(1, 0), "Screw pitch");
    EXPECT_EQ(box->CellText(1, 1), "mm");
    EXPECT_EQ(box->CellText(1, 2), "10");
    EXPECT_EQ(box->CellText(7, 0), "");
    EXPECT_EQ(box->CellText(14, 0), "Culculated inertia");
    EXPECT_EQ(box->GridRow(), 1);
    EXPECT_FALSE(box->Check1->isEnabled());
    EXPECT_FALSE(box->Check2->isEnabled());
}

TEST_F(ComponentWindowsTest, PickingFromTheElementBoxSelectsOnTheStrip) {
    frmMain w;
    StartWith(w, 1);
    frmInfobox* box = w.Infobox();
    box->cboElement->setCurrentIndex(2);
    emit box->cboElement->activated(2);
    EXPECT_EQ(SelectedElement, 3);
    EXPECT_EQ(box->CellText(1, 0), "Workpiece mass");
    EXPECT_TRUE(w.strip->Shape1[3]->isVisible());
}

TEST_F(ComponentWindowsTest, TwelvePointThreeFourFiveBecomesTwelvePointThreeFour) {
    frmMain w;
    StartWith(w, 1);
    QTest::mouseClick(w.strip->imgElement[2], Qt::LeftButton);
    const double inertia = LoadInertiaTotal;
    Type(w.Infobox(), 1, "12.345");
    EXPECT_EQ(w.Infobox()->CellText(1, 2), "12.34");
    EXPECT_NEAR(Element[2].Item[0].Value, 0.01234, 1e-15);
    EXPECT_EQ(Element[2].Item[0].ItemText.Str(), "12.34");
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_NE(LoadInertiaTotal, inertia);
    EXPECT_TRUE(msg.Seen().empty());
    DirtyFlag = 0;
}

TEST_F(ComponentWindowsTest, AZeroIsRefusedAndTheEditStaysOpen) {
    frmMain w;
    StartWith(w, 1);
    QTest::mouseClick(w.strip->imgElement[2], Qt::LeftButton);
    Type(w.Infobox(), 1, "0");
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Illegal input value.");
    EXPECT_EQ(msg.Seen()[0].title, "Input Component Settings");
    EXPECT_DOUBLE_EQ(Element[2].Item[0].Value, 0.01);
    EXPECT_EQ(DirtyFlag, 0);
    QApplication::processEvents();
    auto* edit = qobject_cast<QLineEdit*>(w.Infobox()->vsfElement->indexWidget(w.Infobox()->vsfElement->currentIndex()));
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->text(), "0");
}

TEST_F(ComponentWindowsTest, ARatioTypedAsThreeOverOneStaysAsTyped) {
    frmMain w;
    StartWith(w, 1);
    QTest::mouseClick(w.strip->imgElement[1], Qt::LeftButton);
    Type(w.Infobox(), 1, "3/1");
    EXPECT_EQ(w.Infobox()->CellText(1, 2), "3/1");
    EXPECT_DOUBLE_EQ(Element[1].Item[0].Value, 3);
    EXPECT_TRUE(msg.Seen().empty());
    DirtyFlag = 0;
}

TEST_F(ComponentWindowsTest, LettersAreDroppedWhileTyping) {
    frmMain w;
    StartWith(w, 1);
    QTest::mouseClick(w.strip->imgElement[2], Qt::LeftButton);
    Type(w.Infobox(), 3, "8x0q0");
    EXPECT_EQ(w.Infobox()->CellText(3, 2), "800");
    DirtyFlag = 0;
}

TEST_F(ComponentWindowsTest, AMaterialPickedInADensityRowGivesItsDensity) {
    frmMain w;
    StartManual(w);
    DoubleClick(w.ItemWindow(), 1, 4);  // cylinder load
    frmInfobox* box = w.Infobox();
    ASSERT_EQ(box->CellText(4, 0), "Density");
    auto* combo = qobject_cast<QComboBox*>(OpenEditor(box, 4));
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(combo->count(), 5);
    EXPECT_EQ(combo->itemText(3), "Brass");
    combo->setCurrentIndex(3);
    QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(box->CellText(4, 2), "8.4");
    EXPECT_DOUBLE_EQ(Element[1].Item[3].Value, 8.4);
    EXPECT_TRUE(msg.Seen().empty());
    DirtyFlag = 0;
}

TEST_F(ComponentWindowsTest, OtherRowsOfferNoMaterialList) {
    frmMain w;
    StartManual(w);
    DoubleClick(w.ItemWindow(), 1, 4);
    EXPECT_NE(qobject_cast<QLineEdit*>(OpenEditor(w.Infobox(), 1)), nullptr);
    DirtyFlag = 0;
}

TEST_F(ComponentWindowsTest, DirectInertiaOnACylinderGreysAllButExternalTorqueAndTheInertia) {
    frmMain w;
    StartManual(w);
    DoubleClick(w.ItemWindow(), 1, 4);
    DirtyFlag = 0;
    frmInfobox* box = w.Infobox();
    ASSERT_TRUE(box->Check1->isEnabled());
    ASSERT_TRUE(box->Check2->isEnabled());
    box->Check1->click();
    EXPECT_EQ(Element[1].InputMode, 1);
    EXPECT_FALSE(box->Check2->isEnabled());
    for (int r = 1; r <= 4; ++r) {
        EXPECT_EQ(box->CellText(r, 2), "--") << r;
        EXPECT_TRUE(box->RowGrey(r)) << r;
        EXPECT_EQ(OpenEditor(box, r), nullptr) << r;
    }
    EXPECT_EQ(box->CellText(13, 2), "--");
    EXPECT_EQ(box->CellText(5, 0), "External torque");
    EXPECT_FALSE(box->RowGrey(5));
    EXPECT_FALSE(box->RowGrey(14));
    EXPECT_NE(OpenEditor(box, 5), nullptr);
    Type(box, 14, "500");
    EXPECT_GT(Element[1].DirectValue, 0);
    EXPECT_NEAR(Element[1].Item[13].Value, Element[1].DirectValue, 1e-12);
    DirtyFlag = 0;
}

TEST_F(ComponentWindowsTest, TurningADirectInputOnAndOffAsksNothingAtExit) {
    frmMain w;
    StartManual(w);
    DoubleClick(w.ItemWindow(), 1, 4);
    DirtyFlag = 0;
    frmInfobox* box = w.Infobox();
    box->Check1->click();
    box->Check1->click();
    EXPECT_EQ(Element[1].InputMode, 0);
    EXPECT_TRUE(box->Check2->isEnabled());
    EXPECT_EQ(box->CellText(1, 2), "200");
    EXPECT_FALSE(box->RowGrey(1));
    box->Check2->click();
    EXPECT_FALSE(box->Check1->isEnabled());
    EXPECT_EQ(box->CellText(3, 2), "--");
    box->Check2->click();
    EXPECT_TRUE(box->Check1->isEnabled());
    EXPECT_EQ(DirtyFlag, 0);
    w.close();
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ComponentWindowsTest, ArrowsWrapOverTheRowsOfTheGrid) {
    frmMain w;
    StartWith(w, 1);
    QTest::mouseClick(w.strip->imgElement[2], Qt::LeftButton);
    QTableWidget* g = w.Infobox()->vsfElement;
    g->setCurrentCell(13, 2);
    QTest::keyClick(g, Qt::Key_Down);
    EXPECT_EQ(w.Infobox()->GridRow(), 1);
    QTest::keyClick(g, Qt::Key_Up);
    EXPECT_EQ(w.Infobox()->GridRow(), 14);
    EXPECT_EQ(w.Infobox()->LastGridRow, 14);
}

TEST_F(ComponentWindowsTest, ANewDocumentEmptiesTheSettings) {
    frmMain w;
    StartWith(w, 1);
    QTest::mouseClick(w.strip->imgElement[2], Qt::LeftButton);
    w.Disp_Reset();
    EXPECT_EQ(w.Infobox()->cboElement->count(), 0);
    EXPECT_EQ(w.Infobox()->CellText(1, 0), "");
}

}  // namespace
