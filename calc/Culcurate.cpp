// A part of calc/mdlCulcurate.h.
// The master recalculation: the whole document brought up to date, in a
// fixed order, with no cache.
#include "calc/mdlCulcurate.h"
#include "core/Chain.h"
#include "core/PatarnRows.h"

void Culcurate_All() {
    LoadMotion = Load_Motion(Element);
    // One past the last component, so that the first free slot's Param is zeroed.
    for (int16_t i = 1; i <= ElementCount; ++i) Element_Reduce(i, Element[i]);
    // TotalRatio must be right before the load speeds are derived.
    Load_Inertia(Element, MotorSelected, SelectedMotorMass);
    for (int16_t row = 1; row <= kPatarnRows; ++row) {
        const int16_t state = Patarn[row].RowState;
        if (state == 2 || state == 3) Patarn_SetLoadSpeed(Patarn, row, 0, 0, 0);
    }
    Patarn_UpdateTimes(Patarn);
    Pattern_Position(Patarn);
    Pattern_Torques(Patarn, MotorSelected, SelectedJm, SelectedMotorMass);

    auto& cul = ResultValues[Cul];
    cul[EffectiveTorque] = Effective_Torque(Patarn);
    cul[MaxTorque] = Max_Torque(Patarn);
    cul[MaxRotationalSpeed] = Max_Speed(Patarn);
    // While the load inertia cannot be computed the previous value stands.
    const double J = Load_Inertia(Element, MotorSelected, SelectedMotorMass);
    if (J != -1) cul[Inertia] = J;
    cul[Regeneration1] = Regeneration_Peak(Patarn);
    cul[Regeneration2] = Regeneration_Mean(Patarn);
    cul[StoppingTorque] = Stopping_Torque(Patarn);
    Judge_Results(ResultValues);
}
