// File > Import Pattern... and File > Export Pattern... of the main window,
// driven through the menu with the file dialogs answered by script: the grid,
// the graphs and the results follow an import as they follow a typed edit,
// and a refused import leaves them as they were.
#include <QAction>
#include <QMenu>
#include <QTableWidget>
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "pattern/ui/PatternGraph.h"
#include "tests/support/WorkbenchFixture.h"

namespace {

class PatternFileWindowTest : public WorkbenchTest {
protected:
    // Imports the text through the menu, the dialog answering with its file.
    void Import(frmMain& w, const std::string& text) {
        const std::string path = appDir.File("points.csv");
        WriteFile(path, text);
        FileDialog_Script({QString::fromStdString(path)});
        w.Action("mnuPatternImport")->trigger();
        EXPECT_EQ(FileDialog_Remaining(), 0);
    }

    // Exports through the menu into a file of that name, and reads it.
    std::string Export(frmMain& w, const std::string& name) {
        const std::string path = appDir.File(name);
        FileDialog_Script({QString::fromStdString(path)});
        w.Action("mnuPatternExport")->trigger();
        EXPECT_EQ(FileDialog_Remaining(), 0);
        return ReadFile(path);
    }

    // A complete row typed as its interval and its speed.
    static void TypeRow(frmMain& w, int gridRow, const QString& interval, const QString& speed) {
        Type(w, gridRow, 2, interval);
        Type(w, gridRow, 3, speed);
    }

    void ExpectOneMessage(const std::string& text, const std::string& title) const {
        ASSERT_EQ(msg.Seen().size(), 1u);
        EXPECT_EQ(msg.Seen()[0].text, text);
        EXPECT_EQ(msg.Seen()[0].title, title);
    }

    static QString Result(frmMain& w, int row) { return Ctl<QTableWidget>(&w, "vsfMotor")->item(row, 2)->text(); }
};

}  // namespace

TEST_F(PatternFileWindowTest, TheFileMenuOffersImportAndExportOfThePattern) {
    frmMain w;
    auto* file = Ctl<QMenu>(&w, "mnuFile");
    const QList<QAction*> actions = file->actions();
    const auto at = [&](const char* name) { return actions.indexOf(w.Action(name)); };
    EXPECT_EQ(w.Action("mnuPatternImport")->text(), "&Import Pattern...");  // I and E open them from the keyboard
    EXPECT_EQ(w.Action("mnuPatternExport")->text(), "&Export Pattern...");
    EXPECT_GT(at("mnuPatternImport"), at("mnuCulcurate"));
    EXPECT_EQ(at("mnuPatternExport"), at("mnuPatternImport") + 1);
    EXPECT_LT(at("mnuPatternExport"), at("mnuFilePrint"));
}

TEST_F(PatternFileWindowTest, AnImportFillsTheGridTheGraphsAndTheResults) {
    frmMain w;
    StartWith(w, 1);
    Import(w, "\xEF\xBB\xBFtime (s),speed (r/min)\r\n0,0\r\n1,100\r\n3,-100\r\n");
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(PatternRowCount, 3);
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_EQ(Cell(w, 2, 1), "1.000");
    EXPECT_EQ(Cell(w, 3, 1), "2.000");
    EXPECT_EQ(Cell(w, 3, 2), "1.000");
    EXPECT_EQ(Cell(w, 3, 3), "0.0");
    EXPECT_EQ(Cell(w, 4, 3), "-100.0");
    EXPECT_FALSE(Cell(w, 4, 6).isEmpty());
    EXPECT_EQ(Cell(w, 5, 1), "");
    EXPECT_EQ(Ctl<PatternGraph>(&w, "picTorquePatarn")->Drawing().curve.size(), 6u);
    EXPECT_FALSE(Ctl<PatternGraph>(&w, "picCirclePatarn")->Drawing().curve.empty());
    EXPECT_EQ(Result(w, 4), "100");
}

