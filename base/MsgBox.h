// Every question and every message of the system goes through MsgBox. The
// window program installs a handler that shows a dialog, the tests a scripted
// one, the command line tool one that prints and declines.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

enum class MsgIcon { None, Critical, Question, Exclamation, Information };

enum class MsgButtons { OK, OKCancel, YesNo, YesNoCancel, InsertOverwriteCancel };

enum class MsgAnswer { OK, Cancel, Yes, No, Insert, Overwrite };

struct MsgRequest {
    std::string text;  // UTF-8
    std::string title;
    MsgIcon icon = MsgIcon::None;
    MsgButtons buttons = MsgButtons::OK;
};

using MsgHandler = std::function<MsgAnswer(const MsgRequest&)>;

// Shows the message through the installed handler and returns the answer.
// Without a handler the answer is the declining one of the buttons.
MsgAnswer MsgBox(const std::string& text, const std::string& title,
                 MsgIcon icon = MsgIcon::None, MsgButtons buttons = MsgButtons::OK);

// Installs a handler and returns the one it replaces.
MsgHandler MsgBox_SetHandler(MsgHandler handler);

// The answer that declines: Cancel where offered, else No, else OK.
MsgAnswer MsgBox_Decline(MsgButtons buttons);

// Prints "title: text" to standard error and declines.
MsgAnswer MsgBox_ConsoleHandler(const MsgRequest& request);

// Records every request and answers from a queue; an empty queue declines.
class ScriptedMsgBox {
public:
    ScriptedMsgBox();
    ~ScriptedMsgBox();
    ScriptedMsgBox(const ScriptedMsgBox&) = delete;
    ScriptedMsgBox& operator=(const ScriptedMsgBox&) = delete;

    void Answer(MsgAnswer answer) { answers_.push_back(answer); }
    const std::vector<MsgRequest>& Seen() const { return seen_; }
    void Clear() { seen_.clear(), answers_.clear(); }

private:
    std::vector<MsgRequest> seen_;
    std::deque<MsgAnswer> answers_;
    MsgHandler previous_;
};
