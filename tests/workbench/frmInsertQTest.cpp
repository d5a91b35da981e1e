// The insert question (frmInsertQ): its three buttons and its close box give the answers of MsgBox.
#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

#include "tests/support/Controls.h"
#include "tests/support/TestState.h"
#include "workbench/MsgBoxDialog.h"
#include "workbench/frmInsertQ.h"

namespace {

class frmInsertQTest : public StateTest {};

TEST_F(frmInsertQTest, TheInsertQuestionAnswersByItsThreeButtons) {
    auto answerWith = [](const char* button) {
        QTimer::singleShot(0, [button] {
            auto* q = qobject_cast<frmInsertQ*>(QApplication::activeModalWidget());
            ASSERT_NE(q, nullptr);
            EXPECT_EQ(q->windowTitle(), QString::fromUtf8("Insert\xEF\xBC\x8FOverwrite"));
            Ctl<QPushButton>(q, button)->click();
        });
        return MsgBox_DialogHandler({"Insert?  Overwrite?", "", MsgIcon::Question, MsgButtons::InsertOverwriteCancel});
    };
    EXPECT_EQ(answerWith("cmdInsert"), MsgAnswer::Insert);
    EXPECT_EQ(answerWith("cmdUpdate"), MsgAnswer::Overwrite);
    EXPECT_EQ(answerWith("Command1"), MsgAnswer::Cancel);
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    EXPECT_EQ(frmInsertQ::Ask(nullptr), MsgAnswer::Cancel);
}

}  // namespace
