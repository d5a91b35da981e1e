#include "workbench/MsgBoxDialog.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "workbench/frmInsertQ.h"

namespace {

QMessageBox::Icon ToIcon(MsgIcon icon) {
    switch (icon) {
        case MsgIcon::Critical: return QMessageBox::Critical;
        case MsgIcon::Question: return QMessageBox::Question;
        case MsgIcon::Exclamation: return QMessageBox::Warning;
        case MsgIcon::Information: return QMessageBox::Information;
        default: return QMessageBox::NoIcon;
    }
}

}  // namespace

MsgAnswer MsgBox_DialogHandler(const MsgRequest& request) {
    if (request.buttons == MsgButtons::InsertOverwriteCancel) return frmInsertQ::Ask(QApplication::activeWindow());
    QMessageBox box(ToIcon(request.icon), QString::fromStdString(request.title.empty() ? "Torvane" : request.title),
                    QString::fromStdString(request.text), QMessageBox::NoButton, QApplication::activeWindow());
    std::vector<std::pair<QAbstractButton*, MsgAnswer>> buttons;
    auto add = [&](const char* text, QMessageBox::ButtonRole role, MsgAnswer answer) {
        buttons.emplace_back(box.addButton(text, role), answer);
    };
    switch (request.buttons) {
        case MsgButtons::OK: add("OK", QMessageBox::AcceptRole, MsgAnswer::OK); break;
        case MsgButtons::OKCancel:
            add("OK", QMessageBox::AcceptRole, MsgAnswer::OK);
            add("Cancel", QMessageBox::RejectRole, MsgAnswer::Cancel);
            break;
        case MsgButtons::YesNo:
            add("&Yes", QMessageBox::YesRole, MsgAnswer::Yes);
            add("&No", QMessageBox::NoRole, MsgAnswer::No);
            break;
        case MsgButtons::YesNoCancel:
            add("&Yes", QMessageBox::YesRole, MsgAnswer::Yes);
            add("&No", QMessageBox::NoRole, MsgAnswer::No);
            add("Cancel", QMessageBox::RejectRole, MsgAnswer::Cancel);
            break;
        case MsgButtons::InsertOverwriteCancel: break;  // frmInsertQ asks
    }
    box.setDefaultButton(static_cast<QPushButton*>(buttons.front().first));
    box.exec();
    for (const auto& [button, answer] : buttons)
        if (box.clickedButton() == button) return answer;
    return MsgBox_Decline(request.buttons);
}
