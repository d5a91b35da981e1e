#include "pattern/Trapezoid.h"

#include <algorithm>
#include <cmath>

#include "base/MsgBox.h"
#include "base/NumberFormat.h"
#include "base/Numeric.h"
#include "calc/mdlCulcurate.h"
#include "core/Tables.h"
#include "core/PatarnRows.h"
#include "units/UnitTable.h"

namespace {

constexpr const char* kIllegal = "Illegal input value.";

void Tell(const std::string& text) { MsgBox(text, kTrapezoidTitle, MsgIcon::Exclamation); }

int16_t Picked(int16_t kind) { return UnitTable[kind].Sel; }

double Cut3(double x) { return std::trunc(x * 1000) / 1000; }

// A limit as the form keeps it: through the format "0.000".
double Kept(double x) { return Val(Format_Mask(x, kMask3)); }

// The acceleration limits, from the time and the distance as displayed.
void Accel_Limits(TrapezoidForm& f) {
    if (f.mebMoveTime.empty() || f.mebMoveDistance.empty()) {
        f.AccelMin = f.AccelMax = 0;
        return;
    }
    const double T = Val(f.mebMoveTime), D = std::fabs(Val(f.mebMoveDistance));
    const double Ts = ToS(UnitKind::Time, Picked(UnitKind::Time), T);
    f.AccelMin = Kept((2 * D / Ts) / (Ts / 2));
    const double Tm = ToS(UnitKind::Time, Picked(UnitKind::Time), T - 0.001), t1 = ToS(UnitKind::Time, Picked(UnitKind::Time), 0.001);
    f.AccelMax = Kept(Cut3((D / Tm) / t1));
}

void Range_Label(TrapezoidForm& f) {
    if (!f.optTime) {
        f.lblMax = f.mebMoveTime.empty() || f.mebMoveDistance.empty()
                       ? std::string()
                       : "Acceleration: " + NumberText(f.AccelMin) + f.lblRapid + " .; " + NumberText(f.AccelMax) +
                             f.lblRapid + " max.";
    } else {
        f.lblMax = f.mebMoveTime.empty() ? std::string()
                                         : "Accel/decel time: 0.001" + f.lblTime + ".; " + NumberText(f.AccelTimeMax) +
                                               f.lblTime + " max.";
    }
}

// A refused acceleration or accel/decel time: the field is emptied for a new try.
bool Refuse(TrapezoidForm& f, std::string& field, const char* text) {
    Tell(text);
    field.clear();
    f.InputError = -1;
    return false;
}

}  // namespace

bool Trapezoid_MayOpen(int gridRow) {
    const int record = gridRow - 2;
    if (record < 0 || record >= kPatarnRows + 2 || Patarn[record].LoadSpeed == 0) return true;
    MsgBox("Trapezoid pattern cannot be input unless previous speed is 0.", "", MsgIcon::Exclamation);
    return false;
}

void Trapezoid_Activate(TrapezoidForm& form) {
    form.lblTime = Unit_Name(UnitKind::Time, Picked(UnitKind::Time));
    form.lblLength = LoadMotion == 1 ? Unit_Name(UnitKind::Rotation, Picked(UnitKind::Rotation)) : Unit_Name(UnitKind::Distance, Picked(UnitKind::Distance));
    form.lblRapid = form.lblLength + "/S2";
}

bool Trapezoid_KeyAllowed(char16_t key) {
    return (key >= u'0' && key <= u'9') || key == 8 || key == u'-' || key == u'.' || key == u',';
}

std::string Trapezoid_Trim(const std::string& text) {
    const double value = Val(text);
    const std::string shown = Format_Mask(value, kMask3);
    return value == Val(shown) ? shown : Format_Mask(Cut3(value), kMask3);
}

bool MoveTime_Leave(TrapezoidForm& f) {
    if (f.mebMoveTime.empty()) {
        f.AccelTimeMax = f.AccelMin = f.AccelMax = 0;
        Range_Label(f);
        return true;
    }
    if (!IsNumeric(f.mebMoveTime)) {
        Tell(kIllegal);
        f.mebMoveTime.clear();
        return false;
    }
    if (Val(f.mebMoveTime) < 0.002) {
        Tell(std::string(kIllegal) + "\r\nInput an operating time of 0.002 or longer");
        f.mebMoveTime = "0.002";
        return false;
    }
    f.mebMoveTime = Trapezoid_Trim(f.mebMoveTime);
    f.AccelTimeMax = Kept(Cut3(Val(f.mebMoveTime) / 2));
    Accel_Limits(f);
    Range_Label(f);
    return true;
}

bool MoveDistance_Leave(TrapezoidForm& f) {
    if (!f.mebMoveDistance.empty()) {
        if (!IsNumeric(f.mebMoveDistance)) {
            Tell(kIllegal);
            f.mebMoveDistance.clear();
            return false;
        }
        f.mebMoveDistance = Trapezoid_Trim(f.mebMoveDistance);
        if (Val(f.mebMoveDistance) == 0) {
            Tell(kIllegal);
            f.mebMoveDistance.clear();
            return false;
        }
    }
    Accel_Limits(f);
    if (!f.optTime) Range_Label(f);
    return true;
}

