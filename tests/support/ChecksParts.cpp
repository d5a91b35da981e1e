// Opens with its header: tests/support/ChecksParts.h.
#include "tests/support/ChecksParts.h"

ChosenParts Parts_Falling(std::optional<double> energyLimit, std::optional<double> powerLimit) {
    ChosenParts p;
    p.curveSource = CurveSource::Found;
    p.curveModel = "M1";
    p.curve = {{{0, 1, 3}, {3000, 1, 3}, {5000, 0.5, 1}}};
    p.driverSource = DriverSource::Found;
    p.energyLimit = energyLimit;
    p.powerLimit = powerLimit;
    return p;
}
