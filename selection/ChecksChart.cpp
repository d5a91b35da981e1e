#include "selection/ChecksChart.h"

#include <algorithm>
#include <cmath>

#include "base/Cp1252.h"
#include "base/NumberFormat.h"
#include "units/UnitTable.h"

namespace {

constexpr double kLeft = 64, kRight = 16, kTop = 16, kBottom = 44;
constexpr int kMostTicks = 8;

// A step of 1, 2 or 5 times a power of ten that divides 0 to top into at
// most kMostTicks parts.
double Tick_Step(double top) {
    const double rough = top / kMostTicks;
    const double power = std::pow(10, std::floor(std::log10(rough)));
    for (const double m : {1.0, 2.0, 5.0, 10.0})
        if (m * power >= rough) return m * power;
    return 10 * power;
}

// An axis in a picked unit: its top, a whole number of steps.
struct Axis {
    int16_t kind;
    double top = 1, step = 1;

    explicit Axis(int16_t k, double largestBase) : kind(k) {
        const double largest = Shown(largestBase);
        if (largest > 0 && std::isfinite(largest)) {
            step = Tick_Step(largest);
            top = std::ceil(largest / step * (1 - 1e-12)) * step;
        }
    }
    double Shown(double base) const { return FromS(kind, UnitTable[kind].Sel, base); }
    double Share(double base) const { return std::clamp(Shown(base) / top, 0.0, 1.05); }
    std::string Title(std::string_view quantity) const {
        return std::string(quantity) + " [" + Cp1252_ToUtf8(Unit_Name(kind, UnitTable[kind].Sel)) + "]";
    }
};

double Largest_Speed(const EngineeringChecks& checks, const SpeedTorqueCurve& curve) {
    double largest = checks.meanSpeed;
    if (!curve.points.empty()) largest = std::max(largest, curve.TopSpeed());
    for (int i = 0; i < checks.intervals; ++i) largest = std::max(largest, checks.interval[i].check.speedHigh);
    return largest;
}

double Largest_Torque(const EngineeringChecks& checks, const SpeedTorqueCurve& curve) {
    double largest = 0;
    for (const CurvePoint& p : curve.points) largest = std::max({largest, p.peak, p.continuous});
    for (int i = 0; i < checks.intervals; ++i)
        if (checks.interval[i].check.state != CheckState::NotComputed)
            largest = std::max(largest, checks.interval[i].check.torque);
    if (checks.mean.state != CheckState::NotComputed) largest = std::max(largest, checks.mean.torque);
    return largest;
}

class Frame {
public:
    Frame(ChecksChart& chart, const Axis& x, const Axis& y) : c_(chart), x_(x), y_(y) {}
    ChartPoint At(double speed, double torque) const {
        return {c_.left + x_.Share(speed) * (c_.right - c_.left), c_.bottom - y_.Share(torque) * (c_.bottom - c_.top)};
    }
    void Ticks(const Axis& axis, std::vector<ChartTick>& ticks, double from, double to) const {
        const int count = static_cast<int>(std::lround(axis.top / axis.step));
        for (int i = 0; i <= count; ++i)
            ticks.push_back({from + (to - from) * i / count, Format_Mask(i * axis.step, kMaskOpt2)});
    }

private:
    ChecksChart& c_;
    const Axis& x_;
    const Axis& y_;
};

}  // namespace

ChecksChart Chart_Build(const EngineeringChecks& checks, const SpeedTorqueCurve& curve, double w, double h) {
    ChecksChart chart;
    chart.left = kLeft;
    chart.top = kTop;
    chart.right = std::max(kLeft + 1, w - kRight);
    chart.bottom = std::max(kTop + 1, h - kBottom);
    const Axis x(UnitKind::MotorSpeed, Largest_Speed(checks, curve));
    const Axis y(UnitKind::Torque, Largest_Torque(checks, curve));
    chart.xTitle = x.Title("|Speed|");
    chart.yTitle = y.Title("|Torque|");
    const Frame frame(chart, x, y);
    frame.Ticks(x, chart.xTicks, chart.left, chart.right);
    frame.Ticks(y, chart.yTicks, chart.bottom, chart.top);
    for (const CurvePoint& p : curve.points) {
        chart.continuous.push_back(frame.At(p.speed, p.continuous));
        chart.peak.push_back(frame.At(p.speed, p.peak));
    }
    for (int i = 0; i < checks.intervals; ++i) {
        const IntervalCheck& c = checks.interval[i];
        if (c.check.state == CheckState::NotComputed) continue;
        chart.intervals.push_back({frame.At(c.check.speedLow, c.check.torque),
                                   frame.At(c.check.speedHigh, c.check.torque),
                                   {frame.At(std::fabs(c.speedStart), c.check.torque),
                                    frame.At(std::fabs(c.speedEnd), c.check.torque)},
                                   c.check.state});
    }
    chart.hasMean = checks.intervals > 0 && checks.mean.state != CheckState::NotComputed;
    if (chart.hasMean) {
        const ChartPoint p = frame.At(checks.meanSpeed, checks.mean.torque);
        chart.mean = {p, p, {p}, checks.mean.state};
    }
    return chart;
}
