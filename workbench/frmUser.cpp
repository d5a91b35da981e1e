#include "workbench/frmUser.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/MsgBox.h"
#include "base/RuntimeError.h"
#include "common/ui/Cp1252Text.h"
#include "common/ui/RunGuarded.h"

namespace {

constexpr std::array<const char*, kAdminLines> kNames = {"txtName", "txtCorp", "txtUnit1", "txtUnit2",
                                                         "txtTel",  "txtFax",  "txtMail"};
constexpr std::array<const char*, kAdminLines> kLabels = {"Name:", "Company:", "Department1:", "Department2:",
                                                          "Tel:",  "Fax:",     "E-mail:"};

}  // namespace

frmUser::frmUser(QWidget* parent) : QDialog(parent) {
    setObjectName("frmUser");
    setWindowTitle("Administrator Information");
    setModal(true);
    auto* form = new QFormLayout;
    AdminTexts texts{};
    try {
        texts = MtrUser_Read();
    } catch (const RuntimeError& e) {
        MsgBox(e.what(), "Administrator Information", MsgIcon::Exclamation);
    }
    for (int i = 0; i < kAdminLines; ++i) {
        boxes[i] = new QLineEdit(Cp1252_ToQString(texts[i]), this);
        boxes[i]->setObjectName(kNames[i]);
        boxes[i]->setMinimumWidth(320);
        boxes[i]->installEventFilter(this);
        form->addRow(kLabels[i], boxes[i]);
    }
    cmdOK = new QPushButton("OK(&Y)", this);
    cmdOK->setObjectName("cmdOK");
    CmdCancel = new QPushButton("Cancel", this);
    CmdCancel->setObjectName("CmdCancel");
    connect(cmdOK, &QPushButton::clicked, this, &frmUser::cmdOK_Click);
    connect(CmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(CmdCancel);
    auto* main = new QVBoxLayout(this);
    main->addLayout(form);
    main->addLayout(buttons);
}

// Enter moves on to the next box, and from the last to "OK" without pressing it;
// a further Enter presses the button that has the focus.
bool frmUser::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            for (int i = 0; i < kAdminLines; ++i)
                if (boxes[i] == watched) {
                    if (i + 1 < kAdminLines) boxes[i + 1]->setFocus();
                    else cmdOK->setFocus();
                    return true;
                }
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmUser::cmdOK_Click() {
    AdminTexts texts;
    for (int i = 0; i < kAdminLines; ++i) texts[i] = QString_ToCp1252(boxes[i]->text());
    if (!Run_Guarded("Administrator Information", [&texts] { MtrUser_Write(texts); })) return;
    accept();
}
