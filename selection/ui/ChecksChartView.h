// picChart of "Engineering Checks": draws the speed-torque chart that the
// core lays out for the picture's size: the plot frame, ticks and numbers,
// the continuous and peak curves, the operating lines and points in their
// verdict colours, the mean-speed point and a legend.
#pragma once

#include <QWidget>

#include "selection/ChecksChart.h"

class ChecksChartView : public QWidget {
    Q_OBJECT
public:
    explicit ChecksChartView(QWidget* parent = nullptr);

    // Lays the chart out again for the checks and the curve, and redraws.
    void Show(const EngineeringChecks& checks, const SpeedTorqueCurve& curve);

    const ChecksChart& Chart() const { return chart_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Rebuild();

    EngineeringChecks checks_;
    SpeedTorqueCurve curve_;
    ChecksChart chart_;
};
