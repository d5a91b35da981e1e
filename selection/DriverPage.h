// The driver page frmList2 without its window: the drivers that fit the
// candidate motor, their regeneration verdicts, and "Finish", which commits
// motor and driver to the document.
#pragma once

#include <cstdint>
#include <string>

#include "selection/DriverGrid.h"
#include "selection/Grid.h"

struct MotorPage;

struct DriverPage {
    std::string lblMotor;  // the model number as in the catalogue
    std::string txtMotor;  // the model number that will be stored, free text
    Grid vsfDrvList{kDriverCols};
    int Row = 0;  // current row of vsfDrvList
    int16_t DriverRowCount = 0;
};

// Rebuilds the grid: the drivers of SelectedMotorModel, each judged on
// PatarnTrial with the candidate motor. Runs at every activation.
void DriverPage_Fill(DriverPage& page);

// "Finish": stores the motor of the motor page's current row and the driver
// of this page's current row in the document and recalculates; false,
// after the message, when no driver is selected.
bool DriverPage_Finish(const MotorPage& motors, const DriverPage& page);
