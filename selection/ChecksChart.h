// The geometry of the speed-torque chart of the engineering checks: the
// motor's continuous and peak curves, each interval's operating line with
// its two end points, and the effective torque at the mean speed, over
// |speed| and |torque| in the document's picked units, with ticks and
// numbers on both axes. Coordinates are pixels, y downwards.
#pragma once

#include <string>
#include <vector>

#include "selection/EngineeringChecks.h"

struct ChartPoint {
    double x = 0, y = 0;
};

struct ChartTick {
    double at = 0;      // x of a speed tick, y of a torque tick
    std::string label;  // the number, UTF-8
};

struct ChartMark {
    ChartPoint from, to;  // the operating line; a single point has from == to
    std::vector<ChartPoint> ends;
    CheckState state = CheckState::NoCurve;
};

struct ChecksChart {
    double left = 0, top = 0, right = 0, bottom = 0;  // the plot area
    std::string xTitle, yTitle;                       // quantity and picked unit
    std::vector<ChartTick> xTicks, yTicks;
    std::vector<ChartPoint> continuous, peak;  // the curves; empty without one
    std::vector<ChartMark> intervals;          // the computed intervals, in order
    bool hasMean = false;
    ChartMark mean;
};

// The chart of the checks in a picture of w by h pixels. Each axis runs from
// 0 to a round number that takes in the curve and every point.
ChecksChart Chart_Build(const EngineeringChecks& checks, const SpeedTorqueCurve& curve, double w, double h);