TEST_F(PatternFileWindowTest, AnImportReplacesTypedRowsAndAnotherImportFollows) {
    frmMain w;
    StartWith(w, 1);
    TypeRow(w, 2, "0.1", "3000");
    TypeRow(w, 3, "0.5", "3000");
    Import(w, "interval,speed\n0.2,1500\n0.2,0\n");
    EXPECT_EQ(Cell(w, 2, 3), "1500.0");
    EXPECT_EQ(Cell(w, 3, 1), "0.400");
    EXPECT_EQ(Result(w, 4), "1500");
    Import(w, "interval,speed\n0.3,700\n");
    EXPECT_EQ(Cell(w, 2, 3), "700.0");
    EXPECT_EQ(Cell(w, 3, 1), "");
    EXPECT_EQ(PatternRowCount, 1);
    EXPECT_EQ(Result(w, 4), "700");
}

TEST_F(PatternFileWindowTest, ARefusedImportTellsWhyAndLeavesTheWindowAsItWas) {
    frmMain w;
    StartWith(w, 1);
    TypeRow(w, 2, "0.1", "3000");
    DirtyFlag = 0;
    const QString speed = Cell(w, 2, 3), torque = Cell(w, 2, 6), result = Result(w, 4);
    std::string text = "time,speed\n";
    for (int i = 1; i <= 21; ++i) text += std::to_string(i) + ",100\n";
    Import(w, text);
    ExpectOneMessage("The operating pattern holds at most 20 rows; the point table gives 21.", "Operating Pattern");
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_EQ(PatternRowCount, 1);
    EXPECT_EQ(Cell(w, 2, 3), speed);
    EXPECT_EQ(Cell(w, 2, 6), torque);
    EXPECT_EQ(Cell(w, 3, 1), "");
    EXPECT_EQ(Result(w, 4), result);
}

TEST_F(PatternFileWindowTest, ACancelledDialogImportsNothing) {
    frmMain w;
    StartWith(w, 1);
    FileDialog_Script({""});
    w.Action("mnuPatternImport")->trigger();
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_EQ(PatternRowCount, 0);
}

TEST_F(PatternFileWindowTest, AnExportWritesTheRowsAsTheGridShowsThem) {
    frmMain w;
    StartWith(w, 1);
    TypeRow(w, 2, "0.1", "3000");
    TypeRow(w, 3, "0.5", "3000");
    TypeRow(w, 4, "0.1", "0");
    DirtyFlag = 0;
    EXPECT_EQ(Export(w, "out.csv"), "time (s),speed (r/min)\n0.000,0.0\n0.100,3000.0\n0.600,3000.0\n0.700,0.0\n");
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(PatternFileWindowTest, AnExportAndItsImportGiveTheSameGrid) {
    frmMain w;
    StartWith(w, 1);
    Import(w, "interval,speed\n0.123,2500\n0.4,2500\n0.25,0\n");
    QStringList before;
    for (int r = 2; r <= 6; ++r)
        for (int c = 1; c <= 6; ++c) before << Cell(w, r, c);
    Export(w, "round.csv");
    Import(w, ReadFile(appDir.File("round.csv")));
    QStringList after;
    for (int r = 2; r <= 6; ++r)
        for (int c = 1; c <= 6; ++c) after << Cell(w, r, c);
    EXPECT_EQ(after, before);
}

TEST_F(PatternFileWindowTest, AnExportThatCannotBeWrittenSaysSo) {
    frmMain w;
    StartWith(w, 1);
    Export(w, "no/such/folder/out.csv");
    ExpectOneMessage("The point table could not be written.", "Export Pattern");
}

TEST_F(PatternFileWindowTest, AnEditInProgressIsCommittedBeforeTheExport) {
    frmMain w;
    StartWith(w, 1);
    Type(w, 2, 1, "0.1");
    w.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&w));
    QLineEdit* edit = PatternCell_OpenEditor(w, 2, 3);
    ASSERT_NE(edit, nullptr);
    QApplication::processEvents();
    edit->setFocus();
    QTest::keyClicks(edit, "1500");
    ASSERT_EQ(QApplication::focusWidget(), edit);  // the edit is still open when the command comes
    EXPECT_EQ(Export(w, "open.csv"), "time (s),speed (r/min)\n0.000,0.0\n0.100,1500.0\n");
}
