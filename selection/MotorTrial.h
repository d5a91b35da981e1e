// The trial calculation of one catalogue motor: the application sized again
// with the motor's own rotor (and brake) inertia and mass, giving the values
// its judgement holds against the motor's data. The motor page runs it for
// every row of its grid, the recommendation for every motor of the catalogue.
#pragma once

#include "core/Tables.h"
#include "selection/MotorJudge.h"
#include "selection/Recordset.h"

// The five data of the current row of a motor row set, in SI.
MotorLimits Motor_Limits(const Recordset& motor);

// Runs the torques of the trial table with the motor of the current row and
// reads the sizing values from it. JL is the working load inertia: replaced
// by the motor's unless that cannot be computed, so that it keeps the last
// good value across such a motor (0 before the first).
MotorLoad Motor_Trial(PatarnTable& trial, const Recordset& motor, double& JL);
