#include "pattern/ui/PatarnGrid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QTimer>

#include "common/ui/ColumnFit.h"
#include "common/ui/Cp1252Text.h"
#include "core/Tables.h"
#include "pattern/GridText.h"
#include "pattern/PatarnCell.h"

namespace {

constexpr const char* kTitles[7] = {"", "Time", "Interval", "Rotational speed", "Load speed", "Position",
                                    "Required torque"};
constexpr int kWidths[7] = {300, 800, 800, 1400, 880, 880, 1450};

}  // namespace

// The cell editor: filters keys, runs the validation, and stores through the
// after-edit handler.
class PatarnCellEditor : public QStyledItemDelegate {
public:
    explicit PatarnCellEditor(PatarnGrid* grid) : QStyledItemDelegate(grid), grid_(grid) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const override {
        if (!Patarn_MayEdit(index.row() + 2, index.column())) return nullptr;
        auto* edit = new QLineEdit(parent);
        edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        edit->installEventFilter(const_cast<PatarnCellEditor*>(this));
        return edit;
    }

    void setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const override {
        const QString typed = static_cast<QLineEdit*>(editor)->text();
        const int gridRow = index.row() + 2, col = index.column();
        const CellCheck check = Patarn_Validate(gridRow, col, typed.toStdString(),
                                                grid_->CellText(gridRow - 1, col), grid_->EscapePending);
        if (check.cancel) {
            if (grid_->EscapePending == 1) {
                grid_->EscapePending = 0;
                return;
            }
            QTimer::singleShot(0, grid_, [g = grid_, gridRow, col, typed] { g->EditCell(gridRow, col, typed); });
            return;
        }
        grid_->item(index.row(), col)->setText(QString::fromStdString(check.text));
        emit grid_->afterEdit(gridRow, col);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) {
            auto* key = static_cast<QKeyEvent*>(event);
            if (key->key() == Qt::Key_Escape) {
                grid_->EscapePending = 1;
                return QStyledItemDelegate::eventFilter(watched, event);
            }
            const QString t = key->text();
            if (!t.isEmpty() && t.at(0).isPrint() && !Patarn_KeyAllowed(t.at(0).unicode())) return true;
        }
        return QStyledItemDelegate::eventFilter(watched, event);
    }

private:
    PatarnGrid* grid_;
};

PatarnGrid::PatarnGrid(QWidget* parent) : QTableWidget(kPatarnRows, 7, parent) {
    setObjectName("vsfPatarn");
    verticalHeader()->hide();
    horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
    new ColumnFit(this, {std::begin(kWidths), std::end(kWidths)});
    setItemDelegate(new PatarnCellEditor(this));
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::AnyKeyPressed |
                    QAbstractItemView::EditKeyPressed);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    for (int r = 0; r < kPatarnRows; ++r)
        for (int c = 0; c < 7; ++c) {
            auto* it = new QTableWidgetItem;
            it->setTextAlignment(c == 0 ? Qt::AlignCenter : Qt::AlignRight | Qt::AlignVCenter);
            if (c == 0) {
                it->setFlags(Qt::ItemIsEnabled);
                it->setBackground(palette().color(QPalette::Button));
            }
            setItem(r, c, it);
        }
    Disp_Headers();
    setCurrentCell(0, 1);
}

void PatarnGrid::Disp_Headers() {
    const auto units = Patarn_HeaderTexts(LoadMotion);
    QStringList labels;
    for (int c = 0; c < 7; ++c) labels << QString(kTitles[c]) + "\n" + Cp1252_ToQString(units[c]);
    setHorizontalHeaderLabels(labels);
}

void PatarnGrid::Disp_Patarn() {
    const PatarnTexts texts = Patarn_CellTexts(Patarn, LoadMotion);
    for (int r = 1; r <= kPatarnRows; ++r)
        for (int c = 0; c < 7; ++c) item(r - 1, c)->setText(Cp1252_ToQString(texts[r][c]));
}

int PatarnGrid::GridRow() const { return currentRow() + 2; }
int PatarnGrid::GridCol() const { return currentColumn(); }

void PatarnGrid::SelectedBlock(int& low, int& high) const {
    low = high = GridRow();
    const auto ranges = selectedRanges();
    if (!ranges.isEmpty()) {
        low = ranges.front().topRow() + 2;
        high = ranges.front().bottomRow() + 2;
    }
}

std::string PatarnGrid::CellText(int gridRow, int col) const {
    const QTableWidgetItem* it = (gridRow >= 2 && gridRow <= kPatarnRows + 1) ? item(gridRow - 2, col) : nullptr;
    return it ? it->text().toStdString() : std::string();
}

void PatarnGrid::EditCell(int gridRow, int col, const QString& text) {
    setCurrentCell(gridRow - 2, col);
    editItem(item(gridRow - 2, col));
    if (auto* edit = qobject_cast<QLineEdit*>(indexWidget(currentIndex()))) edit->setText(text);
    else if (auto* focus = qobject_cast<QLineEdit*>(focusWidget())) focus->setText(text);
}

void PatarnGrid::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete && state() != QAbstractItemView::EditingState) {
        emit deleteKey();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return;
    const QString t = event->text();
    if (!t.isEmpty() && t.at(0).isPrint() && !Patarn_KeyAllowed(t.at(0).unicode())) return;
    QTableWidget::keyPressEvent(event);
}

void PatarnGrid::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::RightButton) {
        QTableWidget::mousePressEvent(event);
        return;
    }
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid() && index.column() != 0) setCurrentCell(index.row(), index.column());
    emit contextMenu(event->globalPosition().toPoint());
}
