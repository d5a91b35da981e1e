#include "workbench/frmMeca.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "common/ui/SelectionLook.h"
#include "core/MecaSelect.h"
#include "core/Tables.h"
#include "core/Templates.h"
#include "workbench/Pictures.h"

namespace {

constexpr QSize kPictureSize(160, 120);

}  // namespace

frmMeca::frmMeca(QWidget* parent) : QDialog(parent) {
    setObjectName("frmMeca");
    setWindowTitle("Mechanical System Selection");
    setModal(true);

    Shape2 = new QFrame(this);
    Shape2->setObjectName("Shape2");
    auto* grid = new QGridLayout(Shape2);
    grid->setSpacing(8);
    for (int i = 0; i < kMecaCells; ++i) {
        auto* cell = new QFrame(Shape2);
        cell->setObjectName(QString("picMachine%1").arg(i));
        cell->setFocusPolicy(Qt::StrongFocus);
        cell->setFrameShape(QFrame::Box);
        cell->setLineWidth(2);
        cell->installEventFilter(this);
        auto* layout = new QVBoxLayout(cell);
        layout->setContentsMargins(4, 4, 4, 4);
        auto* picture = new QLabel(cell);
        picture->setAlignment(Qt::AlignCenter);
        picture->setMinimumSize(kPictureSize);
        const QPixmap pixmap = Picture_Machine(i, kPictureSize);
        hasPicture_[i] = !pixmap.isNull();
        if (hasPicture_[i]) picture->setPixmap(pixmap);
        auto* caption = new QLabel(cell);
        caption->setObjectName(QString("lblMachine%1").arg(i));
        caption->setAlignment(Qt::AlignCenter);
        caption->setAutoFillBackground(true);
        if (i == 0) caption->setText("Manual Selection");
        if (i >= 1 && i <= 9) caption->setText(QString::fromLatin1(Template_Name(static_cast<int16_t>(i)).data()));
        if (i == 0) {
            lblHandSelect = new QLabel("Select\nall components\nmanually", cell);
            lblHandSelect->setObjectName("lblHandSelect");
            lblHandSelect->setAlignment(Qt::AlignCenter);
            lblHandSelect->setCursor(Qt::PointingHandCursor);
            lblHandSelect->installEventFilter(this);
            picture->hide();
            layout->addWidget(lblHandSelect, 1);
        } else {
            layout->addWidget(picture, 1);
        }
        layout->addWidget(caption);
        picMachine[i] = cell;
        lblMachine[i] = caption;
        grid->addWidget(cell, i / 4, i % 4);
    }

    cmdOK = new QPushButton("OK(&Y)", this);
    cmdOK->setObjectName("cmdOK");
    CmdCancel = new QPushButton("Cancel", this);
    CmdCancel->setObjectName("CmdCancel");
    connect(cmdOK, &QPushButton::clicked, this, &frmMeca::cmdOK_Click);
    connect(CmdCancel, &QPushButton::clicked, this, &frmMeca::CmdCancel_Click);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(CmdCancel);

    auto* main = new QVBoxLayout(this);
    main->addWidget(Shape2, 1);
    main->addLayout(buttons);

    Meca_Load();
    for (int i = 0; i < kMecaCells; ++i) SetLook(i, false);
}

void frmMeca::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    skipFocus_ = false;
    ShowShape2(true);
    SetLook(MecaTemplateNo, true);
    picMachine[MecaTemplateNo]->setFocus();
}

void frmMeca::SetLook(int index, bool selected) { SelectionLook_Set(picMachine[index], lblMachine[index], selected, true); }

void frmMeca::ShowShape2(bool visible) {
    Shape2->setProperty("keyboard", visible);
    Shape2->setStyleSheet(visible ? "#Shape2 { border: 1px dashed palette(highlight); }" : QString());
}

int frmMeca::IndexOf(QObject* watched) const {
    for (int i = 0; i < kMecaCells; ++i)
        if (picMachine[i] == watched) return i;
    return -1;
}

void frmMeca::picMachine_GotFocus(int index) {
    if (skipFocus_) {
        skipFocus_ = false;
        return;
    }
    SetLook(MecaTemplateNo, false);
    SetLook(index, true);
    ShowShape2(true);
    MecaTemplateNo = static_cast<int16_t>(index);
}

void frmMeca::picMachine_KeyDown(int index, int key) {
    if (!Shape2->property("keyboard").toBool()) return;
    switch (key) {
        case Qt::Key_Tab:
            ShowShape2(false);
            cmdOK->setFocus();
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter: cmdOK_Click(); return;
        case Qt::Key_Escape: CmdCancel_Click(); return;
        case Qt::Key_Up: picMachine[Meca_Arrow(static_cast<int16_t>(index), MecaKey::Up)]->setFocus(); return;
        case Qt::Key_Down: picMachine[Meca_Arrow(static_cast<int16_t>(index), MecaKey::Down)]->setFocus(); return;
        case Qt::Key_Left: picMachine[Meca_Arrow(static_cast<int16_t>(index), MecaKey::Left)]->setFocus(); return;
        case Qt::Key_Right: picMachine[Meca_Arrow(static_cast<int16_t>(index), MecaKey::Right)]->setFocus(); return;
        default: return;
    }
}

bool frmMeca::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lblHandSelect) {
        if (event->type() == QEvent::MouseButtonRelease) {
            MecaTemplateNo = 0;
            cmdOK_Click();
            return true;
        }
        if (event->type() == QEvent::Enter) {
            SetLook(MecaTemplateNo, false);
            SetLook(0, true);
            MecaTemplateNo = 0;
        }
        return false;
    }
    const int index = IndexOf(watched);
    if (index < 0) return QDialog::eventFilter(watched, event);
    switch (event->type()) {
        case QEvent::FocusIn: picMachine_GotFocus(index); break;
        case QEvent::FocusOut:
            if (Shape2->property("keyboard").toBool()) SetLook(index, false);
            break;
        case QEvent::MouseButtonPress: picMachine_GotFocus(index); break;
        case QEvent::MouseButtonDblClick:
            MecaTemplateNo = static_cast<int16_t>(index);
            cmdOK_Click();
            return true;
        case QEvent::KeyPress:
            picMachine_KeyDown(index, static_cast<QKeyEvent*>(event)->key());
            return true;
        default: break;
    }
    return QDialog::eventFilter(watched, event);
}

void frmMeca::cmdOK_Click() {
    skipFocus_ = true;
    if (!Meca_OK(hasPicture_[MecaTemplateNo])) return;
    hide();
    setResult(QDialog::Accepted);
    emit confirmed();
}

void frmMeca::CmdCancel_Click() {
    Meca_Cancel();
    hide();
    setResult(QDialog::Rejected);
}

void frmMeca::reject() { CmdCancel_Click(); }
