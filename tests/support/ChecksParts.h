// The motor and driver that the tests of the engineering checks judge
// against, worked by hand: the motor gives 1 N m continuous and 3 N m peak
// flat to 3000 r/min, falling to 0.5 and 1 N m at its top speed of 5000 r/min.
#pragma once

#include <optional>

#include "selection/ChosenParts.h"

// That motor's curve, and a driver that absorbs the given energy (J) and
// power (W); none for a limit not given.
ChosenParts Parts_Falling(std::optional<double> energyLimit, std::optional<double> powerLimit);
