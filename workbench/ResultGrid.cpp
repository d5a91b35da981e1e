#include "workbench/ResultGrid.h"

#include <QHeaderView>
#include <vector>

#include "common/ui/ColumnFit.h"
#include "common/ui/Cp1252Text.h"
#include "pattern/GridText.h"

namespace {

const std::vector<int> kTwips = {2100, 1100, 1400, 1100, 1100};

}  // namespace

ResultGrid::ResultGrid(QWidget* parent) : QTableWidget(7, 5, parent) {
    setObjectName("vsfMotor");
    setHorizontalHeaderLabels({"Item", "Units", "Calculated value", "Rating", "Rated ratio"});
    new ColumnFit(this, kTwips);
    horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
    verticalHeader()->hide();
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setSpan(5, 0, 2, 1);
    // All seven rows and every column always show: the grid never scrolls.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMinimumHeight(horizontalHeader()->sizeHint().height() + 7 * verticalHeader()->defaultSectionSize() +
                     2 * frameWidth());
    Clear();
}

QSize ResultGrid::minimumSizeHint() const {
    return {wholeWidth_ + 2 * frameWidth(), QTableWidget::minimumSizeHint().height()};
}

void ResultGrid::Remeasure() {
    wholeWidth_ = Columns_WholeWidth(this, kTwips);
    updateGeometry();
}

QTableWidgetItem* ResultGrid::Cell(int row, int col) {
    QTableWidgetItem* it = item(row, col);
    if (!it) {
        it = new QTableWidgetItem;
        it->setTextAlignment(col >= 2 ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
        setItem(row, col, it);
    }
    return it;
}

void ResultGrid::Clear() {
    const auto rows = Result_Texts(0);
    for (int r = 0; r < 7; ++r) {
        Cell(r, 0)->setText(Cp1252_ToQString(rows[r].label));
        for (int c = 2; c < 5; ++c) Cell(r, c)->setText({});
        Cell(r, 4)->setForeground(palette().color(QPalette::WindowText));
    }
    Disp_Units();
}

void ResultGrid::Disp_Units() {
    const auto rows = Result_Texts(0);
    for (int r = 0; r < 7; ++r) Cell(r, 1)->setText(Cp1252_ToQString(rows[r].unit));
    Remeasure();
}

void ResultGrid::Disp_Result(int16_t motorSelected) {
    setUpdatesEnabled(false);
    const auto rows = Result_Texts(motorSelected);
    for (int r = 0; r < 7; ++r) {
        Cell(r, 2)->setText(Cp1252_ToQString(rows[r].calculated));
        if (motorSelected != 1) continue;
        Cell(r, 3)->setText(Cp1252_ToQString(rows[r].rating));
        Cell(r, 4)->setText(Cp1252_ToQString(rows[r].ratio));
        switch (rows[r].ratioColour) {
            case CellColour::Red: Cell(r, 4)->setForeground(QColor(255, 0, 0)); break;
            case CellColour::Orange: Cell(r, 4)->setForeground(QColor(255, 128, 0)); break;
            case CellColour::WindowText: Cell(r, 4)->setForeground(palette().color(QPalette::WindowText)); break;
            case CellColour::Unchanged: break;
        }
    }
    setUpdatesEnabled(true);
    Remeasure();
}
