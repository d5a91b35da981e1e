// A motor's speed-torque curve: a few points of speed with the continuous and
// the peak torque the motor gives there, linear between them. Below the first
// point the curve keeps the first point's torques; the last point is the
// motor's top speed, above which it gives nothing.
#pragma once

#include <string_view>
#include <vector>

struct CurvePoint {
    double speed = 0;       // r/min
    double continuous = 0;  // N m
    double peak = 0;        // N m
};

// The torque a curve offers over a range of speeds.
struct CurveOffer {
    bool aboveTop = false;  // the range reaches past the top speed
    double torque = 0;      // the lowest torque of the range; 0 above the top speed
};

struct SpeedTorqueCurve {
    std::vector<CurvePoint> points;  // by rising speed

    // The lowest torque of the curve (the member continuous or peak) between
    // the speeds low and high (r/min, 0 <= low <= high). The curve is not empty.
    CurveOffer LowestOver(double low, double high, double CurvePoint::*torque) const;
    double TopSpeed() const { return points.back().speed; }
};

// Why the points make no curve: "" when they do. A curve needs at least one
// point; every number finite and not negative; speeds that never fall.
std::string_view Curve_Problem(const SpeedTorqueCurve& curve);
