#include "pattern/GridText.h"

#include "base/NumberFormat.h"
#include "core/Catalogue.h"
#include "units/UnitTable.h"

namespace {

ColumnUnit Picked(int16_t kind) { return {kind, UnitTable[kind].Sel}; }

std::string Shown(double value, int col, int16_t loadMotion, std::string_view mask) {
    return value == kOver ? "OVER" : Patarn_ColumnValue(value, col, loadMotion, mask);
}

struct ResultRowDef {
    const char* label;
    int j;       // value shown
    int16_t kind;  // conversion, -1 none
    const char* fixedUnit;
    int ratingGuard;  // value whose rating decides whether the rating shows
    int ratioGuard;
};

// Rows 2, 4 and 5 test other values than they show; the grid has always done so.
constexpr std::array<ResultRowDef, 7> kResultRows = {{
    {"Effective torque", EffectiveTorque, UnitKind::Torque, "", EffectiveTorque, EffectiveTorque},
    {"Stopping torque", StoppingTorque, UnitKind::Torque, "", EffectiveTorque, EffectiveTorque},
    {"Maximum torque", MaxTorque, UnitKind::Torque, "", MaxTorque, MaxTorque},
    {"Inertia", Inertia, UnitKind::Inertia, "", MaxRotationalSpeed, Inertia},
    {"Maximum rotational speed", MaxRotationalSpeed, UnitKind::MotorSpeed, "", Inertia, MaxRotationalSpeed},
    {"Amount of rotation", Regeneration1, -1, "J(max.)", Regeneration1, Regeneration1},
    {"Amount of rotation", Regeneration2, -1, "W", Regeneration2, Regeneration2},
}};

std::string ResultNumber(double value, const ResultRowDef& row) {
    const double shown = row.kind < 0 ? value : FromS(row.kind, UnitTable[row.kind].Sel, value);
    return Num_Format(shown, row.j == Inertia ? 1 : 0, 1);
}

CellColour RatioColour(double code, int row) {
    if (code == 3) return CellColour::Red;
    if (code == 2) return row < 3 ? CellColour::Orange : CellColour::Unchanged;
    return CellColour::WindowText;
}

}  // namespace

ColumnUnit Patarn_ColumnUnit(int col, int16_t loadMotion) {
    switch (col) {
        case 1:
        case 2: return Picked(UnitKind::Time);
        case 3: return Picked(UnitKind::MotorSpeed);
        case 4: return Picked(loadMotion == 1 ? UnitKind::RotationalSpeed : UnitKind::Speed);
        case 5: return Picked(loadMotion == 1 ? UnitKind::Rotation : UnitKind::Distance);
        default: return Picked(UnitKind::Torque);
    }
}

std::string Patarn_ColumnValue(double value, int col, int16_t loadMotion, std::string_view mask) {
    const ColumnUnit u = Patarn_ColumnUnit(col, loadMotion);
    return Format_Mask(FromS(u.kind, u.unit, value), mask);
}

std::array<std::string, 7> Patarn_HeaderTexts(int16_t loadMotion) {
    std::array<std::string, 7> texts;
    for (int col = 1; col <= 6; ++col) {
        const ColumnUnit u = Patarn_ColumnUnit(col, loadMotion);
        texts[col] = Unit_Name(u.kind, u.unit);
    }
    return texts;
}

PatarnTexts Patarn_CellTexts(const PatarnTable& table, int16_t loadMotion) {
    PatarnTexts texts{};
    bool incomplete = false, timeGap = false;
    for (int r = 1; r <= kPatarnRows; ++r) {
        const PatarnRow& row = table[r];
        auto& cells = texts[r];
        cells[0] = std::to_string(r);
        incomplete |= row.RowState != 3;
        timeGap |= row.RowState == 0 || row.RowState == 2;
        if (row.RowState == 1 || row.RowState == 3) {
            if (!timeGap) cells[1] = Shown(row.Time, 1, loadMotion, kMask3);
            cells[2] = Shown(row.DeltaTime, 2, loadMotion, kMask3);
        }
        if (row.RowState == 2 || row.RowState == 3) {
            cells[3] = Shown(row.Speed, 3, loadMotion, kMask1);
            cells[4] = Shown(row.LoadSpeed, 4, loadMotion, kMask2);
        }
        if (row.RowState == 3 && (r == 1 || table[r - 1].RowState == 3) && !incomplete) {
            cells[5] = Shown(row.Position, 5, loadMotion, kMask2);
            const ColumnUnit u = Patarn_ColumnUnit(6, loadMotion);
            cells[6] = row.Torque == kOver ? "OVER" : Num_Format(FromS(u.kind, u.unit, row.Torque), 0, 1);
        }
    }
    return texts;
}

std::array<ResultRowTexts, 7> Result_Texts(int16_t motorSelected) {
    std::array<ResultRowTexts, 7> rows;
    for (int r = 0; r < 7; ++r) {
        const ResultRowDef& def = kResultRows[r];
        ResultRowTexts& out = rows[r];
        out.label = def.label;
        out.unit = def.kind < 0 ? def.fixedUnit : Unit_Name(def.kind, UnitTable[def.kind].Sel);
        const double cul = ResultValues[Cul][def.j];
        out.calculated = cul == kOver ? "OVER" : ResultNumber(cul, def);
        if (motorSelected != 1) continue;
        if (ResultValues[Rate][def.ratingGuard] != 0) out.rating = ResultNumber(ResultValues[Rate][def.j], def);
        if (ResultValues[Rate][def.ratioGuard] != 0) {
            const double ratio = ResultValues[Ratio][def.j];
            out.ratio = (r == 0 && ResultValues[Ratio][EffectiveTorque] == kOver) ? "OVER" : Format_Mask(ratio, kMask2);
        }
        out.ratioColour = RatioColour(ResultValues[Hantei][def.j], r);
    }
    return rows;
}
