// vsfPatarn: the pattern grid. Grid rows 2 to 21 show records 1 to 20 (the
// title and unit rows are the two-line header); column 0 holds the row
// numbers. The grid keeps no state: every edit ends with a rewrite from the
// table.
#pragma once

#include <QTableWidget>
#include <functional>
#include <string>

class PatarnGrid : public QTableWidget {
    Q_OBJECT
public:
    explicit PatarnGrid(QWidget* parent = nullptr);

    // Rewrites the rows from Patarn; Disp_Headers writes the unit row.
    void Disp_Patarn();
    void Disp_Headers();

    // The grid row (2..21) of the current cell, and the block of selected rows.
    int GridRow() const;
    int GridCol() const;
    void SelectedBlock(int& low, int& high) const;
    // The text of a cell by grid row and column.
    std::string CellText(int gridRow, int col) const;
    // Opens the editor on a cell with a text, as typing into it does.
    void EditCell(int gridRow, int col, const QString& text);

    int16_t EscapePending = 0;

signals:
    void afterEdit(int gridRow, int col);  // vsfPatarn_AfterEdit
    void deleteKey();                      // Delete on the grid
    void contextMenu(QPoint global);       // right button

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

};
