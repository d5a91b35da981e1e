#include "selection/ui/ChecksChartView.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "selection/ChecksGrid.h"
#include "selection/DriverJudge.h"
#include "selection/ui/GridView.h"

namespace {

const QPen kContinuous(QColor(0, 90, 200), 2);
const QPen kPeak(QColor(0, 150, 70), 2, Qt::DashLine);

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

// The effective torque at the mean speed: a square in its verdict's colour.
void Mean_Mark(QPainter& painter, QPointF at, const QColor& color) {
    painter.setPen(QPen(color, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(at - QPointF(5, 5), at + QPointF(5, 5)));
}

// The grid, the frame, the ticks with their numbers and the two titles.
void Draw_Axes(QPainter& painter, const ChecksChart& chart, const QFontMetricsF& metrics, double height) {
    const QRectF plot(QPointF(chart.left, chart.top), QPointF(chart.right, chart.bottom));
    painter.setPen(QPen(QColor(225, 225, 225), 1));
    for (const ChartTick& t : chart.xTicks) painter.drawLine(QPointF(t.at, plot.top()), QPointF(t.at, plot.bottom()));
    for (const ChartTick& t : chart.yTicks) painter.drawLine(QPointF(plot.left(), t.at), QPointF(plot.right(), t.at));
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(plot);
    for (const ChartTick& t : chart.xTicks) {
        painter.drawLine(QPointF(t.at, plot.bottom()), QPointF(t.at, plot.bottom() + 4));
        const QString label = QString::fromStdString(t.label);
        painter.drawText(QPointF(t.at - metrics.horizontalAdvance(label) / 2, plot.bottom() + 6 + metrics.ascent()),
                         label);
    }
    for (const ChartTick& t : chart.yTicks) {
        painter.drawLine(QPointF(plot.left() - 4, t.at), QPointF(plot.left(), t.at));
        const QString label = QString::fromStdString(t.label);
        painter.drawText(QPointF(plot.left() - 7 - metrics.horizontalAdvance(label), t.at + metrics.ascent() / 2 - 1),
                         label);
    }
    const QString xTitle = QString::fromStdString(chart.xTitle);
    painter.drawText(QPointF((plot.left() + plot.right() - metrics.horizontalAdvance(xTitle)) / 2, height - 6), xTitle);
    painter.save();
    painter.translate(14, (plot.top() + plot.bottom()) / 2);
    painter.rotate(-90);
    const QString yTitle = QString::fromStdString(chart.yTitle);
    painter.drawText(QPointF(-metrics.horizontalAdvance(yTitle) / 2, 0), yTitle);
    painter.restore();
}

// The legend in a framed box at the top right of the plot.
void Draw_Legend(QPainter& painter, const ChecksChart& chart, const QFontMetricsF& metrics) {
    const QString texts[] = {"continuous torque", "peak torque", "intervals (start, end)", "effective torque, mean speed"};
    double widest = 0;
    for (const QString& text : texts) widest = std::max(widest, metrics.horizontalAdvance(text));
    const double line = metrics.height() + 2, width = widest + 36;
    const QPointF at(chart.right - width - 4, chart.top + 8 + metrics.ascent());
    painter.setPen(QPen(QColor(160, 160, 160), 1));
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(at - QPointF(6, metrics.ascent() + 4), QSizeF(width, 4 * line + 6)));
    for (int i = 0; i < 4; ++i) {
        const QPointF row = at + QPointF(0, i * line);
        if (i < 2) {
            painter.setPen(i == 0 ? kContinuous : kPeak);
            painter.drawLine(row + QPointF(0, -4), row + QPointF(18, -4));
        } else if (i == 2) {
            painter.setPen(Qt::black);
            painter.setBrush(Qt::black);
            painter.drawEllipse(row + QPointF(9, -4), 3.5, 3.5);
        } else {
            Mean_Mark(painter, row + QPointF(9, -4), Qt::black);
        }
        painter.setPen(Qt::black);
        painter.drawText(row + QPointF(24, 0), texts[i]);
    }
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
    const QFontMetricsF metrics(font());
    Draw_Axes(painter, chart_, metrics, height());
    painter.setRenderHint(QPainter::Antialiasing);
    Polyline(painter, chart_.continuous, kContinuous);
    Polyline(painter, chart_.peak, kPeak);
    for (const ChartMark& m : chart_.intervals) {
        const QColor color = State_Color(m.state, palette());
        painter.setPen(QPen(color, 1.5));
        painter.drawLine(Pixel(m.from), Pixel(m.to));
        painter.setBrush(color);
        for (const ChartPoint& p : m.ends) painter.drawEllipse(Pixel(p), 3.5, 3.5);
    }
    if (chart_.hasMean) Mean_Mark(painter, Pixel(chart_.mean.from), State_Color(chart_.mean.state, palette()));
    Draw_Legend(painter, chart_, metrics);
}
