// "Recommend": the best motor and driver pairs of the whole catalogue for
// the application, the smallest motor first. Opened modally by the motor
// page's "Recommend..."; a double-click on a pair, or OK, chooses it.
#pragma once

#include <QDialog>

#include "selection/Recommend.h"

class QLabel;
class QPushButton;
class GridView;

class frmRecommend : public QDialog {
    Q_OBJECT
public:
    explicit frmRecommend(const RecommendResult& result, QWidget* parent = nullptr);

    // The position of the chosen pair in the result; -1 until one is chosen.
    int Chosen() const { return chosen_; }

private:
    void Choose(int gridRow);

    GridView* vsfPairs = nullptr;
    QLabel* lblSkipped = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* CmdCancel = nullptr;
    int chosen_ = -1;
};
