#include "selection/ui/ChecksChartView.h"

#include <QPainter>
#include <QPainterPath>

#include "selection/ChecksGrid.h"
#include "selection/DriverJudge.h"
#include "selection/ui/GridView.h"

namespace {

const QColor kContinuous(0, 90, 200);
const QColor kPeak(0, 150, 70);
const QColor kMean(120, 0, 160);

QPointF Pixel(const ChartPoint& p) { return {p.x, p.y}; }

void Polyline(QPainter& painter, const std::vector<ChartPoint>& points, const QPen& pen) {
    if (points.empty()) return;
    QPainterPath path(Pixel(points.front()));
    for (std::size_t i = 1; i < points.size(); ++i) path.lineTo(Pixel(points[i]));
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
}

// The verdict colour of a check's state, as the table shows it.
QColor State_Color(CheckState state, const QPalette& palette) {
    return Verdict_Color(JudgeColor(Check_Verdict(state)), palette);
}

void Legend(QPainter& painter, QPointF at, const QColor& color, bool line, const QString& text) {
    painter.setPen(QPen(color, 2));
    painter.setBrush(color);
    if (line) painter.drawLine(at + QPointF(0, -4), at + QPointF(18, -4));
    else painter.drawEllipse(at + QPointF(9, -4), 3.5, 3.5);
    painter.setPen(QPen(Qt::black));
    painter.drawText(at + QPointF(24, 0), text);
}

}  // namespace

ChecksChartView::ChecksChartView(QWidget* parent) : QWidget(parent) {
    setMinimumSize(360, 240);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChecksChartView::Show(const EngineeringChecks& checks, const SpeedTorqueCurve& curve) {
    checks_ = checks;
    curve_ = curve;
    Rebuild();
}

void ChecksChartView::Rebuild() {
    chart_ = Chart_Build(checks_, curve_, width(), height());
    update();
}

void ChecksChartView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Rebuild();
}

void ChecksChartView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    const QRectF plot(QPointF(chart_.left, chart_.top), QPointF(chart_.right, chart_.bottom));
    const QFontMetricsF metrics(font());
    painter.setPen(QPen(QColor(225, 225, 225), 1));
    for (const ChartTick& t : chart_.xTicks) painter.drawLine(QPointF(t.at, plot.top()), QPointF(t.at, plot.bottom()));
    for (const ChartTick& t : chart_.yTicks) painter.drawLine(QPointF(plot.left(), t.at), QPointF(plot.right(), t.at));
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(plot);
    for (const ChartTick& t : chart_.xTicks) {
        painter.drawLine(QPointF(t.at, plot.bottom()), QPointF(t.at, plot.bottom() + 4));
        const QString label = QString::fromStdString(t.label);
        painter.drawText(QPointF(t.at - metrics.horizontalAdvance(label) / 2, plot.bottom() + 6 + metrics.ascent()), label);
    }
    for (const ChartTick& t : chart_.yTicks) {
        painter.drawLine(QPointF(plot.left() - 4, t.at), QPointF(plot.left(), t.at));
        const QString label = QString::fromStdString(t.label);
        painter.drawText(QPointF(plot.left() - 7 - metrics.horizontalAdvance(label), t.at + metrics.ascent() / 2 - 1), label);
    }
    const QString xTitle = QString::fromStdString(chart_.xTitle);
    painter.drawText(QPointF((plot.left() + plot.right() - metrics.horizontalAdvance(xTitle)) / 2, height() - 6), xTitle);
    painter.save();
    painter.translate(14, (plot.top() + plot.bottom()) / 2);
    painter.rotate(-90);
    const QString yTitle = QString::fromStdString(chart_.yTitle);
    painter.drawText(QPointF(-metrics.horizontalAdvance(yTitle) / 2, 0), yTitle);
    painter.restore();

    painter.setRenderHint(QPainter::Antialiasing);
    Polyline(painter, chart_.continuous, QPen(kContinuous, 2));
    Polyline(painter, chart_.peak, QPen(kPeak, 2, Qt::DashLine));
    for (const ChartMark& m : chart_.intervals) {
        const QColor color = State_Color(m.state, palette());
        painter.setPen(QPen(color, 1.5));
        painter.drawLine(Pixel(m.from), Pixel(m.to));
        painter.setBrush(color);
        for (const ChartPoint& p : m.ends) painter.drawEllipse(Pixel(p), 3.5, 3.5);
    }
    if (chart_.hasMean) {
        painter.setPen(QPen(kMean, 2));
        painter.setBrush(Qt::NoBrush);
        const QPointF p = Pixel(chart_.mean.from);
        painter.drawRect(QRectF(p - QPointF(5, 5), p + QPointF(5, 5)));
    }
    const QPointF at(plot.right() - 190, plot.top() + 16);
    const double line = metrics.height() + 2;
    Legend(painter, at, kContinuous, true, "continuous torque");
    Legend(painter, at + QPointF(0, line), kPeak, true, "peak torque");
    Legend(painter, at + QPointF(0, 2 * line), Qt::black, false, "intervals (start, end)");
    painter.setPen(QPen(kMean, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(at + QPointF(5, 3 * line - 8), QSizeF(8, 8)));
    painter.setPen(QPen(Qt::black));
    painter.drawText(at + QPointF(24, 3 * line), "effective torque, mean speed");
}
