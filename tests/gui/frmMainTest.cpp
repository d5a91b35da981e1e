#include <QApplication>
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "tests/support/TestState.h"
#include "workbench/frmMain.h"

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
