// The file dialogs of the main window, shown and answered as a user answers
// them: where each opens, its title, and the suffix a typed name receives.
#include <QAction>
#include <QApplication>
#include <QDir>
#include <gtest/gtest.h>

#include <filesystem>

#include "core/Tables.h"
#include "tests/support/FileDialogAnswer.h"
#include "tests/support/WorkbenchFixture.h"
#include "workbench/frmMain.h"

namespace {

namespace fs = std::filesystem;

const char* const kExample = "horizontal-ballscrew.AP2";

// A home folder of the test's own with a documents folder, and the examples
// beside AppPath as the build lays them out.
class frmMainDialogsTest : public WorkbenchTest {
protected:
    void SetUp() override {
        WorkbenchTest::SetUp();
        Keep("HOME", home.Path());
        Keep("XDG_CONFIG_HOME", home.File(".config"));
        fs::create_directories(Documents());
        fs::create_directories(Examples());
        fs::copy_file(TORVANE_SOURCE_DIR "/examples/" + std::string(kExample), Examples() + "/" + kExample);
    }

    void TearDown() override {
        for (const auto& [name, value] : kept)
            if (value.isNull()) qunsetenv(name);
            else qputenv(name, value);
        WorkbenchTest::TearDown();
    }

    std::string Documents() const { return home.File("Documents"); }
    std::string Examples() const { return appDir.File("examples"); }

    static QString Q(const std::string& path) { return QString::fromStdString(path); }

    // Runs a command of the menus and answers its file dialog with name.
    static FileDialogSeen Answer(frmMain& w, const char* command, const QString& name, bool list = false) {
        FileDialogSeen seen;
        FileDialog_AnswerNext(name, seen, list);
        w.Action(command)->trigger();
        return seen;
    }

    TempDir home;

private:
    void Keep(const char* name, const std::string& value) {
        kept.push_back({name, qEnvironmentVariableIsSet(name) ? qgetenv(name) : QByteArray()});
        qputenv(name, QByteArray::fromStdString(value));
    }
    std::vector<std::pair<const char*, QByteArray>> kept;
};

TEST_F(frmMainDialogsTest, TheFirstOpenStartsAmongTheExamplesAndOpensOne) {
    frmMain w;
    w.show();
    const FileDialogSeen seen = Answer(w, "mnuFileOpen", kExample);
    ASSERT_TRUE(seen.shown);
    EXPECT_EQ(seen.title, "Open");
    EXPECT_EQ(seen.folder, Q(Examples()));
    EXPECT_EQ(FileName, Examples() + "/" + kExample);
    EXPECT_GT(ElementCount, 1);
    EXPECT_GT(PatternRowCount, 0);
    EXPECT_EQ(w.windowTitle(), QString("Torvane-[%1]").arg(kExample));
}

TEST_F(frmMainDialogsTest, SaveAsOfANewDocumentStartsInTheDocumentsFolderAndAddsTheSuffix) {
    frmMain w;
    StartOneRow(w);
    const FileDialogSeen seen = Answer(w, "mnuFileSaveAs", "lift");
    ASSERT_TRUE(seen.shown);
    EXPECT_EQ(seen.title, "Save As");
    EXPECT_EQ(seen.folder, Q(Documents()));
    EXPECT_EQ(seen.defaultSuffix, "AP2");
    EXPECT_TRUE(fs::is_regular_file(Documents() + "/lift.AP2"));
    EXPECT_FALSE(fs::exists(Documents() + "/lift"));
    EXPECT_EQ(FileName, Documents() + "/lift.AP2");
    EXPECT_EQ(w.windowTitle(), "Torvane-[lift.AP2]");
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(frmMainDialogsTest, OpenAfterSaveAsStartsInTheDocumentsFolderAndListsTheDocument) {
    frmMain w;
    StartWith(w, 1);
    ASSERT_TRUE(Answer(w, "mnuFileSaveAs", "lift").shown);
    const FileDialogSeen opened = Answer(w, "mnuFileOpen", "", true);
    ASSERT_TRUE(opened.shown);
    EXPECT_EQ(opened.folder, Q(Documents()));
    EXPECT_EQ(opened.listed, QStringList{"lift.AP2"});
    EXPECT_EQ(FileName, Documents() + "/lift.AP2");  // cancelled: nothing changes
}

TEST_F(frmMainDialogsTest, AFullNameTypedIntoSaveAsKeepsItsOwnSuffix) {
    frmMain w;
    StartWith(w, 1);
    ASSERT_TRUE(Answer(w, "mnuFileSaveAs", "lift.v2").shown);
    EXPECT_TRUE(fs::is_regular_file(Documents() + "/lift.v2"));
    EXPECT_FALSE(fs::exists(Documents() + "/lift.v2.AP2"));
}

TEST_F(frmMainDialogsTest, SaveResultsHasItsOwnTitleAndStartsInTheDocumentsFolder) {
    frmMain w;
    StartOneRow(w);
    const FileDialogSeen seen = Answer(w, "mnuCulcurate", "results");
    ASSERT_TRUE(seen.shown);
    EXPECT_EQ(seen.title, "Save Calculation Results");
    EXPECT_EQ(seen.folder, Q(Documents()));
    EXPECT_EQ(seen.defaultSuffix, "");
    // The results file is written under the name as given.
    EXPECT_TRUE(fs::is_regular_file(Documents() + "/results"));
    EXPECT_FALSE(fs::exists(Documents() + "/results.TXT"));
}

TEST_F(frmMainDialogsTest, WithADocumentEveryDialogStartsInItsFolder) {
    frmMain w;
    w.show();
    ASSERT_TRUE(Answer(w, "mnuFileOpen", kExample).shown);
    ASSERT_EQ(FileName, Examples() + "/" + kExample);
    for (const char* command : {"mnuCulcurate", "mnuFileSaveAs", "mnuFileOpen"}) {
        const FileDialogSeen seen = Answer(w, command, "");
        ASSERT_TRUE(seen.shown) << command;
        EXPECT_EQ(seen.folder, Q(Examples())) << command;
    }
}

TEST_F(frmMainDialogsTest, WithoutExamplesNorADocumentsFolderOpenStartsAtHomeNotTheProgramsFolder) {
    fs::remove_all(Examples());
    fs::remove_all(Documents());
    frmMain w;
    w.show();
    const FileDialogSeen seen = Answer(w, "mnuFileOpen", "");
    ASSERT_TRUE(seen.shown);
    EXPECT_EQ(seen.folder, Q(home.Path()));
    EXPECT_NE(seen.folder, QApplication::applicationDirPath());
    EXPECT_NE(seen.folder, QDir::currentPath());
}

}  // namespace
