// "Engineering Checks": the chosen motor's speed-torque chart with every
// interval's operating points and the effective torque at the mean speed,
// over the table of the checks with their verdicts. The main window calls
// Disp_Checks after every change of the document, as it redraws its graphs.
#pragma once

#include <QWidget>
#include <string>

#include "selection/ChosenParts.h"
#include "selection/EngineeringChecks.h"

class QLabel;
class QPushButton;
class ChecksChartView;
class GridView;

class frmChecks : public QWidget {
    Q_OBJECT
public:
    explicit frmChecks(QWidget* parent);

    // Computes the checks of the document as it stands and shows them; the
    // catalogue is read again only when the chosen motor or driver changed.
    // Nothing happens while the window is hidden.
    void Disp_Checks();

    const EngineeringChecks& Checks() const { return checks_; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    QLabel* lblParts = nullptr;
    ChecksChartView* picChart = nullptr;
    GridView* vsfChecks = nullptr;
    QPushButton* cmdClose = nullptr;

    std::string partsKey_;
    ChosenParts parts_;
    EngineeringChecks checks_;
};
