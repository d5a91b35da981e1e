// The About box (frmAbout): the title and the version.
#include <QLabel>
#include <gtest/gtest.h>

#include "persist/mdlFile.h"
#include "tests/support/Controls.h"
#include "tests/support/TestState.h"
#include "workbench/frmAbout.h"

namespace {

class frmAboutTest : public StateTest {};

TEST_F(frmAboutTest, AboutShowsTheTitleAndTheVersion) {
    frmAbout about;
    EXPECT_EQ(about.windowTitle(), "About thie Program");
    EXPECT_EQ(Ctl<QLabel>(&about, "lblTitle")->text(), "Torvane");
    EXPECT_EQ(Ctl<QLabel>(&about, "lblVersion")->text().toStdString(), File_VersionText());
    EXPECT_TRUE(Ctl<QLabel>(&about, "lblVersion")->text().startsWith("Ver."));
}

}  // namespace
