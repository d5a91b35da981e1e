#include "selection/SpeedTorqueCurve.h"

#include <algorithm>
#include <cmath>

namespace {

// The lowest torque of the curve at one speed up to the top speed: two points
// at the same speed are a step, of which the lower side counts.
double At(const std::vector<CurvePoint>& p, double speed, double CurvePoint::*torque) {
    if (speed <= p.front().speed) return p.front().*torque;
    double lowest = INFINITY;
    for (std::size_t i = 1; i < p.size(); ++i) {
        const CurvePoint& a = p[i - 1];
        const CurvePoint& b = p[i];
        if (speed < a.speed || speed > b.speed) continue;
        const double share = b.speed == a.speed ? 1 : (speed - a.speed) / (b.speed - a.speed);
        lowest = std::min(lowest, a.*torque + share * (b.*torque - a.*torque));
    }
    return lowest;
}

}  // namespace

CurveOffer SpeedTorqueCurve::LowestOver(double low, double high, double CurvePoint::*torque) const {
    if (high > TopSpeed()) return {true, 0};
    double lowest = std::min(At(points, low, torque), At(points, high, torque));
    for (const CurvePoint& p : points)
        if (p.speed > low && p.speed < high) lowest = std::min(lowest, p.*torque);
    return {false, lowest};
}

std::string_view Curve_Problem(const SpeedTorqueCurve& curve) {
    if (curve.points.empty()) return "the curve has no point";
    for (std::size_t i = 0; i < curve.points.size(); ++i) {
        const CurvePoint& p = curve.points[i];
        for (const double x : {p.speed, p.continuous, p.peak})
            if (!std::isfinite(x) || x < 0) return "a point of the curve has a blank, negative or unreadable number";
        if (i > 0 && p.speed < curve.points[i - 1].speed) return "the speeds of the curve fall";
    }
    return "";
}
