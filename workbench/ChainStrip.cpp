#include "workbench/ChainStrip.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include "common/ui/Cp1252Text.h"
#include "common/ui/SelectionLook.h"
#include "core/Catalogue.h"
#include "core/Tables.h"
#include "workbench/Pictures.h"

namespace {

constexpr QSize kSlotPicture(64, 64);

}  // namespace

ChainStrip::ChainStrip(QWidget* parent) : QWidget(parent) {
    setObjectName("strip");
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(6);
    for (int s = 0; s < kStripSlots; ++s) {
        Shape1[s] = new QFrame(this);
        Shape1[s]->setObjectName(QString("Shape1_%1").arg(s));
        Shape1[s]->setFrameShape(QFrame::Box);
        Shape1[s]->setLineWidth(2);
        auto* layout = new QVBoxLayout(Shape1[s]);
        layout->setContentsMargins(3, 3, 3, 3);
        imgElement[s] = new QLabel(Shape1[s]);
        imgElement[s]->setObjectName(QString("imgElement%1").arg(s));
        imgElement[s]->setAlignment(Qt::AlignCenter);
        imgElement[s]->setMinimumSize(kSlotPicture);
        imgElement[s]->setAcceptDrops(true);
        imgElement[s]->installEventFilter(this);
        lblElement[s] = new QLabel(Shape1[s]);
        lblElement[s]->setObjectName(QString("lblElement%1").arg(s));
        lblElement[s]->setAlignment(Qt::AlignCenter);
        lblElement[s]->setAutoFillBackground(true);
        lblElement[s]->setMinimumWidth(84);
        layout->addWidget(imgElement[s], 1);
        layout->addWidget(lblElement[s]);
        grid->addWidget(Shape1[s], 0, s);
    }
    HScroll1 = new QScrollBar(Qt::Horizontal, this);
    HScroll1->setObjectName("HScroll1");
    HScroll1->setRange(0, 12);
    HScroll1->setPageStep(kStripSlots);
    connect(HScroll1, &QScrollBar::valueChanged, this, &ChainStrip::scrolled);
    auto* main = new QVBoxLayout(this);
    main->setContentsMargins(0, 0, 0, 0);
    main->addLayout(grid);
    main->addWidget(HScroll1);
    lblElement[0]->setText("Motor");
    ClearLooks();
}

void ChainStrip::Disp_Strip(int first) {
    for (int s = 0; s < kStripSlots; ++s) {
        const int i = first + s;
        const int16_t type = (i >= 0 && i < kElementSlots) ? Element[i].ElementType : kTypeEmpty;
        imgElement[s]->setPixmap(Picture_Type(type, kSlotPicture));
        lblElement[s]->setText(type == kTypeEmpty ? QString() : Cp1252_ToQString(Type_Label(type)));
    }
    if (ElementCount <= 1) ClearLooks();
}

int ChainStrip::First() const { return HScroll1->value(); }

void ChainStrip::ScrollTo(int first) { HScroll1->setValue(first); }

void ChainStrip::SetSelectedLook(int slot, bool selected) {
    if (slot < 0 || slot >= kStripSlots) return;
    SelectionLook_Set(Shape1[slot], lblElement[slot], selected);
}

void ChainStrip::ClearLooks() {
    for (int s = 0; s < kStripSlots; ++s) SetSelectedLook(s, false);
}

int ChainStrip::SlotOf(QObject* watched) const {
    for (int s = 0; s < kStripSlots; ++s)
        if (imgElement[s] == watched) return s;
    return -1;
}

bool ChainStrip::eventFilter(QObject* watched, QEvent* event) {
    const int slot = SlotOf(watched);
    if (slot < 0) return QWidget::eventFilter(watched, event);
    switch (event->type()) {
        case QEvent::MouseButtonPress: {
            auto* e = static_cast<QMouseEvent*>(event);
            if (e->button() == Qt::LeftButton) emit slotClicked(slot);
            if (e->button() == Qt::RightButton) emit slotRightClicked(slot, e->globalPosition().toPoint());
            return true;
        }
        case QEvent::DragEnter: {
            auto* e = static_cast<QDragEnterEvent*>(event);
            if (e->mimeData()->hasFormat(kTypeMime)) e->acceptProposedAction();
            return true;
        }
        case QEvent::Drop: {
            auto* e = static_cast<QDropEvent*>(event);
            const QByteArray data = e->mimeData()->data(kTypeMime);
            if (!data.isEmpty()) emit typeDropped(slot, data.toInt());
            e->acceptProposedAction();
            return true;
        }
        default: return QWidget::eventFilter(watched, event);
    }
}
