// The whole text of a cell or a column header of a grid, shown under the
// pointer when the grid draws it cut short; a cell with a tip of its own
// keeps it.
#pragma once

#include <QObject>

class QHeaderView;
class QModelIndex;
class QTableView;

class ClippedTips : public QObject {
public:
    explicit ClippedTips(QTableView* grid);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTableView* grid_;
};

// Whether the grid draws the text of the cell, or of the header's section,
// cut short.
bool Cell_Clipped(const QTableView* grid, const QModelIndex& index);
bool Header_Clipped(const QHeaderView* header, int section);
