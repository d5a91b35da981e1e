// Where the file dialogs open: the document's folder, the examples the first
// time an application is opened, the documents folder, and never the
// working folder.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/DialogFolder.h"
#include "core/Tables.h"
#include "tests/support/TestState.h"

namespace {

namespace fs = std::filesystem;

class DialogFolderTest : public StateTest {
protected:
    void SetUp() override {
        StateTest::SetUp();
        fs::create_directories(projects.File("lift"));
        fs::create_directories(Examples());
        fs::create_directories(Documents());
    }
    std::string Examples() const { return appDir.File("examples"); }
    std::string Documents() const { return home.File("Documents"); }
    DialogFolderHints Hints(const std::string& document) const {
        return {document, Examples(), Documents(), home.Path()};
    }

    TempDir projects, home;
};

TEST_F(DialogFolderTest, TheCurrentDocumentsFolderComesFirstForEveryDialog) {
    const DialogFolderHints hints = Hints(projects.File("lift/axis.AP2"));
    EXPECT_EQ(Dialog_StartFolder(hints, DialogFor::OpenApplication), projects.File("lift"));
    EXPECT_EQ(Dialog_StartFolder(hints, DialogFor::OtherFile), projects.File("lift"));
}

TEST_F(DialogFolderTest, ADocumentNamedRelativeToTheWorkingFolderOpensThere) {
    EXPECT_EQ(Dialog_StartFolder(Hints("axis.AP2"), DialogFor::OtherFile), fs::current_path().string());
}

TEST_F(DialogFolderTest, BeforeAnyDocumentOpeningAnApplicationStartsAmongTheExamples) {
    EXPECT_EQ(Dialog_StartFolder(Hints(""), DialogFor::OpenApplication), Examples());
}

TEST_F(DialogFolderTest, BeforeAnyDocumentEveryOtherDialogStartsInTheDocumentsFolder) {
    EXPECT_EQ(Dialog_StartFolder(Hints(""), DialogFor::OtherFile), Documents());
}

TEST_F(DialogFolderTest, WithoutExamplesOpeningStartsInTheDocumentsFolder) {
    fs::remove(Examples());
    EXPECT_EQ(Dialog_StartFolder(Hints(""), DialogFor::OpenApplication), Documents());
    DialogFolderHints none = Hints("");
    none.examples.clear();
    EXPECT_EQ(Dialog_StartFolder(none, DialogFor::OpenApplication), Documents());
}

TEST_F(DialogFolderTest, ADocumentWhoseFolderIsGoneLeadsToTheDocumentsFolderNotTheExamples) {
    EXPECT_EQ(Dialog_StartFolder(Hints(projects.File("moved/axis.AP2")), DialogFor::OpenApplication), Documents());
}

TEST_F(DialogFolderTest, AMissingDocumentsFolderGivesTheHomeFolder) {
    fs::remove(Documents());
    EXPECT_EQ(Dialog_StartFolder(Hints(""), DialogFor::OtherFile), home.Path());
}

TEST_F(DialogFolderTest, WithNoFolderKnownTheDialogOpensAtTheRootNeverTheWorkingFolder) {
    EXPECT_EQ(Dialog_StartFolder({}, DialogFor::OpenApplication), "/");
    EXPECT_EQ(Dialog_StartFolder({"", "", projects.File("none"), projects.File("nobody")}, DialogFor::OtherFile), "/");
}

TEST_F(DialogFolderTest, TheProgramsHintsAreTheDocumentsFileAndTheExamplesBesideAppPath) {
    FileName = projects.File("lift/axis.AP2");
    const DialogFolderHints hints = DialogFolder_Hints(Documents(), home.Path());
    EXPECT_EQ(hints.documentFile, FileName);
    EXPECT_EQ(hints.examples, Examples());
    EXPECT_EQ(hints.documents, Documents());
    EXPECT_EQ(hints.home, home.Path());
}

}  // namespace
