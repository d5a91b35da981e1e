// The palette (frmItem) as a user drives it: its tabs, and cells double-clicked, keyed and dragged onto the strip.
#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>

#include "core/Tables.h"
#include "tests/support/Controls.h"
#include "tests/support/WorkbenchFixture.h"
#include "workbench/frmInfobox.h"
#include "workbench/frmItem.h"
#include "workbench/frmMain.h"

namespace {

class frmItemTest : public WorkbenchTest {
protected:
    static QLabel* Picture(const frmItem* p, int cell) { return Ctl<QLabel>(p, "picElement", cell); }
    static QLabel* Caption(const frmItem* p, int cell) { return Ctl<QLabel>(p, "txtElement", cell); }
};

TEST_F(frmItemTest, TheMenuEntryOpensThePalette) {
    frmMain w;
    w.show();
    ASSERT_TRUE(w.Action("mnuElementSelect")->isEnabled());
    w.Action("mnuElementSelect")->trigger();
    EXPECT_TRUE(w.ItemWindow()->isVisible());
    EXPECT_EQ(w.ItemWindow()->windowTitle(), "Component Selection");
    EXPECT_FALSE(w.Infobox()->isVisible());
}

TEST_F(frmItemTest, TheToolbarKeyElementOpensThePaletteAndNotTheSettings) {
    frmMain w;
    w.show();
    w.Action("tbElement")->trigger();
    EXPECT_TRUE(w.ItemWindow()->isVisible());
    EXPECT_FALSE(w.Infobox()->isVisible());
}

TEST_F(frmItemTest, TabsShowTheirCodesPicturesAndTags) {
    frmMain w;
    frmItem* p = w.ItemWindow();
    auto* TabStrip1 = Ctl<QTabBar>(p, "TabStrip1");
    EXPECT_EQ(TabStrip1->count(), 5);
    EXPECT_EQ(TabStrip1->tabText(0), "Rotation -> Rotation");
    EXPECT_EQ(Caption(p, 0)->text(), "Reduct. gear");
    EXPECT_FALSE(Picture(p, 0)->pixmap().isNull());
    TabStrip1->setCurrentIndex(1);
    EXPECT_EQ(ItemTab, 2);
    EXPECT_EQ(Caption(p, 0)->text(), "H ballscrew");
    EXPECT_EQ(Caption(p, 8)->text(), "");
    EXPECT_TRUE(Picture(p, 8)->pixmap().isNull());
}

TEST_F(frmItemTest, TabFiveShowsOnlyCartAndPinionCart) {
    frmMain w;
    frmItem* p = w.ItemWindow();
    auto* TabStrip1 = Ctl<QTabBar>(p, "TabStrip1");
    TabStrip1->setCurrentIndex(4);
    EXPECT_EQ(TabStrip1->tabText(4), "Special Mechanism");
    EXPECT_EQ(Caption(p, 0)->text(), "Cart");
    EXPECT_EQ(Caption(p, 1)->text(), "Pinion cart");
    for (int c = 2; c < 10; ++c) EXPECT_EQ(Caption(p, c)->text(), "") << c;
}

TEST_F(frmItemTest, DoubleClicksBuildAChainFromTheMotorOutward) {
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
    EXPECT_EQ(SlotCaption(w, 3), "H linear");
    EXPECT_EQ(Ctl<QComboBox>(w.Infobox(), "cboElement")->count(), 3);
    EXPECT_EQ(Ctl<QComboBox>(w.Infobox(), "cboElement")->currentText(), "3.H linear");
    EXPECT_EQ(w.Infobox()->CellText(1, 0), "Workpiece mass");
    EXPECT_GT(LoadInertiaTotal, 0);
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(p->PaletteFocus, 0);
    DirtyFlag = 0;
}

TEST_F(frmItemTest, DoubleClickOnAnEmptyCellDoesNothing) {
    frmMain w;
    StartManual(w);
    DoubleClick(w.ItemWindow(), 2, 8);  // code 19
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(frmItemTest, ATwentyFirstElementCannotBeConnected) {
    frmMain w;
    StartManual(w);
    for (int i = 1; i < 20; ++i) DoubleClick(w.ItemWindow(), 1, 0);
    ASSERT_EQ(ElementCount, 20);
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(Ctl<QScrollBar>(&w, "HScroll1")->value(), 12);  // the last element is in sight
    DoubleClick(w.ItemWindow(), 1, 0);
    EXPECT_EQ(ElementCount, 20);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Cannot be connected.");
    EXPECT_EQ(msg.Seen()[0].title, "Connection");
    DirtyFlag = 0;
}

TEST_F(frmItemTest, EnterAppendsAndArrowsMoveTheFocusLook) {
    frmMain w;
    StartManual(w);
    frmItem* p = w.ItemWindow();
    p->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(p));
    Picture(p, 4)->setFocus();
    EXPECT_EQ(p->PaletteFocus, 4);
    EXPECT_TRUE(Ctl<QFrame>(p, "Shape", 4)->frameShape() == QFrame::Box);
    EXPECT_TRUE(Ctl<QFrame>(p, "Shape", 0)->frameShape() == QFrame::NoFrame);
    QTest::keyClick(Picture(p, 4), Qt::Key_Return);
    EXPECT_EQ(ElementCount, 2);
    EXPECT_EQ(Element[1].ElementType, 5);
    EXPECT_EQ(p->PaletteFocus, 4);
    QTest::keyClick(Picture(p, 4), Qt::Key_Right);
    EXPECT_EQ(p->PaletteFocus, 5);
    QTest::keyClick(Picture(p, 5), Qt::Key_Up);
    EXPECT_EQ(p->PaletteFocus, 0);
    QTest::keyClick(Picture(p, 0), Qt::Key_Left);
    EXPECT_EQ(p->PaletteFocus, 9);
    QTest::keyClick(Picture(p, 9), Qt::Key_Down);
    EXPECT_EQ(p->PaletteFocus, 4);
    QTest::keyClick(Picture(p, 4), Qt::Key_A);
    EXPECT_EQ(p->PaletteFocus, 0);
    DirtyFlag = 0;
}

TEST_F(frmItemTest, DeleteOnAPictureDeletesTheSelectedComponent) {
    frmMain w;
    StartManual(w);
    frmItem* p = w.ItemWindow();
    DoubleClick(p, 1, 0);
    ASSERT_EQ(ElementCount, 2);
    p->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(p));
    Picture(p, 3)->setFocus();
    msg.Answer(MsgAnswer::OK);  // "Delete?"
    QTest::keyClick(Picture(p, 3), Qt::Key_Delete);
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(p->PaletteFocus, 0);
    DirtyFlag = 0;
}

