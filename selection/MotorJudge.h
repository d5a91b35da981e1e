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

// Judge(0) effective torque, (1) stopping torque, (2) maximum torque,
// (3) speed, (4) inertia ratio. A ratio with no rotor inertia but an
// allowable ratio is a division by zero: a run-time failure.
MotorJudgement Motor_Judge(const MotorLoad& load, const MotorLimits& motor);

// "-" when all five data are missing; else "OK", "FAIR" or "NG".
Verdict Motor_Verdict(const MotorJudgement& judgement);

// Column 0 and the marking of columns 3, 5, 6 and 7 of the grid row.
void Motor_Mark(const MotorJudgement& judgement, Grid& vsfData, int row);
