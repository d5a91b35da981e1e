#include "selection/ChecksGrid.h"

#include <string>

#include "base/Cp1252.h"
#include "base/NumberFormat.h"
#include "core/Catalogue.h"
#include "selection/DriverJudge.h"
#include "units/UnitTable.h"

namespace {

enum Col { Verdict, Check, Speed, Needed, Offered, Unit, Margin, Remark };

std::string Unit_Picked(int16_t kind) { return Cp1252_ToUtf8(Unit_Name(kind, UnitTable[kind].Sel)); }

std::string Speed_Text(double rpm) {
    return Format_Mask(FromS(UnitKind::MotorSpeed, UnitTable[UnitKind::MotorSpeed].Sel, rpm), kMaskOpt1);
}

std::string Torque_Text(double nm) { return Num_Format(FromS(UnitKind::Torque, UnitTable[UnitKind::Torque].Sel, nm), 0, 1); }

std::string Curve_Remark(const EngineeringChecks& checks) {
    switch (checks.curveSource) {
        case CurveSource::Found: break;
        case CurveSource::NoMotor: return "no motor chosen";
        case CurveSource::NoCatalogue: return "the catalogue cannot be read";
        case CurveSource::NoTable: return "the catalogue has no speed-torque curves";
        case CurveSource::NoCurve: return "no speed-torque curve for this motor in the catalogue";
        case CurveSource::Unusable: return "the motor's curve is unusable: " + std::string(checks.curveProblem);
    }
    return "";
}

class Rows {
public:
    Rows(Grid& grid, const EngineeringChecks& checks) : grid_(grid), checks_(checks) {}

    int Add(std::string_view verdict, const std::string& check) {
        const int row = grid_.AddRow();
        grid_.Cell(row, Verdict) = {std::string(verdict), true, JudgeColor(verdict)};
        grid_.Cell(row, Check).text = check;
        return row;
    }

    void Torque(const std::string& check, const std::string& speed, const TorqueCheck& c, const std::string& remark) {
        const int row = Add(Check_Verdict(c.state), check);
        grid_.Cell(row, Speed).text = speed;
        grid_.Cell(row, Needed).text = c.state == CheckState::NotComputed ? "OVER" : Torque_Text(c.torque);
        grid_.Cell(row, Unit).text = Unit_Picked(UnitKind::Torque);
        if (c.state == CheckState::NoCurve) {
            grid_.Cell(row, Remark).text = Curve_Remark(checks_);
            return;
        }
        if (c.state == CheckState::NotComputed) return;
        grid_.Cell(row, Offered).text = Torque_Text(c.offered);
        grid_.Cell(row, Margin).text = Format_Mask(c.margin, kMask1);
        grid_.Cell(row, Remark).text =
            c.aboveTop ? "above the top speed of the curve, " + Speed_Text(checks_.topSpeed) : remark;
    }

    void Regen(const std::string& check, const RegenCheck& c, std::string_view unit) {
        static constexpr int16_t kCodes[] = {0, 2, -1, -1, -1};  // by RegenState
        const int row = Add(JudgeString(kCodes[static_cast<int>(c.state)]), check);
        grid_.Cell(row, Needed).text = c.state == RegenState::NotComputed ? "OVER" : Num_Format(c.value, 0, 1);
        grid_.Cell(row, Unit).text = unit;
        std::string& remark = grid_.Cell(row, Remark).text;
        switch (c.state) {
            case RegenState::Within:
            case RegenState::Exceeded:
                grid_.Cell(row, Offered).text = Num_Format(c.limit, 0, 1);
                grid_.Cell(row, Margin).text = Format_Mask(c.margin, kMask1);
                if (c.state == RegenState::Exceeded)
                    remark = "the driver cannot absorb " + Num_Format(c.excess, 0, 1) + " " + std::string(unit);
                break;
            case RegenState::NoLimit: remark = "no limit given"; break;
            case RegenState::NoDriver: remark = Driver_Remark(); break;
            case RegenState::NotComputed: break;
        }
    }

    std::string Driver_Remark() const {
        switch (checks_.driverSource) {
            case DriverSource::NoDriver: return "no driver chosen";
            case DriverSource::NoCatalogue: return "the catalogue cannot be read";
            case DriverSource::NotInCatalogue: return "the driver is not in the catalogue";
            case DriverSource::Found: break;
        }
        return "";
    }

    void Resistor() {
        switch (checks_.resistor) {
            case ResistorState::NotNeeded: {
                const int row = Add(JudgeString(0), "Brake resistor");
                grid_.Cell(row, Remark).text = "not needed";
                return;
            }
            case ResistorState::Unknown: {
                const int row = Add(JudgeString(-1), "Brake resistor");
                grid_.Cell(row, Remark).text = "cannot be told";
                return;
            }
            case ResistorState::Needed: break;
        }
        const std::string margin = Format_Mask(kResistorMargin * 100, kMaskWhole) + " % margin";
        Rating("Brake resistor, energy per braking", checks_.resistorEnergy, "J", margin);
        Rating("Brake resistor, continuous power", checks_.resistorPower, "W", margin);
    }

private:
    void Rating(const std::string& check, double value, std::string_view unit, const std::string& margin) {
        const int row = Add(JudgeString(1), check);
        grid_.Cell(row, Needed).text = Num_Format(value, 0, 1);
        grid_.Cell(row, Unit).text = unit;
        grid_.Cell(row, Remark).text = "needed, " + margin + " included";
    }

    Grid& grid_;
    const EngineeringChecks& checks_;
};

}  // namespace

std::string_view Check_Verdict(CheckState state) {
    static constexpr int16_t kCodes[] = {0, 1, 2, -1, -1};  // by CheckState
    return JudgeString(kCodes[static_cast<int>(state)]);
}

const std::array<GridColumn, kChecksCols> kChecksColumns = {{
    {"", 600, CellAlign::Center},
    {"Check", 3300, CellAlign::Left},
    {"Speed", 1500, CellAlign::Right},
    {"Needed", 1100, CellAlign::Right},
    {"Offered", 1100, CellAlign::Right},
    {"Unit", 800, CellAlign::Center},
    {"Margin", 900, CellAlign::Right},
    {"Remark", 3600, CellAlign::Left},
}};

Grid Checks_Grid(const EngineeringChecks& checks) {
    Grid grid(kChecksCols);
    const std::array<std::string, kChecksCols> units = {
        "", "", Unit_Picked(UnitKind::MotorSpeed), "", "", "", "%", ""};
    for (int col = 0; col < kChecksCols; ++col) {
        grid.Cell(0, col).text = kChecksColumns[col].caption;
        grid.Cell(1, col).text = units[col];
    }
    Rows rows(grid, checks);
    for (int i = 1; i <= checks.intervals; ++i) {
        const IntervalCheck& c = checks.interval[i - 1];
        rows.Torque("Interval " + std::to_string(i) + ", peak torque",
                    Speed_Text(c.speedStart) + " to " + Speed_Text(c.speedEnd), c.check,
                    i == checks.tightest ? "tightest interval" : "");
    }
    rows.Torque("Effective torque at the mean speed", Speed_Text(checks.meanSpeed), checks.mean, "");
    rows.Regen("Regeneration per braking", checks.energy, "J");
    rows.Regen("Mean regeneration power", checks.power, "W");
    rows.Resistor();
    return grid;
}
