// vsfMotor: the sizing values beside the ratings of the chosen motor.
#pragma once

#include <QTableWidget>

class ResultGrid : public QTableWidget {
    Q_OBJECT
public:
    explicit ResultGrid(QWidget* parent = nullptr);

    // Fills the grid from ResultValues; without a chosen motor only the
    // calculated column.
    void Disp_Result(int16_t motorSelected);
    // Column 1 of rows 1 to 5: the picked units.
    void Disp_Units();
    // Empties the scrollable part.
    void Clear();

    // The grid never scrolls: it asks for the width its texts need, and at
    // least the width of its layout.
    QSize minimumSizeHint() const override;

private:
    QTableWidgetItem* Cell(int row, int col);
    // Measures the width the texts need anew, once they are all in.
    void Remeasure();

    int wholeWidth_ = 0;
};
