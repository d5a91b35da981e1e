// The administrator dialog (frmUser) as a user drives it: Enter through the seven boxes, OK and Cancel.
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <array>
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "tests/support/Controls.h"
#include "tests/support/TestState.h"
#include "workbench/frmUser.h"

namespace {

class frmUserTest : public StateTest {
protected:
    // The box of a line of MtrUser.dat.
    static QLineEdit* Box(const frmUser& user, int line) {
        static constexpr std::array<const char*, kAdminLines> kBoxes = {"txtName", "txtCorp", "txtUnit1", "txtUnit2",
                                                                        "txtTel",  "txtFax",  "txtMail"};
        return Ctl<QLineEdit>(&user, kBoxes[line]);
    }

    static void Activate(QWidget* window) {
        window->show();
        QApplication::processEvents();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    }
};

TEST_F(frmUserTest, EnterInTheMailBoxMovesToOkWithoutPressingIt) {
    frmUser user;
    Activate(&user);
    Box(user, 6)->setFocus();
    QTest::keyClick(Box(user, 6), Qt::Key_Return);
    EXPECT_TRUE(Ctl<QPushButton>(&user, "cmdOK")->hasFocus());
    EXPECT_TRUE(user.isVisible());
    EXPECT_EQ(ReadFile(AppPath + "/MtrUser.dat"), "");
}

TEST_F(frmUserTest, AFurtherEnterOnOkPressesIt) {
    frmUser user;
    auto* cmdOK = Ctl<QPushButton>(&user, "cmdOK");
    Activate(&user);
    Box(user, 0)->setText("someone");
    Box(user, 6)->setFocus();
    QTest::keyClick(Box(user, 6), Qt::Key_Return);
    ASSERT_TRUE(cmdOK->hasFocus());
    QTest::keyClick(cmdOK, Qt::Key_Return);
    EXPECT_FALSE(user.isVisible());
    EXPECT_EQ(ReadFile(AppPath + "/MtrUser.dat"), "\"someone\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n");
}

TEST_F(frmUserTest, EnterWalksTheBoxesInOrder) {
    frmUser user;
    Activate(&user);
    Box(user, 0)->setFocus();
    for (int i = 1; i < kAdminLines; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), Box(user, i)) << i;
    }
}

TEST_F(frmUserTest, OkWritesTheSevenQuotedLines) {
    frmUser user;
    for (int i = 0; i < kAdminLines; ++i) Box(user, i)->setText(QString("t%1").arg(i));
    Box(user, 1)->setText("M\u00FCller");
    Ctl<QPushButton>(&user, "cmdOK")->click();
    EXPECT_EQ(ReadFile(AppPath + "/MtrUser.dat"),
              "\"t0\"\r\n\"M\xFCller\"\r\n\"t2\"\r\n\"t3\"\r\n\"t4\"\r\n\"t5\"\r\n\"t6\"\r\n");
    EXPECT_EQ(PRINTINFO.Corporation.Str(), "M\xFCller");  // no file yet: the document takes them too
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(frmUserTest, CancelWritesNothing) {
    frmUser user;
    Box(user, 0)->setText("someone");
    Ctl<QPushButton>(&user, "CmdCancel")->click();
    EXPECT_EQ(ReadFile(AppPath + "/MtrUser.dat"), "");
    EXPECT_EQ(DirtyFlag, 0);
}

}  // namespace
