// The print dialog "Print Results" (frmPrint): opening on the document, the information grid's edit
// rules, the comment box, Cancel keeping the block, printing without and with a printer, Export PDF.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

#include "common/ui/Cp1252Text.h"
#include "common/ui/FileDialog.h"
#include "core/Text.h"
#include "reports/ReportFill.h"
#include "reports/ui/frmPrint.h"
#include "tests/reports/ui/PrintWindowFixture.h"
#include "tests/support/PrivateCups.h"
#include "workbench/frmMain.h"

namespace {

class frmPrintTest : public PrintWindowTest {
protected:
    void TearDown() override {
        FileDialog_Script({});
        PrintWindowTest::TearDown();
    }

    // Types into a cell of column 2 of the information grid as a user does, and commits it.
    static QString TypeInto(QTableWidget* grid, int row, const QString& text) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        grid->setCurrentCell(row, 2);
        grid->editItem(grid->item(row, 2));
        auto* edit = qobject_cast<QLineEdit*>(grid->indexWidget(grid->currentIndex()));
        if (!edit) return "<no editor>";
        edit->clear();
        QTest::keyClicks(edit, text);
        const QString typed = edit->text();
        QTest::keyClick(edit, Qt::Key_Tab);
        QApplication::processEvents();
        return typed;
    }

    static bool Editable(QTableWidget* grid, int row, int col) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        grid->setCurrentCell(row, col);
        grid->editItem(grid->item(row, col));
        const bool editing = grid->indexWidget(grid->currentIndex()) != nullptr;
        if (editing) grid->closePersistentEditor(grid->item(row, col));
        return editing;
    }
};

TEST_F(frmPrintTest, OpensFromTheMenuOnTheDocumentAndTellsThatNoPrinterIsSet) {
    frmMain w;
    bool seen = false;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<frmPrint*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        seen = true;
        auto* grid = Ctl<QTableWidget>(dialog, "vsfInfomation");
        EXPECT_EQ(grid->rowCount(), 15);
        EXPECT_EQ(grid->item(0, 0)->text(), "Customer");
        EXPECT_EQ(grid->item(14, 1)->text(), "Controller model number");
        EXPECT_EQ(grid->item(0, 2)->text(), Cp1252_ToQString(Text_Clean(PRINTINFO.cstCorporation.Raw())));
        EXPECT_EQ(grid->item(12, 2)->text(), Cp1252_ToQString(Text_Clean(MotorModelText.Raw())));
        EXPECT_EQ(grid->item(13, 2)->text(), Cp1252_ToQString(Text_Clean(DriverModelText.Raw())));
        EXPECT_EQ(Ctl<QComboBox>(dialog, "CboPrinter")->count(), 0);
        EXPECT_EQ(Ctl<QLabel>(dialog, "LblStatus")->text(), "");
        Ctl<QPushButton>(dialog, "CmdCancel")->click();
    });
    w.Action("mnuFilePrint")->trigger();
    EXPECT_TRUE(seen);
    EXPECT_TRUE(Told("Printer is not set.", "Print"));
    EXPECT_EQ(PRINTINFO.PrintInfoSet, 1);
}

TEST_F(frmPrintTest, OnlyColumnTwoOutsideTheModelRowsEntersEditMode) {
    frmPrint dialog;
    dialog.show();
    auto* grid = Ctl<QTableWidget>(&dialog, "vsfInfomation");
    EXPECT_TRUE(Editable(grid, 0, 2));
    EXPECT_FALSE(Editable(grid, 0, 1));
    EXPECT_FALSE(Editable(grid, 12, 2));
    EXPECT_FALSE(Editable(grid, 13, 2));
    EXPECT_TRUE(Editable(grid, 14, 2));
}

