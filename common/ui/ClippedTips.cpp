#include "common/ui/ClippedTips.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QTableView>
#include <QToolTip>

ClippedTips::ClippedTips(QTableView* grid) : QObject(grid), grid_(grid) {
    grid_->viewport()->installEventFilter(this);
    grid_->horizontalHeader()->viewport()->installEventFilter(this);
}

bool ClippedTips::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QObject::eventFilter(watched, event);
    const auto* help = static_cast<QHelpEvent*>(event);
    auto* area = static_cast<QWidget*>(watched);
    if (watched == grid_->viewport()) {
        const QModelIndex index = grid_->indexAt(help->pos());
        if (!index.isValid() || index.data(Qt::ToolTipRole).isValid() || !Cell_Clipped(grid_, index)) return false;
        QToolTip::showText(help->globalPos(), index.data().toString(), area, grid_->visualRect(index));
        return true;
    }
    const QHeaderView* header = grid_->horizontalHeader();
    const int section = header->logicalIndexAt(help->pos());
    if (section < 0 || !Header_Clipped(header, section)) return false;
    QToolTip::showText(help->globalPos(), header->model()->headerData(section, Qt::Horizontal).toString(), area);
    return true;
}

bool Cell_Clipped(const QTableView* grid, const QModelIndex& index) {
    return grid->sizeHintForIndex(index).width() > grid->visualRect(index).width();
}

bool Header_Clipped(const QHeaderView* header, int section) {
    return header->sectionSizeHint(section) > header->sectionSize(section);
}
