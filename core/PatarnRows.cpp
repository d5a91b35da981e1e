#include "core/PatarnRows.h"

#include <algorithm>
#include <cmath>

#include "base/NumberFormat.h"
#include "base/Numeric.h"
#include "units/UnitTable.h"

namespace {

constexpr int16_t kTimeSide = 1;
constexpr int16_t kSpeedSide = 2;
constexpr int16_t kComplete = kTimeSide | kSpeedSide;

// The double fields of a row by field number.
constexpr double PatarnRow::*kFields[] = {
    &PatarnRow::Time,   &PatarnRow::DeltaTime, &PatarnRow::Speed,       &PatarnRow::LoadSpeed,
    &PatarnRow::Position, &PatarnRow::Torque,  &PatarnRow::Regeneration,
};

bool InTable(int16_t row) { return row >= 0 && row < kPatarnRecords; }

void SetDeltaTime(PatarnTable& table, int16_t row, double seconds) {
    Patarn_SetField(table, row, UnitKind::Time, 1, seconds, FieldDeltaTime);
}

}  // namespace

void Patarn_SetField(PatarnTable& table, int16_t row, int16_t kind, int16_t unit, double value, int16_t field) {
    if (!InTable(row) || field < FieldTime || field > FieldRowState) return;
    PatarnRow& r = table[row];
    if (field == FieldRowState) {
        if (value != kOver) r.RowState = CInt(value);
        return;
    }
    r.*kFields[field] = value == kOver ? value : ToS(kind, unit, value);
    if (field == FieldTime || field == FieldDeltaTime) r.RowState |= kTimeSide;
    if (field == FieldSpeed || field == FieldLoadSpeed) r.RowState |= kSpeedSide;
}

void Patarn_CopyRows(const PatarnTable& from, PatarnTable& to) {
    std::copy_n(from.begin(), kPatarnRows + 1, to.begin());
}

void Patarn_ClearRow(PatarnTable& table, int16_t row) {
    if (InTable(row)) table[row] = PatarnRow{};
}

void Patarn_InsertRow(PatarnTable& table, int16_t index) {
    if (index < 1 || index >= kPatarnRecords) return;
    for (int k = kPatarnRows; k >= index; --k) {
        PatarnRow moved{};
        moved.DeltaTime = table[k].DeltaTime;
        moved.Speed = table[k].Speed;
        moved.LoadSpeed = table[k].LoadSpeed;
        moved.RowState = table[k].RowState;
        table[k + 1] = moved;
    }
    Patarn_ClearRow(table, index);
}

int16_t Patarn_CountRows(const PatarnTable& table) {
    int16_t n = 0;
    while (n + 1 <= kPatarnRows && table[n + 1].RowState == kComplete) ++n;
    return n;
}

void Patarn_UpdateTimes(PatarnTable& table) {
    int16_t end = 1;
    while (end <= kPatarnRows && table[end].RowState != 0 && table[end].RowState != kSpeedSide) ++end;
    for (int16_t row = 1; row < end; ++row) {
        const double before = row == 1 ? 0 : table[row - 1].Time;
        Patarn_SetField(table, row, UnitKind::Time, 1, before + table[row].DeltaTime, FieldTime);
    }
}

void Patarn_SetLoadSpeed(PatarnTable& table, int16_t row, int16_t byDistance, double startSpeed, double distance) {
    if (!InTable(row)) return;
    const PatarnRow& r = table[row];
    double speed = 0;
    if (byDistance == 0) {
        speed = TotalRatio * FromS(UnitKind::MotorSpeed, 1, r.Speed);
    } else {
        if (r.DeltaTime == 0) return;
        speed = (2 * distance - startSpeed * r.DeltaTime) / r.DeltaTime;
    }
    if (LoadMotion == 1)
        Patarn_SetField(table, row, UnitKind::RotationalSpeed, 1, speed, FieldLoadSpeed);
    else
        Patarn_SetField(table, row, UnitKind::Speed, 2, speed, FieldLoadSpeed);
}

void Patarn_SetSpeed(PatarnTable& table, int16_t row) {
    if (!InTable(row)) return;
    const double load = table[row].LoadSpeed;
    const double motor = TotalRatio == 0 ? load : load / TotalRatio;
    const int16_t unit = UnitTable[UnitKind::MotorSpeed].Sel;
    const double shown = Val(Format_Mask(FromS(UnitKind::MotorSpeed, unit, ToS(UnitKind::MotorSpeed, 1, motor)), kMask1));
    Patarn_SetField(table, row, UnitKind::MotorSpeed, unit, shown, FieldSpeed);
}

void Patarn_Retime(PatarnTable& table, int16_t gridRow) {
    const int16_t r = gridRow - 1;
    if (r < 1 || r > kPatarnRows) return;
    const double sum = table[r - 1].LoadSpeed + table[r].LoadSpeed;
    double dt = table[r].DeltaTime;
    if (sum != 0)
        dt = 2 * (table[r].Position - table[r - 1].Position) / sum;
    else if (r > 1)
        dt = table[r - 1].DeltaTime;
    SetDeltaTime(table, r, dt);
}

bool Patarn_SignChange(const PatarnTable& table, int16_t i) {
    if (i < 0 || i >= kPatarnRows) return false;
    const double a = table[i].Speed, b = table[i + 1].Speed;
    return (a > 0 && b < 0) || (a < 0 && b > 0);
}

void Patarn_SplitZero(PatarnTable& table) {
    for (int16_t i = 1; i <= kPatarnRows - 1; ++i) {
        const int16_t next = table[i + 1].RowState;
        if (!Patarn_SignChange(table, i) || (next != 0 && next != kComplete)) continue;
        Patarn_InsertRow(table, i + 1);
        Patarn_SetField(table, i + 1, UnitKind::RotationalSpeed, UnitTable[UnitKind::RotationalSpeed].Sel, 0, FieldSpeed);
        const double whole = table[i + 2].DeltaTime;
        const double tz = std::fabs(table[i].Speed) * whole / std::fabs(table[i].Speed - table[i + 2].Speed);
        SetDeltaTime(table, i + 1, tz);
        SetDeltaTime(table, i + 2, whole - tz);
        if (PatternRowCount + 1 <= kPatarnRows) ++PatternRowCount;
    }
    table[0] = PatarnRow{};
    table[0].RowState = kComplete;
}
