// The one road of every question and message: scripted, console and none.
#include <gtest/gtest.h>

#include <string>

#include "base/MsgBox.h"
#include "tests/support/TestState.h"

namespace {

class MsgBoxTest : public StateTest {};

TEST_F(MsgBoxTest, ScriptedHandlerRecordsEveryRequest) {
    msg.Answer(MsgAnswer::Yes);
    EXPECT_EQ(MsgBox("Save changes?", "Torvane", MsgIcon::Exclamation, MsgButtons::YesNoCancel), MsgAnswer::Yes);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Save changes?");
    EXPECT_EQ(msg.Seen()[0].title, "Torvane");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(msg.Seen()[0].buttons, MsgButtons::YesNoCancel);
}

TEST_F(MsgBoxTest, ScriptedAnswersComeInOrderThenDecline) {
    msg.Answer(MsgAnswer::Insert);
    msg.Answer(MsgAnswer::Overwrite);
    EXPECT_EQ(MsgBox("q", "", MsgIcon::Question, MsgButtons::InsertOverwriteCancel), MsgAnswer::Insert);
    EXPECT_EQ(MsgBox("q", "", MsgIcon::Question, MsgButtons::InsertOverwriteCancel), MsgAnswer::Overwrite);
    EXPECT_EQ(MsgBox("q", "", MsgIcon::Question, MsgButtons::InsertOverwriteCancel), MsgAnswer::Cancel);
    EXPECT_EQ(MsgBox("q", "", MsgIcon::Question, MsgButtons::YesNo), MsgAnswer::No);
    EXPECT_EQ(MsgBox("told", ""), MsgAnswer::OK);
    EXPECT_EQ(msg.Seen().size(), 5u);
}

TEST_F(MsgBoxTest, ClearForgetsRequestsAndAnswers) {
    msg.Answer(MsgAnswer::OK);
    msg.Answer(MsgAnswer::OK);
    MsgBox("a", "", MsgIcon::None, MsgButtons::OKCancel);
    msg.Clear();
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(MsgBox("b", "", MsgIcon::None, MsgButtons::OKCancel), MsgAnswer::Cancel);
}

TEST_F(MsgBoxTest, DeclineIsCancelThenNoThenOk) {
    EXPECT_EQ(MsgBox_Decline(MsgButtons::OK), MsgAnswer::OK);
    EXPECT_EQ(MsgBox_Decline(MsgButtons::OKCancel), MsgAnswer::Cancel);
    EXPECT_EQ(MsgBox_Decline(MsgButtons::YesNo), MsgAnswer::No);
    EXPECT_EQ(MsgBox_Decline(MsgButtons::YesNoCancel), MsgAnswer::Cancel);
    EXPECT_EQ(MsgBox_Decline(MsgButtons::InsertOverwriteCancel), MsgAnswer::Cancel);
}

TEST_F(MsgBoxTest, WithoutAHandlerTheAnswerDeclines) {
    MsgHandler saved = MsgBox_SetHandler(nullptr);
    EXPECT_EQ(MsgBox("q", "", MsgIcon::Question, MsgButtons::OKCancel), MsgAnswer::Cancel);
    EXPECT_EQ(MsgBox("q", "", MsgIcon::Question, MsgButtons::YesNo), MsgAnswer::No);
    EXPECT_EQ(MsgBox("q", ""), MsgAnswer::OK);
    MsgBox_SetHandler(std::move(saved));
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(MsgBoxTest, NestedScriptRestoresTheOuterOne) {
    {
        ScriptedMsgBox inner;
        inner.Answer(MsgAnswer::OK);
        EXPECT_EQ(MsgBox("inner", "", MsgIcon::None, MsgButtons::OKCancel), MsgAnswer::OK);
        EXPECT_EQ(inner.Seen().size(), 1u);
    }
    msg.Answer(MsgAnswer::Yes);
    EXPECT_EQ(MsgBox("outer", "", MsgIcon::None, MsgButtons::YesNo), MsgAnswer::Yes);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "outer");
}

TEST_F(MsgBoxTest, ConsoleHandlerPrintsTitleAndTextAndDeclines) {
    MsgHandler saved = MsgBox_SetHandler(MsgBox_ConsoleHandler);
    testing::internal::CaptureStderr();
    const MsgAnswer a = MsgBox("Delete?", "Delete Component", MsgIcon::Question, MsgButtons::OKCancel);
    const MsgAnswer b = MsgBox("Save changes?", "", MsgIcon::Exclamation, MsgButtons::YesNoCancel);
    const MsgAnswer c = MsgBox("Overwrite the file?", "Save", MsgIcon::Question, MsgButtons::YesNo);
    const std::string err = testing::internal::GetCapturedStderr();
    MsgBox_SetHandler(std::move(saved));
    EXPECT_EQ(a, MsgAnswer::Cancel);
    EXPECT_EQ(b, MsgAnswer::Cancel);
    EXPECT_EQ(c, MsgAnswer::No);
    EXPECT_EQ(err, "Delete Component: Delete?\nSave changes?\nSave: Overwrite the file?\n");
    EXPECT_TRUE(msg.Seen().empty());
}

}  // namespace
