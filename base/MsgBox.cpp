#include "base/MsgBox.h"

#include <iostream>

namespace {

MsgHandler& Handler() {
    static MsgHandler handler;
    return handler;
}

}  // namespace

MsgAnswer MsgBox_Decline(MsgButtons buttons) {
    switch (buttons) {
        case MsgButtons::OK: return MsgAnswer::OK;
        case MsgButtons::YesNo: return MsgAnswer::No;
        default: return MsgAnswer::Cancel;
    }
}

MsgAnswer MsgBox(const std::string& text, const std::string& title, MsgIcon icon, MsgButtons buttons) {
    const MsgRequest request{text, title, icon, buttons};
    return Handler() ? Handler()(request) : MsgBox_Decline(buttons);
}

MsgHandler MsgBox_SetHandler(MsgHandler handler) {
    MsgHandler previous = std::move(Handler());
    Handler() = std::move(handler);
    return previous;
}

MsgAnswer MsgBox_ConsoleHandler(const MsgRequest& request) {
    std::cerr << (request.title.empty() ? "" : request.title + ": ") << request.text << '\n';
    return MsgBox_Decline(request.buttons);
}

ScriptedMsgBox::ScriptedMsgBox() {
    previous_ = MsgBox_SetHandler([this](const MsgRequest& request) {
        seen_.push_back(request);
        if (answers_.empty()) return MsgBox_Decline(request.buttons);
        const MsgAnswer a = answers_.front();
        answers_.pop_front();
        return a;
    });
}

ScriptedMsgBox::~ScriptedMsgBox() { MsgBox_SetHandler(std::move(previous_)); }