TEST_F(frmPrintTest, TheAdministratorsNamesStopAtThirtyCharactersAndTelephoneAndFaxAtEighteen) {
    frmPrint dialog;
    dialog.show();
    auto* grid = Ctl<QTableWidget>(&dialog, "vsfInfomation");
    const QString many(40, 'x');
    EXPECT_EQ(TypeInto(grid, 4, many).size(), 30);
    EXPECT_EQ(TypeInto(grid, 7, many).size(), 30);
    EXPECT_EQ(TypeInto(grid, 8, many).size(), 18);
    EXPECT_EQ(TypeInto(grid, 9, many).size(), 18);
    EXPECT_EQ(TypeInto(grid, 0, many).size(), 40);
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(frmPrintTest, EnterMovesToTheNextRowAndStaysOnTheLastAndDeleteClearsTheCell) {
    frmPrint dialog;
    dialog.show();
    auto* grid = Ctl<QTableWidget>(&dialog, "vsfInfomation");
    grid->setFocus();
    grid->setCurrentCell(12, 2);
    QTest::keyClick(grid, Qt::Key_Return);
    EXPECT_EQ(grid->currentRow(), 13);
    grid->setCurrentCell(14, 2);
    QTest::keyClick(grid, Qt::Key_Return);
    EXPECT_EQ(grid->currentRow(), 14);
    grid->setCurrentCell(0, 2);
    ASSERT_FALSE(grid->item(0, 2)->text().isEmpty());
    QTest::keyClick(grid, Qt::Key_Delete);
    EXPECT_EQ(grid->item(0, 2)->text(), "");
}

TEST_F(frmPrintTest, TheCommentWrapsAtAHundredCharactersAndRefusesASixthLine) {
    frmPrint dialog;
    dialog.show();
    auto* comment = Ctl<QPlainTextEdit>(&dialog, "txtComment");
    comment->clear();
    comment->setFocus();
    QTest::keyClicks(comment, QString(101, 'a'));
    EXPECT_EQ(comment->toPlainText(), QString(100, 'a') + "\n" + "a");
    for (int line = 0; line < 4; ++line) QTest::keyClick(comment, Qt::Key_Return);
    QTest::keyClicks(comment, "bc");
    EXPECT_EQ(comment->toPlainText().count('\n'), 5);
    QTest::keyClick(comment, Qt::Key_Return);
    EXPECT_EQ(comment->toPlainText().count('\n'), 5);
}

TEST_F(frmPrintTest, CancelKeepsTheEditsInTheBlock) {
    frmPrint dialog;
    dialog.show();
    QTest::keyClicks(Ctl<QLineEdit>(&dialog, "txtData0"), " and more");
    auto* comment = Ctl<QPlainTextEdit>(&dialog, "txtComment");
    comment->clear();
    QTest::keyClicks(comment, QString(120, 'c'));
    TypeInto(Ctl<QTableWidget>(&dialog, "vsfInfomation"), 11, "Axis Y");
    Ctl<QTabWidget>(&dialog, "SSTab1")->setCurrentIndex(2);
    const int16_t precautions = PRINTINFO.PrintOption[2];
    Ctl<QCheckBox>(&dialog, "chkPrint2")->click();
    Ctl<QPushButton>(&dialog, "CmdCancel")->click();
    EXPECT_EQ(PRINTINFO.PrintLine[0].Str(), "Line 1 and more");
    EXPECT_EQ(PRINTINFO.PrintComment.Str(), std::string(120, 'c'));
    EXPECT_EQ(PRINTINFO.System.Str(), "Axis Y");
    EXPECT_EQ(PRINTINFO.PrintOption[2], precautions ? 0 : 1);
    EXPECT_EQ(PRINTINFO.PrintInfoSet, 1);
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(frmPrintTest, AChangeOfTabTakesTheOtherTabsControlsOutOfTheTabOrder) {
    frmPrint dialog;
    dialog.show();
    auto* grid = Ctl<QTableWidget>(&dialog, "vsfInfomation");
    auto* header = Ctl<QLineEdit>(&dialog, "txtData0");
    EXPECT_EQ(grid->focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(header->focusPolicy(), Qt::ClickFocus);
    Ctl<QTabWidget>(&dialog, "SSTab1")->setCurrentIndex(1);
    EXPECT_EQ(grid->focusPolicy(), Qt::ClickFocus);
    EXPECT_EQ(header->focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(header->nextInFocusChain(), Ctl<QLineEdit>(&dialog, "txtData1"));
}

TEST_F(frmPrintTest, PrintWithAnEmptyPrinterListDoesNothing) {
    frmPrint dialog;
    dialog.show();
    msg.Clear();
    Ctl<QPushButton>(&dialog, "CmdPrint")->click();
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(frmPrintTest, ExportPdfWritesTheCheckedPartsWithNoPrinter) {
    frmPrint dialog;
    dialog.show();
    const std::string pdf = appDir.File("report.pdf");
    FileDialog_Script({QString::fromStdString(pdf)});
    Ctl<QPushButton>(&dialog, "CmdExport")->click();
    const std::string bytes = ReadFile(pdf);
    ASSERT_EQ(bytes.substr(0, 5), "%PDF-");
    const int pages = (PRINTINFO.PrintOption[0] ? 1 : 0) + (PRINTINFO.PrintOption[1] ? Report_ElementPages(ElementCount) : 0) +
                      (PRINTINFO.PrintOption[2] ? 1 : 0) + (PRINTINFO.PrintOption[3] ? 1 : 0);
    const ToolResult info = Tool_Run({"pdfinfo", pdf});
    EXPECT_NE(info.output.find("Pages:           " + std::to_string(pages)), std::string::npos) << info.output;
}

TEST_F(frmPrintTest, PrintsOnThePrivateQueueAndClosesOnYes) {
    PrivateCups cups;
    if (!cups.Running()) GTEST_SKIP() << cups.Why();
    ASSERT_TRUE(cups.AddQueue("torvane")) << cups.Why();
    ASSERT_TRUE(cups.SetDefault("torvane")) << cups.Why();
    frmPrint dialog;
    dialog.show();
    EXPECT_EQ(Ctl<QComboBox>(&dialog, "CboPrinter")->currentText(), "torvane");
    EXPECT_EQ(Ctl<QLabel>(&dialog, "LblStatus")->text(),
              Cp1252_ToQString("Default Printer:Online\x81]Document in queue:0"));
    msg.Answer(MsgAnswer::Yes);
    Ctl<QPushButton>(&dialog, "CmdPrint")->click();
    EXPECT_TRUE(Told("OK to exit printing?", "Print"));
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    ASSERT_TRUE(cups.WaitIdle("torvane"));
    EXPECT_EQ(ReadFile(cups.Output("torvane")).substr(0, 5), "%PDF-");
    EXPECT_FALSE(cups.Jobs("torvane").empty());
}

}  // namespace