TEST_F(frmItemTest, APressAndReleaseWithoutAMoveStartsNoDrag) {
    frmMain w;
    frmItem* p = w.ItemWindow();
    int drags = 0;
    p->startDrag = [&drags](QMimeData* data, const QPixmap&) {
        ++drags;
        delete data;
    };
    w.show();
    p->show();
    QTest::mousePress(Picture(p, 2), Qt::LeftButton);
    EXPECT_EQ(p->DragArmed, 1);
    QTest::mouseRelease(Picture(p, 2), Qt::LeftButton);
    EXPECT_EQ(p->DragArmed, 0);
    QMouseEvent move(QEvent::MouseMove, QPointF(10, 10), QPointF(10, 10), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(Picture(p, 2), &move);
    EXPECT_EQ(drags, 0);
}

TEST_F(frmItemTest, ADragOntoTheStripInsertsWhenTheUserSaysInsert) {
    frmMain w;
    StartWith(w, 1);  // 51, 1, 11, 31
    frmItem* p = w.ItemWindow();
    p->show();
    std::unique_ptr<QMimeData> carried;
    p->startDrag = [&carried](QMimeData* data, const QPixmap&) { carried.reset(data); };
    Ctl<QTabBar>(p, "TabStrip1")->setCurrentIndex(0);
    QTest::mousePress(Picture(p, 1), Qt::LeftButton);  // gear
    QMouseEvent move(QEvent::MouseMove, QPointF(12, 12), QPointF(12, 12), Qt::LeftButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(Picture(p, 1), &move);
    ASSERT_NE(carried, nullptr);
    EXPECT_EQ(DragType, 2);
    EXPECT_EQ(p->DragArmed, 0);
    msg.Answer(MsgAnswer::Insert);
    DropOn(w, 1, *carried);
    EXPECT_EQ(msg.Seen().back().buttons, MsgButtons::InsertOverwriteCancel);
    EXPECT_EQ(ElementCount, 5);
    EXPECT_EQ(Element[1].ElementType, 2);
    EXPECT_EQ(Element[2].ElementType, 1);
    EXPECT_EQ(SlotCaption(w, 1), "Gear");
    DirtyFlag = 0;
}

TEST_F(frmItemTest, TabOnTheTabsGoesToTheCellInFocusAndDeleteDeletes) {
    frmMain w;
    StartManual(w);
    frmItem* p = w.ItemWindow();
    auto* TabStrip1 = Ctl<QTabBar>(p, "TabStrip1");
    DoubleClick(p, 1, 2);  // belt
    ASSERT_EQ(ElementCount, 2);
    p->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(p));
    TabStrip1->setFocus();
    QTest::keyClick(TabStrip1, Qt::Key_Tab);
    EXPECT_TRUE(Picture(p, 2)->hasFocus());
    TabStrip1->setFocus();
    msg.Answer(MsgAnswer::OK);
    QTest::keyClick(TabStrip1, Qt::Key_Delete);
    EXPECT_EQ(ElementCount, 1);
    DirtyFlag = 0;
}

TEST_F(frmItemTest, ANinthElementComesIntoSightAndIntoTheSettings) {
    frmMain w;
    StartManual(w);
    for (int i = 1; i <= 9; ++i) DoubleClick(w.ItemWindow(), 1, 0);
    ASSERT_EQ(ElementCount, 10);
    EXPECT_EQ(SelectedElement, 9);
    EXPECT_EQ(Ctl<QComboBox>(w.Infobox(), "cboElement")->currentIndex(), 8);
    EXPECT_EQ(Ctl<QComboBox>(w.Infobox(), "cboElement")->currentText(), "9.Reduct. gear");
    EXPECT_EQ(Ctl<QScrollBar>(&w, "HScroll1")->value(), 2);
    EXPECT_TRUE(Ctl<QFrame>(&w, "Shape1_", 7)->isVisible());
    DirtyFlag = 0;
}

}  // namespace
