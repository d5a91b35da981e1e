#include "workbench/frmInfobox.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "commands/ItemCommands.h"
#include "common/ui/ColumnFit.h"
#include "common/ui/Cp1252Text.h"
#include "common/ui/EditorDetach.h"
#include "common/ui/RunGuarded.h"
#include "core/Catalogue.h"
#include "core/DirectInput.h"
#include "core/ItemEdit.h"
#include "core/ItemGrid.h"
#include "core/Tables.h"
#include "common/ui/QtSettingsStore.h"

namespace {

constexpr int kWidths[3] = {1600, 1300, 1170};
const QColor kGrey(128, 128, 128);  // 8421504

bool KeyPasses(const QKeyEvent* key) {
    const QString t = key->text();
    return t.isEmpty() || !t.at(0).isPrint() || ItemEdit_KeyAllowed(t.at(0).unicode());
}

// Drops the keys a setting cannot hold.
class KeyFilter : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress && !KeyPasses(static_cast<QKeyEvent*>(event))) return true;
        return QObject::eventFilter(watched, event);
    }
};

// The grid: Down on the last row wraps to the first, Up on the first to the last.
class ElementGrid : public QTableWidget {
public:
    ElementGrid(frmInfobox* box, QWidget* parent) : QTableWidget(kItemGridRows, 3, parent), box_(box) {}

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (state() != QAbstractItemView::EditingState) {
            if (event->key() == Qt::Key_Down && currentRow() == rowCount() - 1) {
                setCurrentCell(0, currentColumn());
                return;
            }
            if (event->key() == Qt::Key_Up && currentRow() == 0) {
                setCurrentCell(rowCount() - 1, currentColumn());
                return;
            }
            if (!KeyPasses(event)) return;
        }
        QTableWidget::keyPressEvent(event);
        box_->LastGridRow = static_cast<int16_t>(currentRow() + 1);
    }

private:
    frmInfobox* box_;
};

}  // namespace

// The cell editor of column 2: refuses "--" rows, offers the materials in a
// density row, filters the keys, and stores through ValidateEdit.
class InfoboxCellEditor : public QStyledItemDelegate {
public:
    explicit InfoboxCellEditor(frmInfobox* box) : QStyledItemDelegate(box->vsfElement), box_(box) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const override {
        const int gridRow = index.row() + 1;
        if (index.column() != 2 || SelectedElement < 1 || SelectedElement >= ElementCount) return nullptr;
        const ElementRecord& e = Element[SelectedElement];
        if (!ItemEdit_MayOpen(e, gridRow, box_->CellText(gridRow, 2).toStdString())) return nullptr;
        QLineEdit* edit = nullptr;
        if (Item_IsDensityRow(e.Item[gridRow - 1]) && e.InputMode == 0) {
            auto* combo = new QComboBox(parent);
            combo->setObjectName("cboMaterial");
            combo->setEditable(true);
            combo->setInsertPolicy(QComboBox::NoInsert);
            combo->addItems(QString::fromLatin1(kMaterialList.data(), kMaterialList.size()).split('|', Qt::SkipEmptyParts));
            combo->setCurrentIndex(-1);
            edit = combo->lineEdit();
            edit->installEventFilter(new KeyFilter(edit));
            return combo;
        }
        edit = new QLineEdit(parent);
        edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        edit->installEventFilter(new KeyFilter(edit));
        return edit;
    }

    void setEditorData(QWidget* editor, const QModelIndex& index) const override {
        const QString text = index.data().toString();
        if (auto* combo = qobject_cast<QComboBox*>(editor)) combo->setEditText(text);
        else static_cast<QLineEdit*>(editor)->setText(text);
    }

    void setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const override {
        if (box_->InternalEdit == 1) return;
        auto* combo = qobject_cast<QComboBox*>(editor);
        const QString typed = combo ? combo->currentText() : static_cast<QLineEdit*>(editor)->text();
        const int gridRow = index.row() + 1;
        if (typed == index.data().toString()) return;  // left as it was
        QString text = typed;
        if (!box_->AfterEdit(gridRow, text)) {
            QTimer::singleShot(0, box_, [b = box_, gridRow, typed] {
                b->vsfElement->setCurrentCell(gridRow - 1, 2);
                b->vsfElement->editItem(b->vsfElement->item(gridRow - 1, 2));
                QWidget* w = b->vsfElement->indexWidget(b->vsfElement->currentIndex());
                if (auto* c = qobject_cast<QComboBox*>(w)) c->setEditText(typed);
                else if (auto* e = qobject_cast<QLineEdit*>(w)) e->setText(typed);
            });
        }
    }

private:
    frmInfobox* box_;
};

