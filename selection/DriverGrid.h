// The cells of the driver grid vsfDrvList: the fixed headers and the data
// columns of one driver formatted from its catalogue row.
#pragma once

#include <array>

#include "selection/Grid.h"
#include "selection/Recordset.h"

inline constexpr int kDriverCols = 8;
extern const std::array<GridColumn, kDriverCols> kDriverColumns;

// Rows 0 and 1: captions and units.
void Driver_Header(Grid& vsfDrvList);

// Columns 1 to 6 of the grid row from the current row of the row set; a
// blank field leaves its cell empty.
void Driver_Cells(const Recordset& driver, Grid& vsfDrvList, int row);
