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
#include "pattern/ui/PatarnGrid.h"
#include "pattern/ui/frmPatarn.h"
#include "tests/support/Controls.h"
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

    static QLineEdit* Field(const frmPatarn* p, const char* name) { return Ctl<QLineEdit>(p, name); }

    // Types into a field and leaves it with Enter, as a user tabs through the form.
    static void Enter(QLineEdit* field, const QString& text) {
        field->setFocus();
        field->clear();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
        QApplication::processEvents();
    }

    // One second over 100 mm, to be reached by an acceleration.
    static void EnterAMoveByAcceleration(frmPatarn* p) {
        Enter(Field(p, "mebMoveTime"), "1");
        Enter(Field(p, "mebMoveDistance"), "100");
        Ctl<QRadioButton>(p, "optRapid")->click();
    }

    // The state of every opening: empty fields, the accel/decel time picked, no range label.
    static void ExpectFresh(const frmPatarn* p) {
        EXPECT_EQ(Field(p, "mebMoveTime")->text(), "");
        EXPECT_EQ(Field(p, "mebMoveDistance")->text(), "");
        EXPECT_TRUE(Ctl<QRadioButton>(p, "optTime")->isChecked());
        EXPECT_TRUE(Field(p, "mebAccelTime")->isEnabled());
        EXPECT_FALSE(Field(p, "mebAccel")->isEnabled());
        EXPECT_EQ(Ctl<QLabel>(p, "lblMax")->text(), "");
    }
};

}  // namespace

TEST_F(TrapezoidWindowTest, TheLabelsShowThePickedUnits) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    ASSERT_TRUE(p->isVisible());
    EXPECT_EQ(p->windowTitle(), "Trapezoidal Pattern");
    EXPECT_EQ(Ctl<QLabel>(p, "lblTime", 0)->text(), "s");
    EXPECT_EQ(Ctl<QLabel>(p, "lblLength")->text(), "mm");
    EXPECT_EQ(Ctl<QLabel>(p, "lblRapid")->text(), "mm/S2");
    ExpectFresh(p);
}

TEST_F(TrapezoidWindowTest, AMoveTypedThroughTheFieldsFillsTheGridAndCloses) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    Enter(Field(p, "mebMoveTime"), "1");
    EXPECT_EQ(Field(p, "mebMoveTime")->text(), "1.000");
    EXPECT_EQ(Ctl<QLabel>(p, "lblMax")->text(), "Accel/decel time: 0.001s.; 0.5s max.");
    Enter(Field(p, "mebMoveDistance"), "100");
    Enter(Field(p, "mebAccelTime"), "0.2");
    Ctl<QPushButton>(p, "cmdOK")->click();
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
    QLineEdit* mebMoveTime = Field(p, "mebMoveTime");
    mebMoveTime->setFocus();
    QTest::keyClicks(mebMoveTime, "1a.5e");
    EXPECT_EQ(mebMoveTime->text(), "1.5");
}

TEST_F(TrapezoidWindowTest, TooShortATimeIsToldAndTheFieldKeepsTheFocus) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    QLineEdit* mebMoveTime = Field(p, "mebMoveTime");
    Enter(mebMoveTime, "0.0019");
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Illegal input value.\r\nInput an operating time of 0.002 or longer");
    EXPECT_EQ(mebMoveTime->text(), "0.002");
    QApplication::processEvents();
    EXPECT_TRUE(mebMoveTime->hasFocus());
}

TEST_F(TrapezoidWindowTest, TheAccelerationOptionShowsItsRange) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    EnterAMoveByAcceleration(p);
    EXPECT_EQ(Ctl<QLabel>(p, "lblMax")->text(), "Acceleration: 400mm/S2 .; 100100.1mm/S2 max.");
    EXPECT_TRUE(Field(p, "mebAccel")->isEnabled());
    EXPECT_FALSE(Field(p, "mebAccelTime")->isEnabled());
}

TEST_F(TrapezoidWindowTest, TheBuilderStaysClosedBelowARowThatDoesNotEndAtRest) {
    frmMain w;
    StartWith(w, 1);
    Type(w, 2, 2, "0.1");
    Type(w, 2, 3, "3000");
    Ctl<PatarnGrid>(&w, "vsfPatarn")->setCurrentCell(1, 1);
    frmPatarn* p = Open(w);
    EXPECT_FALSE(p->isVisible());
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Trapezoid pattern cannot be input unless previous speed is 0.");
}

TEST_F(TrapezoidWindowTest, TheRightArrowMovesOnLikeEnterAndTheDistanceLeadsToThePickedField) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    QLineEdit* mebMoveTime = Field(p, "mebMoveTime");
    QLineEdit* mebMoveDistance = Field(p, "mebMoveDistance");
    QLineEdit* mebAccel = Field(p, "mebAccel");
    Ctl<QRadioButton>(p, "optRapid")->click();
    mebMoveTime->setFocus();
    QTest::keyClicks(mebMoveTime, "1");
    QTest::keyClick(mebMoveTime, Qt::Key_Right);
    EXPECT_TRUE(mebMoveDistance->hasFocus());
    QTest::keyClicks(mebMoveDistance, "100");
    QTest::keyClick(mebMoveDistance, Qt::Key_Right);
    EXPECT_TRUE(mebAccel->hasFocus());
    QTest::keyClicks(mebAccel, "500");
    QTest::keyClick(mebAccel, Qt::Key_Return);
    EXPECT_TRUE(Ctl<QPushButton>(p, "cmdOK")->hasFocus());
    EXPECT_TRUE(p->isVisible());  // moved to OK, not pressed
    EXPECT_EQ(mebAccel->text(), "500.000");
}

TEST_F(TrapezoidWindowTest, TheBuilderOpensAfreshAfterItWasClosed) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    EnterAMoveByAcceleration(p);
    ASSERT_FALSE(Ctl<QLabel>(p, "lblMax")->text().isEmpty());
    Ctl<QPushButton>(p, "CmdCancel")->click();
    ASSERT_FALSE(p->isVisible());
    p = Open(w);
    ASSERT_TRUE(p->isVisible());
    ExpectFresh(p);
}

TEST_F(TrapezoidWindowTest, TheUnitLabelsFollowUnitsPickedWhileTheBuilderStoodAside) {
    frmMain w;
    StartWith(w, 1);
    frmPatarn* p = Open(w);
    ASSERT_EQ(Ctl<QLabel>(p, "lblTime", 1)->text(), "s");
    w.Action("mnuPerSet")->trigger();
    frmUnit* u = w.UnitWindow();
    QApplication::setActiveWindow(u);  // the user turns to the unit dialog
    ASSERT_FALSE(p->isActiveWindow());
    Ctl<QButtonGroup>(u, "options", 0)->button(0)->click();  // time in ms
    Ctl<QButtonGroup>(u, "options", 2)->button(1)->click();  // operating distance in cm
    Ctl<QPushButton>(u, "cmdOK")->click();
    QApplication::setActiveWindow(p);  // and back to the builder
    EXPECT_EQ(Ctl<QLabel>(p, "lblTime", 0)->text(), "ms");
    EXPECT_EQ(Ctl<QLabel>(p, "lblTime", 1)->text(), "ms");
    EXPECT_EQ(Ctl<QLabel>(p, "lblLength")->text(), "cm");
    EXPECT_EQ(Ctl<QLabel>(p, "lblRapid")->text(), "cm/S2");
}
