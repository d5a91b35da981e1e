// "Trapezoidal Pattern": builds the rows of one move at the pattern grid's
// current row. It stays open beside the main window without blocking it.
#pragma once

#include <QDialog>
#include <functional>

#include "pattern/Trapezoid.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

class frmPatarn : public QDialog {
    Q_OBJECT
public:
    // gridRow gives the grid row the rows go in at; built runs after they did.
    // gridRow answers the current row of the pattern grid when OK is pressed.
    explicit frmPatarn(std::function<int()> gridRow, QWidget* parent = nullptr);

    void cmdOK_Click();

signals:
    // Rows were written into the pattern: the main window repaints.
    void built();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // Every opening starts afresh: empty fields, the accel/decel time picked, no range.
    void Form_Load();
    void Form_Activate();
    void Option_Click(bool accelTime);
    // Runs the check of a field that lost the focus; the focus goes back on a refusal.
    void Field_Leave(QLineEdit* field);
    void Next_Field(QLineEdit* field);
    void Pull();
    void Push();

    QLineEdit* mebMoveTime = nullptr;
    QLineEdit* mebMoveDistance = nullptr;
    QLineEdit* mebAccelTime = nullptr;
    QLineEdit* mebAccel = nullptr;
    QRadioButton* optTime = nullptr;
    QRadioButton* optRapid = nullptr;
    QLabel* lblTime[2] = {};
    QLabel* lblLength = nullptr;
    QLabel* lblRapid = nullptr;
    QLabel* lblMax = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* CmdCancel = nullptr;

    TrapezoidForm form_;
    std::function<int()> gridRow_;
    bool checking_ = false;
};
