// picCirclePatarn and picTorquePatarn: a picture that draws one pattern graph
// scaled to its own size, in twips as the geometry is told.
#pragma once

#include <QWidget>

#include "pattern/Graph.h"

class PatternGraph : public QWidget {
    Q_OBJECT
public:
    enum class Kind { Speed, Torque };
    PatternGraph(Kind kind, QWidget* parent = nullptr);

    // Redraws from the first n rows of the table; n 0 empties the picture.
    void Disp_Graph(const PatarnTable& table, int n);

    const GraphDrawing& Drawing() const { return drawing_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Rebuild();

    Kind kind_;
    const PatarnTable* table_ = nullptr;
    int rows_ = 0;
    GraphDrawing drawing_;
};
