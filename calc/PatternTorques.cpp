// A part of calc/mdlCulcurate.h.
// Torque and regeneration of every interval of a pattern table.
#include <cmath>

#include "calc/mdlCulcurate.h"
#include "core/PatarnRows.h"
#include "units/UnitTable.h"

namespace {

// Regeneration is written through kind 12, which converts nothing.
void Mark_Row(PatarnTable& rows, int16_t row) {
    Patarn_SetField(rows, row, UnitKind::Torque, 1, kOver, FieldTorque);
    Patarn_SetField(rows, row, UnitKind::Density, 0, kOver, FieldRegeneration);
}

// A division by zero, an overflow or an invalid operation anywhere in the
// interval leaves one of these non-finite.
bool All_Finite(double T, double R) {
    return std::isfinite(T) && std::isfinite(R) && std::isfinite(TorqueAcc) && std::isfinite(TorqueEx) &&
           std::isfinite(TorqueFric);
}

}  // namespace

void Pattern_Torques(PatarnTable& rows, int16_t flag, double& Jm, double& mass) {
    if (flag == kMotorNone) {
        Jm = 0;
        mass = 0;
    }
    const int16_t n = Patarn_CountRows(rows);
    const int16_t first = Element[1].ElementType;
    const bool special = first >= 41 && first <= 49;
    const ChainTerms chain = special ? ChainTerms{} : Chain_Terms(static_cast<int16_t>(ElementCount - 1));
    for (int16_t i = 1; i <= n; ++i) {
        const double v1 = i == 1 ? 0 : rows[i - 1].Speed;
        const double v2 = rows[i].Speed;
        const double dt = rows[i].DeltaTime;
        double T = 0, R = 0;
        const int16_t status = special ? Special_Torque(Element[1], dt, v1, v2, mass, Jm, T, R)
                                       : Interval_Torque(chain, dt, v1, v2, Jm, T, R);
        if (status != 0) {
            Mark_Row(rows, i);
            continue;
        }
        // The rows behind keep their old values.
        if (!All_Finite(T, R)) {
            Mark_Row(rows, i);
            return;
        }
        Patarn_SetField(rows, i, UnitKind::Torque, 1, T, FieldTorque);
        Patarn_SetField(rows, i, UnitKind::Density, 0, R, FieldRegeneration);
    }
}
