// The series list print dialog "Print Motor Series Selection Results" (frmListPrint): no default
// printer, the status line of the private queue, printing with the closing question, Export PDF.
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "common/ui/Cp1252Text.h"
#include "common/ui/FileDialog.h"
#include "reports/ui/frmListPrint.h"
#include "tests/reports/ui/PrintWindowFixture.h"
#include "tests/support/PrivateCups.h"

namespace {

class frmListPrintTest : public PrintWindowTest {
protected:
    void TearDown() override {
        FileDialog_Script({});
        PrintWindowTest::TearDown();
    }

    static ListSheet Sheet(int motors) {
        ListSheet sheet{"S", "G", {}, {}};
        sheet.units[1] = "<Units>";
        for (int i = 0; i < motors; ++i)
            sheet.motors.push_back({"OK", "M" + std::to_string(i), "100", "3000", "1.2E-5", "0.318", "0.955", "30",
                                    "0.5", "0"});
        return sheet;
    }
};

TEST_F(frmListPrintTest, WithoutADefaultPrinterItSaysSoAndDoesNotOpen) {
    frmListPrint dialog(Sheet(3));
    EXPECT_EQ(dialog.Open(), QDialog::Rejected);
    EXPECT_TRUE(Told("Printer is not set.", "Print"));
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(frmListPrintTest, ExportPdfWritesOnePagePerTwentyMotorsAndTheEmptyPage) {
    PrivateCups cups;
    if (!cups.Running()) GTEST_SKIP() << cups.Why();
    ASSERT_TRUE(cups.AddQueue("torvane") && cups.SetDefault("torvane")) << cups.Why();
    frmListPrint dialog(Sheet(20));
    const std::string pdf = appDir.File("list.pdf");
    FileDialog_Script({QString::fromStdString(pdf)});
    QTimer::singleShot(0, [&] {
        Ctl<QPushButton>(&dialog, "CmdExport")->click();
        Ctl<QPushButton>(&dialog, "CmdCancel")->click();
    });
    dialog.Open();
    const ToolResult info = Tool_Run({"pdfinfo", pdf});
    EXPECT_NE(info.output.find("Pages:           2"), std::string::npos) << info.output << info.errors;
}

TEST_F(frmListPrintTest, PrintsOnTheDefaultQueueShowingItsStatusAndClosesOnYes) {
    PrivateCups cups;
    if (!cups.Running()) GTEST_SKIP() << cups.Why();
    ASSERT_TRUE(cups.AddQueue("torvane") && cups.SetDefault("torvane")) << cups.Why();
    frmListPrint dialog(Sheet(5));
    QString status;
    QTimer::singleShot(0, [&] {
        EXPECT_EQ(Ctl<QComboBox>(&dialog, "CboPrinter")->currentText(), "torvane");
        status = Ctl<QLabel>(&dialog, "LblSettings")->text();
        msg.Answer(MsgAnswer::Yes);
        Ctl<QPushButton>(&dialog, "CmdPrint")->click();
    });
    EXPECT_EQ(dialog.Open(), QDialog::Accepted);
    EXPECT_EQ(status, Cp1252_ToQString("\x92\xCA\x8F\xED\x8E\x67\x82\xA4\xCC\xDF\xD8\xDD\xC0\x3A"
                                       "on-line\x81]Documents in queue:0"));
    EXPECT_TRUE(Told("OK to exit printing?", "Print"));
    ASSERT_TRUE(cups.WaitIdle("torvane"));
    EXPECT_EQ(ReadFile(cups.Output("torvane")).substr(0, 5), "%PDF-");
}

}  // namespace
