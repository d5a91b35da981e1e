// The geometry of the two pattern graphs: motor speed against time as a
// polyline, required torque against time as a staircase. Coordinates are
// twips with a margin of 100 on every side; each graph is scaled to its own
// largest absolute value and carries no ticks or numbers.
#pragma once

#include <cstdint>
#include <vector>

#include "core/Tables.h"

struct GraphLine {
    int x1, y1, x2, y2;
};

struct GraphDrawing {
    bool axes = false;              // the two axes are drawn
    GraphLine axisX{}, axisY{};     // horizontal axis at the zero line, vertical at the left margin
    std::vector<GraphLine> curve;   // the profile, in the curve pen
};

// The y of the zero line for an inner height h.
int Graph_Mid(double h);

// The x of the end of a row whose Time is time; 0 when tmax is 0.
int Graph_X(double time, double tmax, double w);

// The y of a value: mid for zero, positive up, |peak| reaches the margin.
int Graph_Y(double value, double peak, int mid);

// The speed graph and the torque graph of the first n rows in a picture of
// w by h twips. With n 0 both stay empty.
GraphDrawing Graph_Speed(const PatarnTable& table, int n, double w, double h);
GraphDrawing Graph_Torque(const PatarnTable& table, int n, double w, double h);
