#include "selection/EngineeringChecks.h"

#include <algorithm>
#include <cmath>

#include "base/Numeric.h"
#include "calc/Mark.h"
#include "core/PatarnRows.h"

namespace {

// The sizing's band for torques: a share of the offer up to 0.8 passes, up to
// 1 is tight, and a share equal to a limit in single precision is on its good side.
CheckState Judge_Share(double share) {
    if (share <= 0.8 || Same_Single(share, 0.8)) return CheckState::Pass;
    if (share <= 1 || Same_Single(share, 1)) return CheckState::Tight;
    return CheckState::Fail;
}

// (offered - needed) / the larger of the two, in percent: the share of the
// offer left unused, or below 0 the share of the need that cannot be met.
double Margin(double offered, double needed) {
    const double larger = std::max(offered, needed);
    return larger > 0 ? (offered - needed) / larger * 100 : 0;
}

// The torque against the curve over the speeds low to high.
TorqueCheck Torque_Check(double low, double high, double torque, const ChosenParts& parts,
                         double CurvePoint::*member) {
    TorqueCheck c{low, high, std::fabs(torque)};
    if (Is_Marked(torque) || !std::isfinite(torque) || !std::isfinite(high)) {
        c.state = CheckState::NotComputed;
        return c;
    }
    if (parts.curveSource != CurveSource::Found) return c;
    const CurveOffer offer = parts.curve.LowestOver(low, high, member);
    c.offered = offer.torque;
    c.aboveTop = offer.aboveTop;
    c.margin = offer.aboveTop ? -100 : Margin(c.offered, c.torque);
    if (offer.aboveTop) c.state = CheckState::Fail;
    else if (c.offered > 0) c.state = Judge_Share(c.torque / c.offered);
    else c.state = c.torque > 0 ? CheckState::Fail : CheckState::Pass;
    return c;
}

// The |speed| range of a straight change from v1 to v2.
void Speed_Range(double v1, double v2, double& low, double& high) {
    high = std::max(std::fabs(v1), std::fabs(v2));
    low = v1 * v2 <= 0 ? 0 : std::min(std::fabs(v1), std::fabs(v2));
}

// The integral of |speed| over a straight change from v1 to v2 in dt.
double Travel(double v1, double v2, double dt) {
    const double a = std::fabs(v1), b = std::fabs(v2);
    if (v1 * v2 >= 0) return (a + b) / 2 * dt;
    return (v1 * v1 + v2 * v2) / (2 * (a + b)) * dt;
}

RegenCheck Regen_Check(double value, const std::optional<double>& limit, DriverSource source) {
    RegenCheck c{value};
    if (Is_Marked(value) || !std::isfinite(value)) {
        c.state = RegenState::NotComputed;
        return c;
    }
    if (source != DriverSource::Found) return c;
    if (!limit) {
        c.state = RegenState::NoLimit;
        return c;
    }
    c.limit = *limit;
    c.margin = Margin(c.limit, value);
    const bool over = value > c.limit && !Same_Single(value, c.limit);
    c.state = over ? RegenState::Exceeded : RegenState::Within;
    c.excess = over ? value - c.limit : 0;
    return c;
}

// What an external resistor takes of a regeneration: all beyond the driver's
// limit, or all of it where the driver gives none.
double Resistor_Share(const RegenCheck& c) {
    const bool limited = c.state == RegenState::Within || c.state == RegenState::Exceeded;
    return std::max(0.0, c.value - (limited ? c.limit : 0));
}

}  // namespace

void Checks_Compute(const PatarnTable& table, int n, double effectiveTorque, double regenPeak, double regenMean,
                    const ChosenParts& parts, EngineeringChecks& out) {
    out = EngineeringChecks{};
    out.curveSource = parts.curveSource;
    out.curveProblem = parts.problem;
    if (parts.curveSource == CurveSource::Found) out.topSpeed = parts.curve.TopSpeed();
    out.driverSource = parts.driverSource;
    out.intervals = std::clamp(n, 0, kPatarnRows);
    double time = 0, travel = 0, least = INFINITY;
    for (int i = 1; i <= out.intervals; ++i) {
        const double v1 = i == 1 ? 0 : table[i - 1].Speed, v2 = table[i].Speed, dt = table[i].DeltaTime;
        double low = 0, high = 0;
        Speed_Range(v1, v2, low, high);
        IntervalCheck& c = out.interval[i - 1];
        c = {v1, v2, Torque_Check(low, high, table[i].Torque, parts, &CurvePoint::peak)};
        time += dt;
        travel += Travel(v1, v2, dt);
        const bool judged = c.check.state != CheckState::NoCurve && c.check.state != CheckState::NotComputed;
        if (judged && c.check.margin < least) least = c.check.margin, out.tightest = i;
    }
    out.meanSpeed = time > 0 ? travel / time : 0;
    out.mean = Torque_Check(out.meanSpeed, out.meanSpeed, effectiveTorque, parts, &CurvePoint::continuous);
    if (out.intervals == 0) out.mean.state = CheckState::NotComputed;

    out.energy = Regen_Check(regenPeak, parts.energyLimit, parts.driverSource);
    out.power = Regen_Check(regenMean, parts.powerLimit, parts.driverSource);
    if (out.energy.state == RegenState::Exceeded || out.power.state == RegenState::Exceeded) {
        out.resistor = ResistorState::Needed;
        out.resistorEnergy = Resistor_Share(out.energy) * (1 + kResistorMargin);
        out.resistorPower = Resistor_Share(out.power) * (1 + kResistorMargin);
    } else if (parts.driverSource == DriverSource::Found && out.energy.state != RegenState::NotComputed &&
               out.power.state != RegenState::NotComputed) {
        out.resistor = ResistorState::NotNeeded;
    }
}

void Checks_OfDocument(const ChosenParts& parts, EngineeringChecks& out) {
    Checks_Compute(Patarn, Patarn_CountRows(Patarn), ResultValues[Cul][EffectiveTorque], ResultValues[Cul][Regeneration1],
                   ResultValues[Cul][Regeneration2], parts, out);
}
