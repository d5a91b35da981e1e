#include "selection/ui/GridView.h"

#include <QHeaderView>
#include <QStyledItemDelegate>
#include <string>
#include <vector>

#include "common/ui/ColumnFit.h"

namespace {

Qt::Alignment Alignment(CellAlign align) {
    switch (align) {
        case CellAlign::Left: return Qt::AlignLeft | Qt::AlignVCenter;
        case CellAlign::Center: return Qt::AlignCenter;
        case CellAlign::Right: break;
    }
    return Qt::AlignRight | Qt::AlignVCenter;
}

// The current row is marked by a light background under which every text
// keeps its verdict colour.
class KeepColours : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const QVariant foreground = index.data(Qt::ForegroundRole);
        if (foreground.isValid()) option->palette.setBrush(QPalette::HighlightedText, foreground.value<QBrush>());
    }
};

}  // namespace

QColor Verdict_Color(std::string_view number, const QPalette& palette) {
    if (number == kColorWindowText) return palette.color(QPalette::WindowText);
    const long value = std::stol(std::string(number));
    return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
}

GridView::GridView(std::span<const GridColumn> columns, QWidget* parent)
    : QTableWidget(0, static_cast<int>(columns.size()), parent), columns_(columns) {
    std::vector<int> twips;
    for (const GridColumn& c : columns_) twips.push_back(c.width);
    new ColumnFit(this, twips);
    verticalHeader()->hide();
    horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
    horizontalHeader()->setSectionsClickable(false);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setItemDelegate(new KeepColours(this));
    QPalette marks = palette();
    marks.setColor(QPalette::Highlight, QColor(204, 228, 247));
    setPalette(marks);  // Tab goes on to the next control, as in every row list
    connect(this, &QTableWidget::currentCellChanged, this, [this](int row, int, int previous, int) {
        if (row != previous) emit rowChanged(row + kFixedRows);
    });
}

void GridView::Show(const Grid& grid) {
    const int current = currentRow();
    const QSignalBlocker quiet(this);
    setUpdatesEnabled(false);
    clearContents();
    setRowCount(grid.Rows() - kFixedRows);
    for (int col = 0; col < grid.Cols(); ++col) {
        const QString caption =
            QString::fromStdString(grid.Cell(0, col).text) + "\n" + QString::fromStdString(grid.Cell(1, col).text);
        setHorizontalHeaderItem(col, new QTableWidgetItem(caption));
    }
    for (int row = kFixedRows; row < grid.Rows(); ++row) {
        for (int col = 0; col < grid.Cols(); ++col) {
            const GridCell& cell = grid.Cell(row, col);
            auto* item = new QTableWidgetItem(QString::fromStdString(cell.text));
            item->setTextAlignment(Alignment(columns_[col].align));
            QFont font = item->font();
            font.setBold(cell.bold);
            item->setFont(font);
            item->setForeground(Verdict_Color(cell.color, palette()));
            setItem(row - kFixedRows, col, item);
        }
    }
    if (current >= 0 && current < rowCount()) setCurrentCell(current, 0);
    setUpdatesEnabled(true);
}

int GridView::GridRow() const { return currentRow() + kFixedRows; }

void GridView::SetGridRow(int row) {
    if (row - kFixedRows < rowCount()) setCurrentCell(row - kFixedRows, 0);
}

QString GridView::CellText(int row, int col) const {
    if (row < kFixedRows) return horizontalHeaderItem(col)->text().section('\n', row, row);
    const QTableWidgetItem* it = item(row - kFixedRows, col);
    return it ? it->text() : QString();
}

bool GridView::CellBold(int row, int col) const {
    const QTableWidgetItem* it = item(row - kFixedRows, col);
    return it && it->font().bold();
}

QColor GridView::CellColor(int row, int col) const {
    const QTableWidgetItem* it = item(row - kFixedRows, col);
    return it ? it->foreground().color() : QColor();
}
