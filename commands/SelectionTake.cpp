#include "commands/SelectionTake.h"

bool Motor_Find(MotorPage& page, const std::string& model) {
    for (int s = 0; s < static_cast<int>(page.lstS.size()); ++s) {
        MotorPage_PickSeries(page, s);
        for (int g = 0; g < static_cast<int>(page.lstM.size()); ++g) {
            if (g != 0) MotorPage_PickModel(page, g);
            for (int row = kFixedRows; row < page.vsfData.Rows(); ++row)
                if (page.vsfData.Cell(row, 1).text == model) return MotorPage_MoveToRow(page, row), true;
        }
    }
    return false;
}

bool Drivers_Open(MotorPage& page, DriverPage& drivers, const std::string& model) {
    if (!Motor_Find(page, model)) return false;
    MotorPage_TakeMotor(page, drivers);
    DriverPage_Fill(drivers);
    return true;
}

TakeResult Selection_Take(const std::string& motor, const std::string& driver, const std::string& modelText) {
    MotorPage page;
    DriverPage drivers;
    MotorPage_Load(page);
    if (!Drivers_Open(page, drivers, motor)) return TakeResult::NoMotor;
    drivers.Row = -1;
    for (int row = kFixedRows; row < drivers.vsfDrvList.Rows(); ++row)
        if (drivers.vsfDrvList.Cell(row, 1).text == driver) drivers.Row = row;
    if (drivers.Row < 0) return TakeResult::NoDriver;
    if (!modelText.empty()) drivers.txtMotor = modelText;
    const bool finished = DriverPage_Finish(page, drivers);
    MotorPage_Unload();
    return finished ? TakeResult::Taken : TakeResult::Refused;
}
