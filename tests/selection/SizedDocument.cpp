#include "tests/selection/SizedDocument.h"

#include "calc/mdlCulcurate.h"
#include "core/Document.h"
#include "core/Tables.h"

void Document_Sized() {
    Template_Fill(1, true);
    ElementCount = MecaTemplateCount[1];
    const PatarnRow rows[] = {{0, 0.1, 3000, 0, 0, 0, 0, 3}, {0, 0.5, 3000, 0, 0, 0, 0, 3},
                              {0, 0.1, 0, 0, 0, 0, 0, 3}, {0, 0.3, 0, 0, 0, 0, 0, 3}};
    for (int i = 0; i < 4; ++i) Patarn[i + 1] = rows[i];
    PatternRowCount = 4;
    Culcurate_All();
}

TrialValues Trial(double Jm, double mass) {
    PatarnTable table = Patarn;
    Pattern_Torques(table, 2, Jm, mass);
    const double JL = Load_Inertia(Element, 2, mass);
    return {Effective_Torque(table), Max_Torque(table), Stopping_Torque(table), Max_Speed(table), JL,
            Regeneration_Peak(table), Regeneration_Mean(table)};
}
