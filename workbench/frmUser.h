// "Administrator Information": the seven lines of MtrUser.dat.
#pragma once

#include <QDialog>
#include <array>

#include "persist/MtrUser.h"

class QLineEdit;
class QPushButton;

class frmUser : public QDialog {
    Q_OBJECT
public:
    explicit frmUser(QWidget* parent = nullptr);

    void cmdOK_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // txtName, txtCorp, txtUnit1, txtUnit2, txtTel, txtFax, txtMail.
    std::array<QLineEdit*, kAdminLines> boxes{};
    QPushButton* cmdOK = nullptr;
    QPushButton* CmdCancel = nullptr;
};
