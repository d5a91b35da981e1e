// "Driver Selection", the second page of the selection wizard: the drivers
// that fit the motor taken on, judged on their regeneration, rebuilt every
// time the page comes to the front. "Finish" stores motor and driver.
#pragma once

#include <QWidget>
#include <functional>

#include "selection/DriverPage.h"

class QLabel;
class QLineEdit;
class QPushButton;
class GridView;
class frmList1;

class frmList2 : public QWidget {
    Q_OBJECT
public:
    // decided runs after "Finish" stored motor and driver.
    explicit frmList2(frmList1* list1);

    // Takes the motor that "Next >" chose: lblMotor and txtMotor show it.
    void Motor_Take(const DriverPage& chosen);
    void Form_Activate();
    void cmdDecide_Click();
    void cmdReverse_Click();
    // Stores the position, unless minimised, and hides the page.
    void Unload();
    const DriverPage& Page() const { return page_; }

signals:
    // "Finish" committed the selection.
    void decided();

protected:
    // Closing the page closes the wizard.
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QLabel* lblMotor = nullptr;
    QLineEdit* txtMotor = nullptr;
    GridView* vsfDrvList = nullptr;
    QPushButton* cmdDecide = nullptr;
    QPushButton* cmdReverse = nullptr;
    QPushButton* CmdCancel = nullptr;

    DriverPage page_;
    frmList1* list1_;
    // The activation that follows the message of a failed rebuild does not
    // rebuild again, so the message does not come back at once for ever.
    bool skipActivation_ = false;
};
