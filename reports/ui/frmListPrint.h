// "Print Motor Series Selection Results": prints the wizard's motor list of
// the picked series and model group. Opened modally by the wizard's "Print";
// it stores nothing.
#pragma once

#include <QDialog>

#include "reports/ListPrint.h"

class QComboBox;
class QLabel;
class QPushButton;

class frmListPrint : public QDialog {
    Q_OBJECT
public:
    frmListPrint(ListSheet sheet, QWidget* parent = nullptr);

    // Shows the dialog unless the platform has no default printer, which
    // is told instead. The result of exec, or Rejected when not shown.
    int Open();

protected:
    void changeEvent(QEvent* event) override;

private:
    void CboPrinter_Click();
    void CmdPropaty_Click();
    void CmdPrint_Click();
    void CmdExport_Click();
    QString Printer() const;

    ListSheet sheet_;
    QComboBox* CboPrinter = nullptr;
    QPushButton* CmdPropaty = nullptr;
    QLabel* LblSettings = nullptr;
    QPushButton* CmdPrint = nullptr;
    QPushButton* CmdCancel = nullptr;
    QPushButton* CmdExport = nullptr;
};
