// The cells of the motor grid vsfData: headers with the chosen units, and
// the data columns of one motor formatted from its catalogue row.
#pragma once

#include <array>

#include "selection/Grid.h"
#include "selection/Recordset.h"

inline constexpr int kMotorCols = 10;
extern const std::array<GridColumn, kMotorCols> kMotorColumns;

// Rows 0 and 1: the captions, "<Units>" and the names of the chosen units.
void Header_Format(Grid& vsfData);

// Columns 1 to 9 of the grid row from the current row of the row set; a
// blank field leaves its cell empty.
void Motor_Cells(const Recordset& motor, Grid& vsfData, int row);
