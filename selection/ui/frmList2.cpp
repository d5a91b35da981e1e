#include "selection/ui/frmList2.h"

#include <QCloseEvent>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "common/ui/RunGuarded.h"
#include "core/Tables.h"
#include "selection/ui/GridView.h"
#include "selection/ui/WizardButton.h"
#include "selection/ui/frmList1.h"
#include "common/ui/QtSettingsStore.h"

namespace {

const std::string kTitle = "Driver Selection";

}  // namespace

frmList2::frmList2(frmList1* list1) : QWidget(list1->parentWidget(), Qt::Window), list1_(list1) {
    setObjectName("frmList2");
    setWindowTitle(QString::fromStdString(kTitle));

    lblMotor = new QLabel(this);
    lblMotor->setObjectName("lblMotor");
    lblMotor->setFrameShape(QFrame::Panel);
    lblMotor->setFrameShadow(QFrame::Sunken);
    txtMotor = new QLineEdit(this);
    txtMotor->setObjectName("txtMotor");
    txtMotor->setMaxLength(static_cast<int>(MotorModelText.Raw().size()));
    vsfDrvList = new GridView(kDriverColumns, this);
    vsfDrvList->setObjectName("vsfDrvList");
    cmdReverse = Wizard_Button(this, "cmdReverse", "< Back(&B)");
    cmdDecide = Wizard_Button(this, "cmdDecide", "Finish");
    CmdCancel = Wizard_Button(this, "CmdCancel", "Cancel");

    auto* motor = new QGridLayout;
    motor->addWidget(new QLabel("Selected motor", this), 0, 0);
    motor->addWidget(lblMotor, 0, 1);
    auto* display = new QLabel("(Display)", this);
    display->setBuddy(txtMotor);
    motor->addWidget(display, 1, 0);
    motor->addWidget(txtMotor, 1, 1);
    auto* hint = new QLabel(
        "The model number of the motor can be changed. Input the model number that includes all options.", this);
    hint->setWordWrap(true);
    motor->addWidget(hint, 0, 2, 2, 1);
    motor->setColumnStretch(1, 2);
    motor->setColumnStretch(2, 3);
    auto* drivers = new QLabel("Applicable Drivers(&D)", this);
    drivers->setBuddy(vsfDrvList);
    auto* keys = new QHBoxLayout;
    keys->addStretch();
    keys->addWidget(cmdReverse);
    keys->addWidget(cmdDecide);
    keys->addWidget(CmdCancel);
    auto* main = new QVBoxLayout(this);
    main->addLayout(motor);
    main->addWidget(drivers);
    main->addWidget(vsfDrvList, 1);
    main->addLayout(keys);

    connect(vsfDrvList, &GridView::rowChanged, this, [this](int row) { page_.Row = row; });
    connect(cmdDecide, &QPushButton::clicked, this, &frmList2::cmdDecide_Click);
    connect(cmdReverse, &QPushButton::clicked, this, &frmList2::cmdReverse_Click);
    connect(CmdCancel, &QPushButton::clicked, list1_, &frmList1::Wizard_Unload);
    resize(1100, 460);
    Driver_Header(page_.vsfDrvList);
    vsfDrvList->Show(page_.vsfDrvList);
}

void frmList2::Motor_Take(const DriverPage& chosen) {
    page_.lblMotor = chosen.lblMotor;
    page_.txtMotor = chosen.txtMotor;
    lblMotor->setText(QString::fromStdString(page_.lblMotor));
    txtMotor->setText(QString::fromStdString(page_.txtMotor));
}

void frmList2::Form_Activate() {
    skipActivation_ = !Run_Guarded(kTitle, [this] { DriverPage_Fill(page_); });
    vsfDrvList->Show(page_.vsfDrvList);
    const QSignalBlocker quiet(vsfDrvList);
    vsfDrvList->SetGridRow(page_.Row);
}

void frmList2::cmdDecide_Click() {
    page_.txtMotor = txtMotor->text().toStdString();
    bool finished = false;
    Run_Guarded(kTitle, [&] { finished = DriverPage_Finish(list1_->Page(), page_); });
    if (!finished) return;
    emit decided();
    list1_->Wizard_Unload();
}

void frmList2::cmdReverse_Click() {
    list1_->move(pos());
    hide();
    list1_->show();
    list1_->raise();
    list1_->activateWindow();
}

void frmList2::Unload() {
    Window_Store(this, kListWindowKeys);
    hide();
}

void frmList2::closeEvent(QCloseEvent* event) {
    event->ignore();
    list1_->Wizard_Unload();
}

void frmList2::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || !isVisible()) return;
    if (skipActivation_) skipActivation_ = false;
    else Form_Activate();
}
