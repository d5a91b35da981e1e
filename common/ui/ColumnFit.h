// Column widths of a grid given in the units of the layout (twips): the grid
// keeps their proportions and fills its width as the window is resized.
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

    QTableWidget* grid_;
    std::vector<int> twips_;
};
