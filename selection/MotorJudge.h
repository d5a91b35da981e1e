// The judgement of one motor against the application: five limits, each
// within (0), marginal (1) or exceeded (2), the count of limits without a
// datum, the verdict and the marking of the data cells.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "selection/Grid.h"

// The motor's data in SI; 0 means that there is no datum.
struct MotorLimits {
    double RatedTorque = 0;
    double MaximumTorque = 0;
    double RotationalSpeed = 0;
    double Inertia = 0;
    double MaxInertia = 0;
};

// The application's values from the trial calculation with the motor.
struct MotorLoad {
    double T1 = 0;  // effective torque
    double T2 = 0;  // maximum torque
    double T3 = 0;  // stopping torque
    double N = 0;   // maximum speed
    double JL = 0;  // load inertia at the motor shaft
};

struct MotorJudgement {
    std::array<int16_t, 5> Judge{};
    int16_t MissingCount = 0;
};

struct Verdict {
    std::string_view text;
    std::string_view color;
};

// The shares of the motor's data that the torques are held within, in per
// cent: the effective and the maximum torque 80 % (above that up to 100 % is
// marginal), the stopping torque 70 %.
inline constexpr double kEffectiveShare = 80;
inline constexpr double kStoppingShare = 70;
inline constexpr double kMaximumShare = 80;

// The five limits in the order of Judge: a key for machines and a caption.
struct LimitName {
    std::string_view key;
    std::string_view caption;
};
inline constexpr std::array<LimitName, 5> kLimitNames{{{"effectiveTorque", "Effective torque"},
                                                       {"stoppingTorque", "Stopping torque"},
                                                       {"maximumTorque", "Max.torque"},
                                                       {"speed", "Rotational speed"},
                                                       {"inertiaRatio", "Inertia ratio"}}};

// Judge(0) effective torque, (1) stopping torque, (2) maximum torque,
// (3) speed, (4) inertia ratio. A ratio with no rotor inertia but an
// allowable ratio is a division by zero: a run-time failure.
MotorJudgement Motor_Judge(const MotorLoad& load, const MotorLimits& motor);

// How much of each limit the load takes, in the order of Judge: T1 over
// 80 % of the rated torque, T3 over 70 % of it, T2 over 80 % of the maximum
// torque, N over the rated speed, the inertia ratio over the allowable one;
// 1 is the limit itself. NaN where the motor gives no datum for the limit.
std::array<double, 5> Motor_Utilisation(const MotorLoad& load, const MotorLimits& motor);

// "-" when all five data are missing; else "OK", "FAIR" or "NG".
Verdict Motor_Verdict(const MotorJudgement& judgement);

// Column 0 and the marking of columns 3, 5, 6 and 7 of the grid row.
void Motor_Mark(const MotorJudgement& judgement, Grid& vsfData, int row);
