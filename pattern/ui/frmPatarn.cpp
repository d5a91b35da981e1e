#include "pattern/ui/frmPatarn.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>

#include "common/ui/Cp1252Text.h"

namespace {

QLineEdit* Field(QWidget* parent, const char* name) {
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(name);
    edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    edit->setMinimumWidth(110);
    return edit;
}

}  // namespace

frmPatarn::frmPatarn(std::function<int()> gridRow, QWidget* parent) : QDialog(parent), gridRow_(std::move(gridRow)) {
    setObjectName("frmPatarn");
    setWindowTitle(kTrapezoidTitle);
    setModal(false);

    mebMoveTime = Field(this, "mebMoveTime");
    mebMoveDistance = Field(this, "mebMoveDistance");
    mebAccelTime = Field(this, "mebAccelTime");
    mebAccel = Field(this, "mebAccel");
    for (QLineEdit* f : {mebMoveTime, mebMoveDistance, mebAccelTime, mebAccel}) f->installEventFilter(this);
    for (int i = 0; i < 2; ++i) {
        lblTime[i] = new QLabel(this);
        lblTime[i]->setObjectName(QString("lblTime%1").arg(i));
    }
    lblLength = new QLabel("mm", this);
    lblLength->setObjectName("lblLength");
    lblRapid = new QLabel("mm/s2", this);
    lblRapid->setObjectName("lblRapid");
    optTime = new QRadioButton("Accel/decel time", this);
    optTime->setObjectName("optTime");
    optRapid = new QRadioButton("Acceleration", this);
    optRapid->setObjectName("optRapid");
    lblMax = new QLabel(this);
    lblMax->setObjectName("lblMax");
    cmdOK = new QPushButton("OK(&Y)", this);
    cmdOK->setObjectName("cmdOK");
    CmdCancel = new QPushButton("Cancel", this);
    CmdCancel->setObjectName("CmdCancel");

    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel("Operating     time", this), 0, 0);
    grid->addWidget(mebMoveTime, 0, 1);
    grid->addWidget(lblTime[0], 0, 2);
    grid->addWidget(new QLabel("Operating      distance", this), 1, 0);
    grid->addWidget(mebMoveDistance, 1, 1);
    grid->addWidget(lblLength, 1, 2);
    grid->addWidget(optTime, 2, 0);
    grid->addWidget(mebAccelTime, 2, 1);
    grid->addWidget(lblTime[1], 2, 2);
    grid->addWidget(optRapid, 3, 0);
    grid->addWidget(mebAccel, 3, 1);
    grid->addWidget(lblRapid, 3, 2);
    grid->addWidget(lblMax, 4, 0, 1, 3);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(CmdCancel);
    auto* main = new QVBoxLayout(this);
    main->addLayout(grid);
    main->addLayout(buttons);

    connect(optTime, &QRadioButton::clicked, this, [this] { Option_Click(true); });
    connect(optRapid, &QRadioButton::clicked, this, [this] { Option_Click(false); });
    connect(cmdOK, &QPushButton::clicked, this, &frmPatarn::cmdOK_Click);
    connect(CmdCancel, &QPushButton::clicked, this, &QDialog::close);
}

// A show the program asks for is an opening; one from the window system (a
// restore after minimising) is not.
void frmPatarn::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) Form_Load();
    Form_Activate();
}

// The units may have changed in the unit dialog while the builder stood aside.
void frmPatarn::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) Form_Activate();
}

void frmPatarn::Form_Load() {
    form_ = TrapezoidForm{};
    Push();
    optTime->setChecked(true);
    mebAccelTime->setEnabled(true);
    mebAccel->setEnabled(false);
}

void frmPatarn::Form_Activate() {
    Trapezoid_Activate(form_);
    for (QLabel* l : lblTime) l->setText(Cp1252_ToQString(form_.lblTime));
    lblLength->setText(Cp1252_ToQString(form_.lblLength));
    lblRapid->setText(Cp1252_ToQString(form_.lblRapid));
}

void frmPatarn::Pull() {
    form_.mebMoveTime = mebMoveTime->text().toStdString();
    form_.mebMoveDistance = mebMoveDistance->text().toStdString();
    form_.mebAccelTime = mebAccelTime->text().toStdString();
    form_.mebAccel = mebAccel->text().toStdString();
}

void frmPatarn::Push() {
    mebMoveTime->setText(QString::fromStdString(form_.mebMoveTime));
    mebMoveDistance->setText(QString::fromStdString(form_.mebMoveDistance));
    mebAccelTime->setText(QString::fromStdString(form_.mebAccelTime));
    mebAccel->setText(QString::fromStdString(form_.mebAccel));
    lblMax->setText(Cp1252_ToQString(form_.lblMax));
}

void frmPatarn::Option_Click(bool accelTime) {
    Pull();
    Option_Pick(form_, accelTime);
    Push();
    mebAccelTime->setEnabled(accelTime);
    mebAccel->setEnabled(!accelTime);
}

void frmPatarn::Field_Leave(QLineEdit* field) {
    if (checking_) return;
    checking_ = true;
    Pull();
    bool kept = true;
    if (field == mebMoveTime) kept = MoveTime_Leave(form_);
    else if (field == mebMoveDistance) kept = MoveDistance_Leave(form_);
    else if (field == mebAccel) kept = Accel_Leave(form_);
    else kept = AccelTime_Leave(form_);
    Push();
    checking_ = false;
    if (!kept) QTimer::singleShot(0, field, [field] { field->setFocus(); });
}

void frmPatarn::Next_Field(QLineEdit* field) {
    if (field == mebMoveTime) mebMoveDistance->setFocus();
    else if (field == mebMoveDistance) (optTime->isChecked() ? mebAccelTime : mebAccel)->setFocus();
    else cmdOK->setFocus();
}

bool frmPatarn::eventFilter(QObject* watched, QEvent* event) {
    auto* field = qobject_cast<QLineEdit*>(watched);
    if (!field) return QDialog::eventFilter(watched, event);
    if (event->type() == QEvent::FocusOut) Field_Leave(field);
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter || key->key() == Qt::Key_Right) {
            Next_Field(field);
            return true;
        }
        const QString t = key->text();
        if (!t.isEmpty() && t.at(0).isPrint() && !Trapezoid_KeyAllowed(t.at(0).unicode())) return true;
    }
    return QDialog::eventFilter(watched, event);
}

void frmPatarn::cmdOK_Click() {
    Pull();
    const bool written = Trapezoid_OK(form_, gridRow_());
    Push();
    if (!written) return;
    emit built();
    close();
}
