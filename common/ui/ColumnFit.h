// Column widths of a grid given in the units of the layout (twips): the grid
// keeps their proportions and fills its width as the window is resized. A
// column whose texts (its header's too) would not show whole at that width
// is widened, and the room is taken from the columns that have more than
// their texts need, never below the narrowest the layout allows. What still
// does not fit shows whole under the pointer (ClippedTips).
#pragma once

#include <QObject>
#include <vector>

class QTableWidget;

class ColumnFit : public QObject {
public:
    ColumnFit(QTableWidget* grid, std::vector<int> twips);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Fit();
    void FitLater();  // once, after every text of the change is in

    QTableWidget* grid_;
    std::vector<int> twips_;
    bool pending_ = false;
};

// The pixels each column of the grid needs to show its texts and its header
// whole, as the grid draws them.
std::vector<int> Column_Needs(const QTableWidget* grid);

// The width in pixels a grid that never scrolls asks for: every column whole,
// and no narrower than its layout.
int Columns_WholeWidth(const QTableWidget* grid, const std::vector<int>& twips);

// The widths in pixels of the columns laid out in twips over room pixels,
// where needs holds the pixels each column needs to show its texts whole.
std::vector<int> Column_Widths(const std::vector<int>& twips, const std::vector<int>& needs, int room);
