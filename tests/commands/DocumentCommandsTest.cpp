// The question before a document is left by New, Open or Exit.
#include <gtest/gtest.h>

#include "base/MsgBox.h"
#include "commands/DocumentCommands.h"
#include "core/Tables.h"
#include "persist/mdlFile.h"
#include "tests/support/TestState.h"

namespace {

class DocumentCommandsTest : public StateTest {
protected:
    // A save that counts its calls and answers as told.
    std::function<bool()> Save(bool result) {
        return [this, result] {
            ++saves;
            return result;
        };
    }

    void ExpectTheQuestion() const {
        ASSERT_EQ(msg.Seen().size(), 1u);
        EXPECT_EQ(msg.Seen()[0].text, "Save changes?");
        EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Question);
        EXPECT_EQ(msg.Seen()[0].buttons, MsgButtons::YesNoCancel);
    }

    int saves = 0;
};

TEST_F(DocumentCommandsTest, WithoutChangesNothingIsAsked) {
    DirtyFlag = 0;
    EXPECT_TRUE(Document_ConfirmLeave(Save(true)));
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(saves, 0);
}

TEST_F(DocumentCommandsTest, YesSavesAndGoesOn) {
    DirtyFlag = 1;
    msg.Answer(MsgAnswer::Yes);
    EXPECT_TRUE(Document_ConfirmLeave(Save(true)));
    ExpectTheQuestion();
    EXPECT_EQ(saves, 1);
}

TEST_F(DocumentCommandsTest, YesWithAFailedOrCancelledSaveStops) {
    DirtyFlag = 1;
    msg.Answer(MsgAnswer::Yes);
    EXPECT_FALSE(Document_ConfirmLeave(Save(false)));
    ExpectTheQuestion();
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(DocumentCommandsTest, NoGoesOnWithoutSaving) {
    DirtyFlag = 1;
    msg.Answer(MsgAnswer::No);
    EXPECT_TRUE(Document_ConfirmLeave(Save(true)));
    ExpectTheQuestion();
    EXPECT_EQ(saves, 0);
}

TEST_F(DocumentCommandsTest, CancelStopsAndKeepsEverything) {
    DirtyFlag = 1;
    ElementCount = 3;
    Element[1].ElementType = 1;
    Element[2].ElementType = 11;
    Patarn[1] = {0.1, 0.1, 3000, 0, 0, 0, 0, 3};
    PatternRowCount = 1;
    FileName = "/somewhere/drive.AP2";
    DocumentNamed = 1;
    msg.Answer(MsgAnswer::Cancel);
    EXPECT_FALSE(Document_ConfirmLeave(Save(true)));
    ExpectTheQuestion();
    EXPECT_EQ(saves, 0);
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_EQ(ElementCount, 3);
    EXPECT_EQ(Element[1].ElementType, 1);
    EXPECT_EQ(Element[2].ElementType, 11);
    EXPECT_EQ(Patarn[1].RowState, 3);
    EXPECT_DOUBLE_EQ(Patarn[1].Speed, 3000);
    EXPECT_EQ(PatternRowCount, 1);
    EXPECT_EQ(FileName, "/somewhere/drive.AP2");
    EXPECT_EQ(DocumentNamed, 1);
}

TEST_F(DocumentCommandsTest, AnUnansweredQuestionIsDeclinedLikeCancel) {
    DirtyFlag = 1;
    EXPECT_FALSE(Document_ConfirmLeave(Save(true)));
    ExpectTheQuestion();
    EXPECT_EQ(saves, 0);
}

}  // namespace

namespace {

class SaveCommandsTest : public StateTest {};

TEST_F(SaveCommandsTest, SaveWritesToTheDocumentsFileAndClearsTheDirtyMark) {
    Chain_Set({51, 1, 11, 31});
    FileName = appDir.File("doc.AP2");
    DirtyFlag = 1;
    EXPECT_TRUE(Document_Save());
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_EQ(ReadFile(FileName), File_Bytes());
}

TEST_F(SaveCommandsTest, SaveAsNamesTheFileAndGivesTheCaption) {
    DirtyFlag = 1;
    EXPECT_EQ(Document_SaveAs(appDir.File("lift axis.AP2")), "Torvane-[lift axis.AP2]");
    EXPECT_EQ(FileName, appDir.File("lift axis.AP2"));
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_EQ(DocumentNamed, 0);  // as it was
}

TEST_F(SaveCommandsTest, AFailedSaveKeepsTheMarkAndTheName) {
    FileName = appDir.File("doc.AP2");
    DirtyFlag = 1;
    EXPECT_EQ(Document_SaveAs(appDir.File("no folder/doc.AP2")), "");
    EXPECT_EQ(FileName, appDir.File("doc.AP2"));
    EXPECT_EQ(DirtyFlag, 1);
    FileName = appDir.File("no folder/doc.AP2");
    EXPECT_FALSE(Document_Save());
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_EQ(msg.Seen().at(0).text, "File write failed.");
}

}  // namespace
