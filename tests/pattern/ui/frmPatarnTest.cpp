// The trapezoid builder (frmPatarn) driven as a user drives it: its fields, its checks and the rows it writes.
#include <QAbstractButton>
#include <QAction>
#include <QButtonGroup>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "pattern/ui/frmPatarn.h"
#include "tests/support/WorkbenchFixture.h"
#include "workbench/frmUnit.h"

namespace {

class TrapezoidWindowTest : public WorkbenchTest {
protected:
    // Opens the builder from the menu on the main window's current grid row.
    frmPatarn* Open(frmMain& w) {
        w.Action("mnuPatarn")->trigger();
        frmPatarn* p = w.TrapezoidWindow();
        if (p->isVisible()) {
            QApplication::processEvents();  // the main window's own activation comes first
            p->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(p));
        }
        return p;
    }

    // Types into a field and leaves it with Enter, as a user tabs through the form.
    static void Enter(QLineEdit* field, const QString& text) {
        field->setFocus();
        field->clear();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
        QApplication::processEvents();
    }

    // The state of every opening: empty fields, the accel/decel time picked, no range label.
    static void ExpectFresh(const frmPatarn* p) {
        EXPECT_EQ(p->mebMoveTime->text(), "");
        EXPECT_EQ(p->mebMoveDistance->text(), "");
        EXPECT_TRUE(p->optTime->isChecked());
        EXPECT_TRUE(p->mebAccelTime->isEnabled());
        EXPECT_FALSE(p->mebAccel->isEnabled());
        EXPECT_EQ(p->lblMax->text(), "");
    }
};

}  // namespace

TEST_F(TrapezoidWindowTest, TheLabelsShowThePickedUnits) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    ASSERT_TRUE(p->isVisible());
    EXPECT_EQ(p->windowTitle(), "Trapezoidal Pattern");
    EXPECT_EQ(p->lblTime[0]->text(), "s");
    EXPECT_EQ(p->lblLength->text(), "mm");
    EXPECT_EQ(p->lblRapid->text(), "mm/S2");
    ExpectFresh(p);
}

TEST_F(TrapezoidWindowTest, AMoveTypedThroughTheFieldsFillsTheGridAndCloses) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    Enter(p->mebMoveTime, "1");
    EXPECT_EQ(p->mebMoveTime->text(), "1.000");
    EXPECT_EQ(p->lblMax->text(), "Accel/decel time: 0.001s.; 0.5s max.");
    Enter(p->mebMoveDistance, "100");
    Enter(p->mebAccelTime, "0.2");
    p->cmdOK->click();
    EXPECT_FALSE(p->isVisible());
    EXPECT_EQ(PatternRowCount, 3);
    EXPECT_EQ(Cell(w, 2, 2), "0.200");
    EXPECT_EQ(Cell(w, 3, 2), "0.600");
    EXPECT_EQ(Cell(w, 4, 2), "0.200");
    EXPECT_EQ(Cell(w, 2, 4), "125.00");
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(TrapezoidWindowTest, LettersDoNotReachTheFields) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    p->mebMoveTime->setFocus();
    QTest::keyClicks(p->mebMoveTime, "1a.5e");
    EXPECT_EQ(p->mebMoveTime->text(), "1.5");
}

TEST_F(TrapezoidWindowTest, TooShortATimeIsToldAndTheFieldKeepsTheFocus) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    Enter(p->mebMoveTime, "0.0019");
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Illegal input value.\r\nInput an operating time of 0.002 or longer");
    EXPECT_EQ(p->mebMoveTime->text(), "0.002");
    QApplication::processEvents();
    EXPECT_TRUE(p->mebMoveTime->hasFocus());
}

TEST_F(TrapezoidWindowTest, TheAccelerationOptionShowsItsRange) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    Enter(p->mebMoveTime, "1");
    Enter(p->mebMoveDistance, "100");
    p->optRapid->click();
    EXPECT_EQ(p->lblMax->text(), "Acceleration: 400mm/S2 .; 100100.1mm/S2 max.");
    EXPECT_TRUE(p->mebAccel->isEnabled());
    EXPECT_FALSE(p->mebAccelTime->isEnabled());
}

TEST_F(TrapezoidWindowTest, TheBuilderStaysClosedBelowARowThatDoesNotEndAtRest) {
    frmMain w;
    StartWith(w, 1);
    Type(w, 2, 2, "0.1");
    Type(w, 2, 3, "3000");
    w.vsfPatarn->setCurrentCell(1, 1);
    frmPatarn* p = Open(w);
    EXPECT_FALSE(p->isVisible());
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Trapezoid pattern cannot be input unless previous speed is 0.");
}

TEST_F(TrapezoidWindowTest, TheRightArrowMovesOnLikeEnterAndTheDistanceLeadsToThePickedField) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    p->optRapid->click();
    p->mebMoveTime->setFocus();
    QTest::keyClicks(p->mebMoveTime, "1");
    QTest::keyClick(p->mebMoveTime, Qt::Key_Right);
    EXPECT_TRUE(p->mebMoveDistance->hasFocus());
    QTest::keyClicks(p->mebMoveDistance, "100");
    QTest::keyClick(p->mebMoveDistance, Qt::Key_Right);
    EXPECT_TRUE(p->mebAccel->hasFocus());
    QTest::keyClicks(p->mebAccel, "500");
    QTest::keyClick(p->mebAccel, Qt::Key_Return);
    EXPECT_TRUE(p->cmdOK->hasFocus());
    EXPECT_TRUE(p->isVisible());  // moved to OK, not pressed
    EXPECT_EQ(p->mebAccel->text(), "500.000");
}

TEST_F(TrapezoidWindowTest, TheBuilderOpensAfreshAfterItWasClosed) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    Enter(p->mebMoveTime, "1");
    Enter(p->mebMoveDistance, "100");
    p->optRapid->click();
    ASSERT_FALSE(p->lblMax->text().isEmpty());
    p->CmdCancel->click();
    ASSERT_FALSE(p->isVisible());
    p = Open(w);
    ASSERT_TRUE(p->isVisible());
    ExpectFresh(p);
}

TEST_F(TrapezoidWindowTest, TheUnitLabelsFollowUnitsPickedWhileTheBuilderStoodAside) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    ASSERT_EQ(p->lblTime[1]->text(), "s");
    w.Action("mnuPerSet")->trigger();
    frmUnit* u = w.UnitWindow();
    QApplication::setActiveWindow(u);  // the user turns to the unit dialog
    ASSERT_FALSE(p->isActiveWindow());
    u->options[0]->button(0)->click();  // time in ms
    u->options[2]->button(1)->click();  // operating distance in cm
    u->cmdOK->click();
    QApplication::setActiveWindow(p);  // and back to the builder
    EXPECT_EQ(p->lblTime[0]->text(), "ms");
    EXPECT_EQ(p->lblTime[1]->text(), "ms");
    EXPECT_EQ(p->lblLength->text(), "cm");
    EXPECT_EQ(p->lblRapid->text(), "cm/S2");
}
