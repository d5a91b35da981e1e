#include "pattern/ui/PatternGraph.h"

#include <QPainter>

namespace {

constexpr double kTwipsPerPixel = 15.0;

QLineF ToPixels(const GraphLine& l) {
    return {l.x1 / kTwipsPerPixel, l.y1 / kTwipsPerPixel, l.x2 / kTwipsPerPixel, l.y2 / kTwipsPerPixel};
}

}  // namespace

PatternGraph::PatternGraph(Kind kind, QWidget* parent) : QWidget(parent), kind_(kind) {
    setMinimumSize(160, 90);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PatternGraph::Disp_Graph(const PatarnTable& table, int n) {
    table_ = &table;
    rows_ = n;
    Rebuild();
}

void PatternGraph::Rebuild() {
    const double w = width() * kTwipsPerPixel, h = height() * kTwipsPerPixel;
    drawing_ = !table_ ? GraphDrawing{}
               : kind_ == Kind::Speed ? Graph_Speed(*table_, rows_, w, h)
                                      : Graph_Torque(*table_, rows_, w, h);
    update();
}

void PatternGraph::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Rebuild();
}

void PatternGraph::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::WindowText));
    if (drawing_.axes) {
        painter.setPen(QPen(palette().color(QPalette::HighlightedText), 1));
        painter.drawLine(ToPixels(drawing_.axisX));
        painter.drawLine(ToPixels(drawing_.axisY));
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(255, 255, 0), 1.5));
    for (const GraphLine& l : drawing_.curve) painter.drawLine(ToPixels(l));
}
