// A part of calc/mdlCulcurate.h.
// The sizing values of a pattern table, over its complete rows.
#include <algorithm>
#include <cmath>

#include "calc/Mark.h"
#include "calc/mdlCulcurate.h"
#include "core/PatarnRows.h"
#include "units/UnitTable.h"

namespace {

// The largest value of a field over the rows, as a magnitude when asked;
// the mark when any row holds it.
double Largest(const PatarnTable& table, double PatarnRow::*field, bool magnitude) {
    const int16_t n = Patarn_CountRows(table);
    double best = 0;
    for (int16_t i = 1; i <= n; ++i) {
        const double v = table[i].*field;
        if (Is_Marked(v)) return kOver;
        best = std::max(best, magnitude ? std::fabs(v) : v);
    }
    return Finite_Or_Over(best);
}

}  // namespace

double Effective_Torque(const PatarnTable& table) {
    const int16_t n = Patarn_CountRows(table);
    if (n == 0) return 0;
    // Every row takes part with its own duration, idle rows too.
    double S = 0, U = 0;
    for (int16_t i = 1; i <= n; ++i) {
        const double T = FromS(UnitKind::Torque, 1, table[i].Torque);
        const double t = FromS(UnitKind::Time, 1, table[i].DeltaTime);
        if (Is_Marked(T) || Is_Marked(t)) return kOver;
        S = S + T * T * t;
        U = U + t;
    }
    return Finite_Or_Over(ToS(UnitKind::Torque, 1, std::sqrt(S / U)));
}

double Max_Torque(const PatarnTable& table) { return Largest(table, &PatarnRow::Torque, true); }

double Max_Speed(const PatarnTable& table) { return Largest(table, &PatarnRow::Speed, true); }

double Regeneration_Peak(const PatarnTable& table) { return Largest(table, &PatarnRow::Regeneration, false); }

double Regeneration_Mean(const PatarnTable& table) {
    const int16_t n = Patarn_CountRows(table);
    if (n == 0) return 0;
    double energy = 0, time = 0;
    for (int16_t i = 1; i <= n; ++i) {
        if (Is_Marked(table[i].Regeneration)) return kOver;
        energy = energy + table[i].Regeneration;
        time = time + table[i].DeltaTime;
    }
    return Finite_Or_Over(energy / time);
}

double Stopping_Torque(const PatarnTable& table) {
    const int16_t n = Patarn_CountRows(table);
    // Only rows that stand still at both ends count; record 0 is the start at rest.
    double best = 0;
    for (int16_t i = 1; i <= n; ++i) {
        if (table[i].Speed != 0 || table[i - 1].Speed != 0) continue;
        if (Is_Marked(table[i].Torque)) return kOver;
        best = std::max(best, std::fabs(table[i].Torque));
    }
    return Finite_Or_Over(best);
}

double Safe_Rate(double calculated, double rating) {
    if (rating == 0) return 0;
    if (Is_Marked(calculated)) return kOver;
    return calculated / rating;
}
