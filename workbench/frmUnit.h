// "Unit Selections": one frame of option buttons per unit category. "Apply"
// and "OK" take the picks on; "Cancel" keeps what "Apply" already did.
#pragma once

#include <QDialog>
#include <array>
#include <functional>
#include <vector>

#include "commands/UnitCommands.h"

class QButtonGroup;
class QPushButton;
class QRadioButton;

class frmUnit : public QDialog {
    Q_OBJECT
public:
    // applied runs after the picks were taken on (the main window's refresh).
    explicit frmUnit(QWidget* parent = nullptr);

    void cmdStartSet_Click();
    void cmdReNew_Click();

signals:
    // New unit picks are in force: the windows repaint.
    void applied();

protected:
    void showEvent(QShowEvent* event) override;
    // Every way out (OK, Cancel, the close box, Escape) stores the place.
    void done(int result) override;

private:
    void Form_Load();
    void Show_Picks(const UnitPicks& picks);

    std::array<QButtonGroup*, kUnitCategories> options{};
    QPushButton* cmdStartSet = nullptr;
    QPushButton* cmdReNew = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* CmdCancel = nullptr;
};