bool Accel_Leave(TrapezoidForm& f) {
    std::string& text = f.mebAccel;
    if (text.empty()) return true;
    if (!IsNumeric(text)) return Refuse(f, text, kIllegal);
    text = Trapezoid_Trim(text);
    const double a = Val(text);
    if (!(a > 0)) return Refuse(f, text, kIllegal);
    if (f.AccelMin != 0 && a < f.AccelMin) return Refuse(f, text, "Input value is below lower limit.");
    if (f.AccelMax != 0 && a > f.AccelMax) return Refuse(f, text, "Input value is above upper limit.");
    return true;
}

bool AccelTime_Leave(TrapezoidForm& f) {
    std::string& text = f.mebAccelTime;
    if (text.empty()) return true;
    if (!IsNumeric(text)) return Refuse(f, text, kIllegal);
    text = Trapezoid_Trim(text);
    const double t = Val(text);
    if (!(t > 0)) return Refuse(f, text, kIllegal);
    if (f.AccelTimeMax != 0 && t > f.AccelTimeMax) return Refuse(f, text, "Input value is above upper limit.");
    return true;
}

void Option_Pick(TrapezoidForm& form, bool accelTime) {
    form.optTime = accelTime;
    Range_Label(form);
}

bool Trapezoid_OK(TrapezoidForm& f, int gridRow) {
    f.InputError = 0;
    if (f.optTime) AccelTime_Leave(f);
    else Accel_Leave(f);
    if (f.InputError == -1) {
        f.InputError = 0;
        return false;
    }
    const bool rotating = LoadMotion == 1;
    const int16_t distanceKind = rotating ? 3 : 2, distanceUnit = Picked(distanceKind);
    const int16_t speedKind = rotating ? 6 : 4, speedUnit = rotating ? 1 : 2;
    const std::string& given = f.optTime ? f.mebAccelTime : f.mebAccel;
    if (f.mebMoveTime.empty() || f.mebMoveDistance.empty() || given.empty()) {
        Tell("An item has not been input.");
        return false;
    }
    double T = ToS(UnitKind::Time, Picked(UnitKind::Time), Val(f.mebMoveTime));
    const double D = Val(f.mebMoveDistance);
    double Ta = 0;
    if (f.optTime) {
        Ta = ToS(UnitKind::Time, Picked(UnitKind::Time), Val(f.mebAccelTime));
    } else {
        // The acceleration always goes through the length unit, even for a rotation.
        double a = ToS(UnitKind::Distance, Picked(UnitKind::Distance), Val(f.mebAccel));
        if (!(D > 0)) a = -a;
        const double Dm = ToS(UnitKind::Distance, Picked(UnitKind::Distance), D);
        const double q = std::sqrt(a * a * T * T - 4 * a * Dm);
        const double r1 = (T * a + q) / (2 * a), r2 = (T * a - q) / (2 * a);
        if (r1 > 0 || r2 > 0) Ta = std::min(r1, r2);
    }
    double Dm = ToS(distanceKind, distanceUnit, D);
    double V = ToS(speedKind, speedUnit, Dm / (T - Ta));
    Make_Patarn(T, Ta, Dm, V, static_cast<int16_t>(gridRow - 1));
    PatternRowCount = Patarn_CountRows(Patarn);
    Patarn_SplitZero(Patarn);
    Culcurate_All();
    DirtyFlag = 1;
    return true;
}

void Make_Patarn(double& T, double& Ta, [[maybe_unused]] double& D, double& V, int16_t s) {
    const int16_t n = T / 2 == Ta ? 2 : 3;
    // The bound is n itself, not s + n - 1: from the fourth row on no row
    // opens and the new rows overwrite what stands there.
    for (int16_t i = s; i <= n; ++i) Patarn_InsertRow(Patarn, i);
    const bool rotating = LoadMotion == 1;
    const int16_t speedKind = rotating ? 6 : 4, speedUnit = rotating ? 1 : 2;
    const double times[3] = {n == 2 ? T / 2 : Ta, n == 2 ? T / 2 : T - 2 * Ta, Ta};
    const double speeds[3] = {V, n == 2 ? 0 : V, 0};
    for (int16_t k = 0; k < n; ++k) {
        const auto row = static_cast<int16_t>(s + k);
        if (row < 1 || row > kPatarnRows) continue;
        Patarn_SetField(Patarn, row, UnitKind::Time, 1, times[k], FieldDeltaTime);
        Patarn_SetField(Patarn, row, speedKind, speedUnit, speeds[k], FieldLoadSpeed);
    }
    Patarn_UpdateTimes(Patarn);
    for (int16_t k = 0; k < n; ++k) {
        const auto row = static_cast<int16_t>(s + k);
        if (row >= 1 && row <= kPatarnRows) Patarn_SetSpeed(Patarn, row);
    }
}
