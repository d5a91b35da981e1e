// The engineering checks of an application against its chosen motor and
// driver, beside the seven sizing values: every interval against the motor's
// peak torque curve, the effective torque at the mean speed against the
// continuous curve, and the external brake resistor that the regeneration
// asks for. All numbers in base units (r/min, N m, J, W).
#pragma once

#include <array>
#include <string_view>

#include "core/Tables.h"
#include "selection/ChosenParts.h"

// How a check came out. Margins are judged as the sizing judges its torques:
// up to 80 % of what the motor offers passes, up to 100 % is tight.
enum class CheckState {
    Pass,         // OK
    Tight,        // FAIR
    Fail,         // NG
    NoCurve,      // nothing to check against
    NotComputed,  // the value it checks is marked as not computed
};

// A torque needed at a range of speeds against the curve's offer there.
struct TorqueCheck {
    double speedLow = 0, speedHigh = 0;  // the |speed| range, r/min
    double torque = 0;                   // |torque| needed, N m
    double offered = 0;                  // the lowest torque of the curve over the range, N m
    bool aboveTop = false;               // the range reaches past the curve's top speed
    // (offered - torque) / the larger of the two, percent: the share of the
    // offer left unused, or below 0 the share of the need the motor cannot
    // give; -100 above the top speed.
    double margin = 0;
    CheckState state = CheckState::NoCurve;
};

struct IntervalCheck {
    double speedStart = 0, speedEnd = 0;  // signed, r/min
    TorqueCheck check;
};

// One of the two regeneration quantities against the driver's limit.
enum class RegenState {
    Within,       // the driver absorbs it
    Exceeded,     // an external resistor must take the excess
    NoLimit,      // the catalogue gives no limit
    NoDriver,     // no driver, or the driver is not in the catalogue
    NotComputed,  // the regeneration is marked as not computed
};

struct RegenCheck {
    double value = 0;   // J per braking, or W on the mean
    double limit = 0;   // the driver's limit, when there is one
    double margin = 0;  // (limit - value) / the larger of the two, percent
    double excess = 0;  // what the driver cannot absorb
    RegenState state = RegenState::NoDriver;
};

// Once a limit is exceeded, an external brake resistor takes, per braking
// and continuously, what lies beyond the driver's limits (all of a quantity
// whose limit is not given), with this margin on top.
inline constexpr double kResistorMargin = 0.2;

enum class ResistorState { NotNeeded, Needed, Unknown };

struct EngineeringChecks {
    CurveSource curveSource = CurveSource::NoMotor;
    std::string_view curveProblem;  // why the curve is unusable
    double topSpeed = 0;            // the curve's top speed, r/min
    DriverSource driverSource = DriverSource::NoDriver;
    int intervals = 0;
    std::array<IntervalCheck, kPatarnRows> interval{};  // intervals 1 to n at index 0 to n-1
    int tightest = 0;                                   // the interval of least margin, from 1; 0 none
    double meanSpeed = 0;                               // time-weighted mean of |speed|, r/min
    TorqueCheck mean;                                   // the effective torque at the mean speed
    RegenCheck energy, power;
    ResistorState resistor = ResistorState::Unknown;
    double resistorEnergy = 0, resistorPower = 0;  // the resistor's ratings, margin included
};

// The checks of the first n rows of a calculated pattern, with the effective
// torque and the two regenerations of the sizing, against the parts. Nothing
// here allocates.
void Checks_Compute(const PatarnTable& table, int n, double effectiveTorque, double regenPeak, double regenMean,
                    const ChosenParts& parts, EngineeringChecks& out);

// The checks of the document as it stands, over the rows that the sizing
// counts, against the parts.
void Checks_OfDocument(const ChosenParts& parts, EngineeringChecks& out);
