// A part of calc/mdlCulcurate.h.
// The travel of the load at the end of every row.
#include "calc/mdlCulcurate.h"
#include "core/PatarnRows.h"
#include "units/UnitTable.h"

void Pattern_Position(PatarnTable& table) {
    const int16_t n = Patarn_CountRows(table);
    // Mean speeds in rad/s for a rotating load, in mm/s for a linear one.
    const bool rotating = LoadMotion == 1;
    const int16_t kind = rotating ? 6 : 4;
    const int16_t unit = rotating ? 1 : 0;
    // The first row starts from rest: only its end speed counts.
    double d = 0;
    for (int16_t i = 1; i <= n; ++i) {
        const double before = i == 1 ? 0 : table[i - 1].LoadSpeed;
        d = d + FromS(kind, unit, before + table[i].LoadSpeed) * table[i].DeltaTime / 2;
        if (rotating)
            Patarn_SetField(table, i, UnitKind::Rotation, 2, d, FieldPosition);
        else
            Patarn_SetField(table, i, UnitKind::Distance, 0, d, FieldPosition);
    }
}
