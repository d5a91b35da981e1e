#include "workbench/frmItem.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDrag>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QTabBar>
#include <QVBoxLayout>

#include "commands/ChainCommands.h"
#include "common/ui/Cp1252Text.h"
#include "common/ui/RunGuarded.h"
#include "core/Catalogue.h"
#include "core/Palette.h"
#include "core/Tables.h"
#include "workbench/ChainStrip.h"
#include "workbench/Pictures.h"
#include "common/ui/QtSettingsStore.h"

namespace {

constexpr QSize kCellPicture(72, 72);

}  // namespace

frmItem::frmItem(QWidget* parent) : QWidget(parent, Qt::Tool) {
    setObjectName("frmItem");
    setWindowTitle("Component Selection");

    TabStrip1 = new QTabBar(this);
    TabStrip1->setObjectName("TabStrip1");
    TabStrip1->setExpanding(false);
    TabStrip1->setUsesScrollButtons(false);  // all five captions always show
    for (int t = 1; t <= kPaletteTabs; ++t) TabStrip1->addTab(QString::fromLatin1(Palette_TabCaption(t).data()));
    TabStrip1->installEventFilter(this);
    connect(TabStrip1, &QTabBar::currentChanged, this, [this](int i) { TabStrip1_Click(i + 1); });

    auto* cells = new QFrame(this);
    cells->setFrameShape(QFrame::StyledPanel);
    auto* grid = new QGridLayout(cells);
    grid->setSpacing(6);
    for (int i = 0; i < kPaletteCells; ++i) {
        Shape[i] = new QFrame(cells);
        Shape[i]->setObjectName(QString("Shape%1").arg(i));
        auto* layout = new QVBoxLayout(Shape[i]);
        layout->setContentsMargins(3, 3, 3, 3);
        layout->setSpacing(2);
        picElement[i] = new QLabel(Shape[i]);
        picElement[i]->setObjectName(QString("picElement%1").arg(i));
        picElement[i]->setAlignment(Qt::AlignCenter);
        picElement[i]->setMinimumSize(kCellPicture);
        picElement[i]->setFocusPolicy(Qt::StrongFocus);
        picElement[i]->installEventFilter(this);
        txtElement[i] = new QLabel(Shape[i]);
        txtElement[i]->setObjectName(QString("txtElement%1").arg(i));
        txtElement[i]->setAlignment(Qt::AlignCenter);
        txtElement[i]->setMinimumWidth(96);
        layout->addWidget(picElement[i], 1);
        layout->addWidget(txtElement[i]);
        grid->addWidget(Shape[i], i / 5, i % 5);
    }

    auto* main = new QVBoxLayout(this);
    main->setSpacing(0);
    main->addWidget(TabStrip1);
    main->addWidget(cells, 1);

    startDrag = [this](QMimeData* data, const QPixmap& picture) {
        auto* drag = new QDrag(this);
        drag->setMimeData(data);
        drag->setPixmap(picture);
        drag->setHotSpot(QPoint(picture.width() / 2, picture.height() / 2));
        drag->exec(Qt::CopyAction);
    };

    ItemTab = 1;
    TabStrip1_Click(1);
    picElement_GotFocus(0);
    Window_Load(this, kItemWindowKeys);
}

void frmItem::TabStrip1_Click(int tab) {
    for (int c = 0; c < kPaletteCells; ++c) {
        const int16_t code = Palette_Type(tab, c);
        const std::string_view tag = Type_Label(code);
        picElement[c]->setPixmap(tag.empty() ? QPixmap() : Picture_Type(code, kCellPicture));
        txtElement[c]->setText(Cp1252_ToQString(tag));
        txtElement[c]->setAutoFillBackground(!tag.empty());  // an empty cell shows no caption bar
    }
    ItemTab = static_cast<int16_t>(tab);
}

