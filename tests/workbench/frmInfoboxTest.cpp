// The component settings (frmInfobox) as a user drives them: elements picked, settings typed, direct inputs switched.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QTest>
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "tests/support/Controls.h"
#include "tests/support/WorkbenchFixture.h"
#include "workbench/frmInfobox.h"
#include "workbench/frmMain.h"

namespace {

class frmInfoboxTest : public WorkbenchTest {
protected:
    static QTableWidget* Grid(const frmInfobox* box) { return Ctl<QTableWidget>(box, "vsfElement"); }

    // Opens the editor of a setting; none when the row refuses it.
    static QWidget* OpenEditor(frmInfobox* box, int gridRow) { return Setting_OpenEditor(box, gridRow); }

    // A cylinder load behind the motor, picked in the settings; the document counts as unchanged.
    static frmInfobox* StartWithACylinder(frmMain& w) {
        StartManual(w);
        DoubleClick(w.ItemWindow(), 1, 4);
        DirtyFlag = 0;
        return w.Infobox();
    }

    // Opens the editor of a setting, types the text and commits it with Enter.
    static void Type(frmInfobox* box, int gridRow, const QString& text) {
        ASSERT_TRUE(Type_Setting(box, gridRow, text)) << "row " << gridRow << " did not open";
    }
};

TEST_F(frmInfoboxTest, TheSettingsEntryOpensTheSettings) {
    frmMain w;
    w.show();
    ASSERT_TRUE(w.Action("mnuElementData")->isEnabled());
    w.Action("mnuElementData")->trigger();
    EXPECT_TRUE(w.Infobox()->isVisible());
    EXPECT_EQ(w.Infobox()->windowTitle(), "Component Settings");
}

TEST_F(frmInfoboxTest, AClickOnASlotShowsItsRowsInTheSettings) {
    frmMain w;
    StartWith(w, 1);
    frmInfobox* box = w.Infobox();
    EXPECT_TRUE(box->isVisible());
    ClickSlot(w, 2);
    EXPECT_EQ(SelectedElement, 2);
    EXPECT_EQ(Ctl<QComboBox>(box, "cboElement")->currentText(), "2.H ballscrew");
    EXPECT_EQ(Grid(box)->horizontalHeaderItem(0)->text(), "Item");
    EXPECT_EQ(Grid(box)->horizontalHeaderItem(1)->text(), "Unit");
    EXPECT_EQ(Grid(box)->horizontalHeaderItem(2)->text(), "Setting");
    EXPECT_EQ(Grid(box)->rowCount(), 14);
    EXPECT_EQ(box->CellText(1, 0), "Screw pitch");
    EXPECT_EQ(box->CellText(1, 1), "mm");
    EXPECT_EQ(box->CellText(1, 2), "10");
    EXPECT_EQ(box->CellText(7, 0), "");
    EXPECT_EQ(box->CellText(14, 0), "Culculated inertia");
    EXPECT_EQ(box->GridRow(), 1);
    EXPECT_FALSE(Ctl<QCheckBox>(box, "Check1")->isEnabled());
    EXPECT_FALSE(Ctl<QCheckBox>(box, "Check2")->isEnabled());
}

TEST_F(frmInfoboxTest, PickingFromTheElementBoxSelectsOnTheStrip) {
    frmMain w;
    StartWith(w, 1);
    frmInfobox* box = w.Infobox();
    auto* cboElement = Ctl<QComboBox>(box, "cboElement");
    cboElement->setCurrentIndex(2);
    emit cboElement->activated(2);
    EXPECT_EQ(SelectedElement, 3);
    EXPECT_EQ(box->CellText(1, 0), "Workpiece mass");
    EXPECT_TRUE(Ctl<QFrame>(&w, "Shape1_", 3)->isVisible());
}

TEST_F(frmInfoboxTest, ArrowsOnTheStripFollowInTheSettings) {
    frmMain w;
    StartWith(w, 1);
    ClickSlot(w, 1);
    QTest::keyClick(Ctl<QWidget>(&w, "Picture1"), Qt::Key_Right);
    EXPECT_EQ(SelectedElement, 2);
    EXPECT_EQ(Ctl<QComboBox>(w.Infobox(), "cboElement")->currentText(), "2.H ballscrew");
    EXPECT_EQ(w.Infobox()->CellText(1, 0), "Screw pitch");
}

TEST_F(frmInfoboxTest, TwelvePointThreeFourFiveBecomesTwelvePointThreeFour) {
    frmMain w;
    StartWith(w, 1);
    ClickSlot(w, 2);
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

TEST_F(frmInfoboxTest, AZeroIsRefusedAndTheEditStaysOpen) {
    frmMain w;
    StartWith(w, 1);
    ClickSlot(w, 2);
    Type(w.Infobox(), 1, "0");
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Illegal input value.");
    EXPECT_EQ(msg.Seen()[0].title, "Input Component Settings");
    EXPECT_DOUBLE_EQ(Element[2].Item[0].Value, 0.01);
    EXPECT_EQ(DirtyFlag, 0);
    QApplication::processEvents();
    QTableWidget* g = Grid(w.Infobox());
    auto* edit = qobject_cast<QLineEdit*>(g->indexWidget(g->currentIndex()));
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->text(), "0");
}

TEST_F(frmInfoboxTest, ARatioTypedAsThreeOverOneStaysAsTyped) {
    frmMain w;
    StartWith(w, 1);
    ClickSlot(w, 1);
    Type(w.Infobox(), 1, "3/1");
    EXPECT_EQ(w.Infobox()->CellText(1, 2), "3/1");
    EXPECT_DOUBLE_EQ(Element[1].Item[0].Value, 3);
    EXPECT_TRUE(msg.Seen().empty());
    DirtyFlag = 0;
}

TEST_F(frmInfoboxTest, LettersAreDroppedWhileTyping) {
    frmMain w;
    StartWith(w, 1);
    ClickSlot(w, 2);
    Type(w.Infobox(), 3, "8x0q0");
    EXPECT_EQ(w.Infobox()->CellText(3, 2), "800");
    DirtyFlag = 0;
}

TEST_F(frmInfoboxTest, AMaterialPickedInADensityRowGivesItsDensity) {
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

TEST_F(frmInfoboxTest, OtherRowsOfferNoMaterialList) {
    frmMain w;
    StartManual(w);
    DoubleClick(w.ItemWindow(), 1, 4);
    EXPECT_NE(qobject_cast<QLineEdit*>(OpenEditor(w.Infobox(), 1)), nullptr);
    DirtyFlag = 0;
}

TEST_F(frmInfoboxTest, DirectInertiaOnACylinderGreysAllButExternalTorqueAndTheInertia) {
    frmMain w;
    frmInfobox* box = StartWithACylinder(w);
    auto* Check1 = Ctl<QCheckBox>(box, "Check1");
    auto* Check2 = Ctl<QCheckBox>(box, "Check2");
    ASSERT_TRUE(Check1->isEnabled());
    ASSERT_TRUE(Check2->isEnabled());
    Check1->click();
    EXPECT_EQ(Element[1].InputMode, 1);
    EXPECT_FALSE(Check2->isEnabled());
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

TEST_F(frmInfoboxTest, TurningADirectInputOnAndOffAsksNothingAtExit) {
    frmMain w;
    frmInfobox* box = StartWithACylinder(w);
    auto* Check1 = Ctl<QCheckBox>(box, "Check1");
    auto* Check2 = Ctl<QCheckBox>(box, "Check2");
    Check1->click();
    Check1->click();
    EXPECT_EQ(Element[1].InputMode, 0);
    EXPECT_TRUE(Check2->isEnabled());
    EXPECT_EQ(box->CellText(1, 2), "200");
    EXPECT_FALSE(box->RowGrey(1));
    Check2->click();
    EXPECT_FALSE(Check1->isEnabled());
    EXPECT_EQ(box->CellText(3, 2), "--");
    Check2->click();
    EXPECT_TRUE(Check1->isEnabled());
    EXPECT_EQ(DirtyFlag, 0);
    w.close();
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(frmInfoboxTest, ArrowsWrapOverTheRowsOfTheGrid) {
    frmMain w;
    StartWith(w, 1);
    ClickSlot(w, 2);
    QTableWidget* g = Grid(w.Infobox());
    g->setCurrentCell(13, 2);
    QTest::keyClick(g, Qt::Key_Down);
    EXPECT_EQ(w.Infobox()->GridRow(), 1);
    QTest::keyClick(g, Qt::Key_Up);
    EXPECT_EQ(w.Infobox()->GridRow(), 14);
    EXPECT_EQ(w.Infobox()->LastGridRow, 14);
}

TEST_F(frmInfoboxTest, ANewDocumentEmptiesTheSettings) {
    frmMain w;
    StartWith(w, 1);
    ClickSlot(w, 2);
    w.Disp_Reset();
    EXPECT_EQ(Ctl<QComboBox>(w.Infobox(), "cboElement")->count(), 0);
    EXPECT_EQ(w.Infobox()->CellText(1, 0), "");
}

}  // namespace
