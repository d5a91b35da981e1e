// The mechanical system question (frmMeca) as a user drives it: Cancel, and Enter and the arrows over the pictures.
#include <QFrame>
#include <QPushButton>
#include <QTest>
#include <functional>
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "tests/support/Controls.h"
#include "tests/support/WorkbenchFixture.h"
#include "workbench/frmMain.h"
#include "workbench/frmMeca.h"

namespace {

class frmMecaTest : public WorkbenchTest {
protected:
    static QFrame* Picture(const frmMeca* m, int index) { return Ctl<QFrame>(m, "picMachine", index); }

    // The question comes up active with the focus on a picture; keys runs while it waits.
    static void OnPicture(frmMain& w, int picture, std::function<void(frmMeca*)> keys) {
        StartAnswering(w, [picture, keys = std::move(keys)](frmMeca* m) {
            m->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(m));
            Picture(m, picture)->setFocus();
            keys(m);
        });
    }
};

TEST_F(frmMecaTest, CancelAtStartLeavesTheMotorAlone) {
    frmMain w;
    StartAnswering(w, [](frmMeca* m) { Ctl<QPushButton>(m, "CmdCancel")->click(); });
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(DocumentNamed, 0);
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_EQ(MecaResult, 0);
}

TEST_F(frmMecaTest, EnterOnAnEmptyPictureKeepsTheQuestionOpen) {
    frmMain w;
    OnPicture(w, 10, [](frmMeca* m) {
        QTest::keyClick(Picture(m, 10), Qt::Key_Return);
        EXPECT_EQ(MecaResult, 1);
        EXPECT_TRUE(m->isVisible());
        QTest::keyClick(Picture(m, 10), Qt::Key_Escape);
    });
    EXPECT_EQ(ElementCount, 1);
}

TEST_F(frmMecaTest, ArrowKeysWrapOverThePictures) {
    frmMain w;
    OnPicture(w, 2, [](frmMeca* m) {
        QTest::keyClick(Picture(m, 2), Qt::Key_Up);
        EXPECT_EQ(MecaTemplateNo, 10);
        QTest::keyClick(Picture(m, 10), Qt::Key_Down);
        EXPECT_EQ(MecaTemplateNo, 2);
        Ctl<QPushButton>(m, "CmdCancel")->click();
    });
}

}  // namespace
