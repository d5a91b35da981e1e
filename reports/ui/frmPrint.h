// "Print Results": what the printed report needs beyond the calculation
// (customer, administrator, system, header and footer, a comment), which
// parts to print, and the printer. Opened modally from the main window.
#pragma once

#include <QDialog>
#include <array>

#include "commands/PrintCommands.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class QTableWidget;

class frmPrint : public QDialog {
    Q_OBJECT
public:
    explicit frmPrint(QWidget* parent = nullptr);

    void done(int result) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* BuildInformation();
    QWidget* BuildComments();
    QWidget* BuildItems();
    void Form_Load();
    void SSTab1_Click(int tab);
    void Controls_Disable();
    void CboPrinter_Click();
    void CmdPropaty_Click();
    void cmdFile_Click();
    void CmdPrint_Click();
    void CmdExport_Click();
    void txtComment_Change();
    bool txtComment_KeyPress(int key);
    bool vsfInfomation_KeyDown(int key);
    // The dialog's state as the core keeps it.
    PrintDialogState State() const;
    QString Printer() const;

    QComboBox* CboPrinter = nullptr;
    QPushButton* CmdPropaty = nullptr;
    QLabel* LblStatus = nullptr;
    QTabWidget* SSTab1 = nullptr;
    QTableWidget* vsfInfomation = nullptr;
    std::array<QLineEdit*, 6> txtData{};
    QPlainTextEdit* txtComment = nullptr;
    std::array<QCheckBox*, 4> chkPrint{};
    QCheckBox* chkTemp = nullptr;
    QLineEdit* txtTemp = nullptr;
    QPushButton* cmdFile = nullptr;
    QPushButton* CmdPrint = nullptr;
    QPushButton* CmdCancel = nullptr;
    QPushButton* CmdExport = nullptr;

    std::array<int16_t, 5> PrintCheck{};
    int PreviousRow = 0;
    bool CommentBusy = false;
    bool loaded_ = false;
};