// The cell in focus shows its caption in swapped colours inside its frame.
void frmItem::picElement_GotFocus(int index) {
    PaletteFocus = static_cast<int16_t>(index);
    const QPalette base = palette();
    for (int c = 0; c < kPaletteCells; ++c) {
        const bool focus = c == index;
        QPalette p = txtElement[c]->palette();
        const QColor paper = base.color(QPalette::HighlightedText);
        const QColor ink = base.color(QPalette::Highlight);
        p.setColor(QPalette::Window, focus ? ink : paper);
        p.setColor(QPalette::WindowText, focus ? paper : ink);
        txtElement[c]->setPalette(p);
        Shape[c]->setFrameShape(focus ? QFrame::Box : QFrame::NoFrame);
        Shape[c]->setLineWidth(focus ? 2 : 0);
    }
}

void frmItem::picElement_DblClick(int index) {
    if (index < 0 || index >= kPaletteCells || txtElement[index]->text().isEmpty()) return;
    const int16_t type = Palette_Type(ItemTab, index);
    bool appended = true;  // a failed recalculation comes after the append
    Run_Guarded("Torvane", [&] { appended = Chain_Append(type); });
    if (!appended) return;
    picElement_GotFocus(index);
    emit documentChanged();
    if (ElementCount > 8) emit selectInList(ElementCount - 2);
    activateWindow();
    picElement[index]->setFocus();
}

QMimeData* frmItem::DragData(int index) const {
    auto* data = new QMimeData;
    data->setData(kTypeMime, QByteArray::number(Palette_Type(ItemTab, index)));
    return data;
}

void frmItem::picElement_MouseMove(int index) {
    if (DragArmed != 1) return;
    DragArmed = 0;
    if (txtElement[index]->text().isEmpty()) return;
    DragType = Palette_Type(ItemTab, index);
    if (startDrag) startDrag(DragData(index), picElement[index]->pixmap());
}

void frmItem::picElement_KeyDown(int index, int key) {
    int code = 0;
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter: code = 13; break;
        case Qt::Key_Right: code = 39; break;
        case Qt::Key_Left: code = 37; break;
        case Qt::Key_Up: code = 38; break;
        case Qt::Key_Down: code = 40; break;
        case Qt::Key_Delete: code = 46; break;
        default: break;
    }
    if (code == 13) picElement_DblClick(index);
    if (code == 46) emit deleteSelected();
    picElement[Palette_NextCell(index, code)]->setFocus();
}

int frmItem::IndexOf(QObject* watched) const {
    for (int i = 0; i < kPaletteCells; ++i)
        if (picElement[i] == watched) return i;
    return -1;
}

bool frmItem::eventFilter(QObject* watched, QEvent* event) {
    if (watched == TabStrip1) {
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Tab) {
                picElement[PaletteFocus]->setFocus();
                return true;
            }
            if (key == Qt::Key_Delete) {
                emit deleteSelected();
                return true;
            }
        }
        return QWidget::eventFilter(watched, event);
    }
    const int index = IndexOf(watched);
    if (index < 0) return QWidget::eventFilter(watched, event);
    switch (event->type()) {
        case QEvent::FocusIn: picElement_GotFocus(index); break;
        case QEvent::MouseButtonPress:
            picElement[index]->setFocus();
            if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) DragArmed = 1;
            return true;
        case QEvent::MouseMove: picElement_MouseMove(index); return true;
        case QEvent::MouseButtonRelease: DragArmed = 0; return true;
        case QEvent::MouseButtonDblClick:
            DragArmed = 0;
            picElement_DblClick(index);
            return true;
        case QEvent::KeyPress:
            picElement_KeyDown(index, static_cast<QKeyEvent*>(event)->key());
            return true;
        default: break;
    }
    return QWidget::eventFilter(watched, event);
}

void frmItem::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) Form_Activate();
}

void frmItem::Form_Activate() {
    if (firstActivation_) {
        firstActivation_ = false;
        picElement[0]->setFocus();
        return;
    }
    picElement[PaletteFocus]->setFocus();
}

void frmItem::Unload() {
    Window_Store(this, kItemWindowKeys);
    hide();
}

void frmItem::closeEvent(QCloseEvent* event) {
    Window_Store(this, kItemWindowKeys);
    QWidget::closeEvent(event);
}
