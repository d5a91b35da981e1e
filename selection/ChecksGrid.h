// The engineering checks as a table: the verdict, the check, the speed, what
// is needed and what the motor or driver offers, their unit, the margin and a
// remark, each number in the document's picked units. The window and the
// command line show the same cells.
#pragma once

#include <array>

#include "selection/EngineeringChecks.h"
#include "selection/Grid.h"

inline constexpr int kChecksCols = 8;
extern const std::array<GridColumn, kChecksCols> kChecksColumns;

// The verdict of a check: "OK", "FAIR", "NG", or "NA" where there was nothing to check.
std::string_view Check_Verdict(CheckState state);

// One row per interval, one for the effective torque at the mean speed, one
// for each regeneration quantity, and the brake resistor: one row when it is
// not needed or cannot be told, two (its energy and power ratings) when it is.
Grid Checks_Grid(const EngineeringChecks& checks);
