#include "selection/MotorGrid.h"

#include "base/Cp1252.h"
#include "base/NumberFormat.h"
#include "core/Catalogue.h"
#include "units/UnitTable.h"

namespace {


std::string ChosenUnit(int16_t kind) { return Cp1252_ToUtf8(Unit_Name(kind, UnitTable[kind].Sel)); }

double Shown(int16_t kind, double value) { return FromS(kind, UnitTable[kind].Sel, value); }

std::string MassText(double kg) { return kg == 0 ? "0" : Format_Mask(Shown(UnitKind::Mass, kg), kMaskOpt2); }

// How a column turns its field into text; the field is not blank.
std::string CellText(int col, const FieldValue& field) {
    const double v = field.Num();
    switch (col) {
        case 1: return field.Text();
        case 2: return Format_Mask(v, kMaskWhole);
        case 3: return Format_Mask(Shown(UnitKind::MotorSpeed, v), kMaskOpt1);
        case 4: return Num_Format(Shown(UnitKind::Inertia, v), 1, 0);
        case 5:
        case 6: return Num_Format(Shown(UnitKind::Torque, v), 0, 1);
        case 7: return Format_Mask(v, kMaskWhole);
        case 8: return MassText(v);
        default: return Num_Format(Shown(UnitKind::Inertia, v), 1, 0);
    }
}

constexpr std::array<std::string_view, kMotorCols> kFields = {
    "", "MotorModel", "Capacity", "RotationalSpeed", "Inertia", "RatedTorque", "MaximumTorque",
    "MaxInertia", "mass", "BrakeInertia"};

}  // namespace

const std::array<GridColumn, kMotorCols> kMotorColumns = {{
    {"", 1500, CellAlign::Right},
    {"Model number", 1875, CellAlign::Left},
    {"Capacity", 800, CellAlign::Right},
    {"Rotational speed", 1300, CellAlign::Right},
    {"Inertia", 1300, CellAlign::Right},
    {"Rated torque", 1100, CellAlign::Right},
    {"Max.torque", 900, CellAlign::Right},
    {"Allowable rate", 1300, CellAlign::Right},
    {"Mass", 570, CellAlign::Right},
    {"Brake inertia", 1155, CellAlign::Right},
}};

void Header_Format(Grid& vsfData) {
    const std::array<std::string, kMotorCols> units = {
        "", "<Units>", "W", ChosenUnit(UnitKind::MotorSpeed), ChosenUnit(UnitKind::Inertia), ChosenUnit(UnitKind::Torque),
        ChosenUnit(UnitKind::Torque), "Ratio", ChosenUnit(UnitKind::Mass), ChosenUnit(UnitKind::Inertia)};
    for (int col = 0; col < kMotorCols; ++col) {
        vsfData.Cell(0, col).text = kMotorColumns[col].caption;
        vsfData.Cell(1, col).text = units[col];
    }
}

void Motor_Cells(const Recordset& motor, Grid& vsfData, int row) {
    for (int col = 1; col < kMotorCols; ++col) {
        const FieldValue& field = motor.Field(kFields[col]);
        if (!field.Blank()) vsfData.Cell(row, col).text = CellText(col, field);
    }
}
