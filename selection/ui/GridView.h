// A wizard grid on the screen: the two fixed rows of the grid become the
// two lines of the column headers, each catalogue row a row of the table,
// with the texts, weights and colours the judgement decided. Row numbers
// given and taken are those of the grid, so the first catalogue row is 2.
#pragma once

#include <QTableWidget>
#include <functional>
#include <span>

#include "selection/Grid.h"

// A colour of the system, red + green * 256 + blue * 65536 in text form; the
// negative number is the window text colour of the palette.
QColor Verdict_Color(std::string_view number, const QPalette& palette);

class GridView : public QTableWidget {
    Q_OBJECT
public:
    GridView(std::span<const GridColumn> columns, QWidget* parent);

    // Shows the whole grid; the current row stays where it was if it still exists.
    void Show(const Grid& grid);
    // The grid row of the current row; below 2 when there is none.
    int GridRow() const;
    void SetGridRow(int row);

    // The shown text of a cell by grid row and column (rows 0 and 1 are the headers).
    QString CellText(int row, int col) const;
    bool CellBold(int row, int col) const;
    QColor CellColor(int row, int col) const;

signals:
    // The new grid row, whenever the current row changes.
    void rowChanged(int gridRow);

private:
    std::span<const GridColumn> columns_;
};
