#include "selection/DriverGrid.h"

#include "base/NumberFormat.h"

namespace {

constexpr std::array<std::string_view, kDriverCols> kUnits = {"", "<Units>", "J(max)", "W", "-", "V", "-", "-"};

constexpr std::array<std::string_view, kDriverCols> kFields = {
    "", "DriverModel", "Regeneration1", "Regeneration2", "CommandSystem", "PowerSupplyVoltage", "PowerSupplyType", ""};

}  // namespace

const std::array<GridColumn, kDriverCols> kDriverColumns = {{
    {"", 600, CellAlign::Center},
    {"Driver model number", 2000, CellAlign::Left},
    {"Regeneration1", 1500, CellAlign::Right},
    {"Regeneration2", 1500, CellAlign::Right},
    {"Command system", 1500, CellAlign::Center},
    {"Power supply voltage", 2000, CellAlign::Center},
    {"Power supply type", 1500, CellAlign::Center},
    {"External regeneration comment", 2850, CellAlign::Left},
}};

void Driver_Header(Grid& vsfDrvList) {
    for (int col = 0; col < kDriverCols; ++col) {
        vsfDrvList.Cell(0, col).text = kDriverColumns[col].caption;
        vsfDrvList.Cell(1, col).text = kUnits[col];
    }
}

void Driver_Cells(const Recordset& driver, Grid& vsfDrvList, int row) {
    for (int col = 1; col <= 6; ++col) {
        const FieldValue& field = driver.Field(kFields[col]);
        if (field.Blank()) continue;
        const bool regeneration = col == 2 || col == 3;
        vsfDrvList.Cell(row, col).text = regeneration ? Format_Mask(field.Num(), kMaskOpt1) : field.Text();
    }
}