frmInfobox::frmInfobox(QWidget* parent) : QWidget(parent, Qt::Tool) {
    setObjectName("frmInfobox");
    setWindowTitle("Component Settings");

    cboElement = new QComboBox(this);
    cboElement->setObjectName("cboElement");
    connect(cboElement, &QComboBox::activated, this, [this] { cboElement_click(); });

    vsfElement = new ElementGrid(this, this);
    vsfElement->setObjectName("vsfElement");
    vsfElement->verticalHeader()->hide();
    vsfElement->setHorizontalHeaderLabels({"Item", "Unit", "Setting"});
    vsfElement->horizontalHeader()->setStretchLastSection(true);
    vsfElement->setSelectionMode(QAbstractItemView::SingleSelection);
    vsfElement->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::AnyKeyPressed |
                                QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    vsfElement->setItemDelegate(new InfoboxCellEditor(this));
    new ColumnFit(vsfElement, {std::begin(kWidths), std::end(kWidths)});
    for (int r = 0; r < kItemGridRows; ++r)
        for (int c = 0; c < 3; ++c) {
            auto* it = new QTableWidgetItem;
            it->setFlags(c == 2 ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable
                                : Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            if (c == 2) it->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            vsfElement->setItem(r, c, it);
        }
    // The fourteen rows always show whole, without a scroll bar.
    const int rowHeight = vsfElement->fontMetrics().height() + 6;
    vsfElement->verticalHeader()->setMinimumSectionSize(rowHeight);
    vsfElement->verticalHeader()->setDefaultSectionSize(rowHeight);
    vsfElement->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    vsfElement->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    vsfElement->setFixedHeight(vsfElement->horizontalHeader()->sizeHint().height() + kItemGridRows * rowHeight +
                               2 * vsfElement->frameWidth());
    connect(vsfElement, &QTableWidget::currentCellChanged, this,
            [this](int row) { LastGridRow = static_cast<int16_t>(row + 1); });

    Check1 = new QCheckBox("Direct inertia input", this);
    Check1->setObjectName("Check1");
    Check2 = new QCheckBox("Direct mass input", this);
    Check2->setObjectName("Check2");
    connect(Check1, &QCheckBox::clicked, this, [this] { Check1_Click(); });
    connect(Check2, &QCheckBox::clicked, this, [this] { Check2_Click(); });
    Check1->setEnabled(false);
    Check2->setEnabled(false);

    auto* checks = new QHBoxLayout;
    checks->addWidget(Check1);
    checks->addWidget(Check2);
    checks->addStretch();
    auto* main = new QVBoxLayout(this);
    main->addWidget(cboElement);
    main->addWidget(vsfElement);
    main->addLayout(checks);
    main->addStretch();
    // The column widths keep their proportions over the grid's width, at
    // least wide enough for the longest unit names.
    vsfElement->setMinimumWidth(440);
    resize(minimumSizeHint());
    Window_Load(this, kInfoboxWindowKeys);
}

frmInfobox::~frmInfobox() { Editor_Detach(vsfElement); }

int frmInfobox::GridRow() const { return vsfElement->currentRow() + 1; }

QString frmInfobox::CellText(int gridRow, int col) const {
    const QTableWidgetItem* it = vsfElement->item(gridRow - 1, col);
    return it ? it->text() : QString();
}

bool frmInfobox::RowGrey(int gridRow) const {
    const QTableWidgetItem* it = vsfElement->item(gridRow - 1, 2);
    return it && it->foreground().color() == kGrey;
}

void frmInfobox::Infobox_Clear() {
    {
        const QSignalBlocker block(cboElement);
        cboElement->clear();
    }
    Grid_Clear();
}

void frmInfobox::Grid_Clear() {
    InternalEdit = 1;
    for (int r = 1; r <= kItemGridRows; ++r) {
        for (int c = 0; c < 3; ++c) vsfElement->item(r - 1, c)->setText(QString());
        Restore_Row(r);
    }
    Check1->setChecked(false);
    Check2->setChecked(false);
    Check1->setEnabled(false);
    Check2->setEnabled(false);
    vsfElement->setCurrentCell(0, 2);
    InternalEdit = 0;
}

void frmInfobox::Restore_Row(int gridRow) {
    vsfElement->item(gridRow - 1, 2)->setForeground(palette().color(QPalette::WindowText));
}

void frmInfobox::Infobox_Fill(int16_t element) {
    if (element < 0 || element >= kElementSlots) return;
    InternalEdit = 1;
    for (int r = 1; r <= kItemGridRows; ++r) {
        const ItemGridRow row = Item_GridRow(Element[element], r);
        vsfElement->item(r - 1, 0)->setText(Cp1252_ToQString(row.name));
        vsfElement->item(r - 1, 1)->setText(Cp1252_ToQString(row.unit));
        vsfElement->item(r - 1, 2)->setText(Cp1252_ToQString(row.setting));
        if (row.grey) vsfElement->item(r - 1, 2)->setForeground(kGrey);
        else Restore_Row(r);
    }
    // An edit being stored keeps its cell, so that the user goes on from there.
    if (!storing_) vsfElement->setCurrentCell(0, 2);
    InternalEdit = 0;
}

void frmInfobox::Disp_ElementList() {
    const QSignalBlocker block(cboElement);
    cboElement->clear();
    for (int i = 1; i < ElementCount; ++i)
        cboElement->addItem(QString("%1.").arg(i) + Cp1252_ToQString(Type_Label(Element[i].ElementType)));
    if (SelectedElement >= 1 && SelectedElement < ElementCount) {
        cboElement->setCurrentIndex(SelectedElement - 1);
    } else {
        cboElement->setCurrentIndex(-1);
        Grid_Clear();
    }
}

void frmInfobox::Disp_Selected() {
    if (SelectedElement < 1 || SelectedElement >= ElementCount) return;
    const ElementRecord& e = Element[SelectedElement];
    Check_Set(e.ElementType, e.InputMode);
    Item_Format(Element[SelectedElement]);
    Infobox_Fill(SelectedElement);
}

void frmInfobox::cboElement_Select(int index) {
    if (cboElement->count() != ElementCount - 1) Disp_ElementList();
    if (index < 0 || index >= cboElement->count()) return;
    {
        const QSignalBlocker block(cboElement);
        cboElement->setCurrentIndex(index);
    }
    cboElement_click();
}

void frmInfobox::cboElement_click() {
    const int index = cboElement->currentIndex();
    if (index < 0) return;
    Run_Guarded("Torvane", [index] { Item_Select(static_cast<int16_t>(index + 1)); });
    emit elementPicked();
    const ElementRecord& e = Element[SelectedElement];
    Check_Set(e.ElementType, e.InputMode);
    Infobox_Fill(SelectedElement);
}

void frmInfobox::Check_Set(int16_t type, int16_t mode) {
    DirectChecks checks{Check1->isChecked(), Check2->isChecked(), Check1->isEnabled(), Check2->isEnabled()};
    if (!::Check_Set(type, mode, checks)) return;
    Check1->setChecked(checks.value1);
    Check2->setChecked(checks.value2);
    Check1->setEnabled(checks.enabled1);
    Check2->setEnabled(checks.enabled2);
}

void frmInfobox::Check1_Click() {
    if (SelectedElement < 1 || SelectedElement >= ElementCount) return;
    const bool on = Check1->isChecked();
    const int row = on ? kItemGridRows : GridRow();
    Direct_Toggled(1, [on] { Item_DirectInertia(SelectedElement, on); }, row);
}

void frmInfobox::Check2_Click() {
    if (SelectedElement < 1 || SelectedElement >= ElementCount) return;
    const bool on = Check2->isChecked();
    Direct_Toggled(2, [on] { Item_DirectMass(SelectedElement, on); }, 1);
}

// A direct entry turned on or off by the core: rows that come back lose their
// grey, the boxes follow the core's rule for the element's new mode, and the
// cursor lands on the grid row.
void frmInfobox::Direct_Toggled(int16_t mode, const std::function<void()>& toggle, int row) {
    vsfElement->setUpdatesEnabled(false);
    const bool wasDirect = Element[SelectedElement].InputMode == mode;
    Run_Guarded("Torvane", toggle);
    if (wasDirect && Element[SelectedElement].InputMode != mode)
        for (int r = 1; r <= kItemGridRows - 1; ++r) Restore_Row(r);
    emit documentChanged();
    const ElementRecord& e = Element[SelectedElement];
    Check_Set(e.ElementType, e.InputMode);
    vsfElement->setCurrentCell(row - 1, 2);
    vsfElement->setUpdatesEnabled(true);
}

bool frmInfobox::AfterEdit(int gridRow, QString& text) {
    std::string t = QString_ToCp1252(text);
    bool stored = true;  // a failed calculation comes after the store
    Run_Guarded("Torvane", [&] { stored = Item_Edit(SelectedElement, gridRow, t, Check1->isChecked()); });
    if (!stored) return false;
    text = Cp1252_ToQString(t);
    vsfElement->item(gridRow - 1, 2)->setText(text);
    vsfElement->setUpdatesEnabled(false);
    storing_ = true;
    emit documentChanged();
    storing_ = false;
    vsfElement->setUpdatesEnabled(true);
    return true;
}

void frmInfobox::Unload() {
    Window_Store(this, kInfoboxWindowKeys);
    hide();
}

void frmInfobox::closeEvent(QCloseEvent* event) {
    Window_Store(this, kInfoboxWindowKeys);
    QWidget::closeEvent(event);
}
