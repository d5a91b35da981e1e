// The unit dialog's "Apply": new picks go to the unit table and UnitInfo.dat,
// and every item row shows its value again in the unit now picked. The
// values themselves never change.
#pragma once

#include <array>
#include <cstdint>

#include "units/UnitTable.h"

using UnitPicks = std::array<int16_t, kUnitCategories>;

// Captions of the eleven frames of the unit dialog, in category order.
inline constexpr std::array<const char*, kUnitCategories> kUnitCaptions = {
    "Time", "Length", "Operating Distance", "Rotation", "Speed", "Motor Rotational Speed",
    "Rotational Speed", "Mass", "Inertia", "Force", "Torque"};

// The picks now in the unit table.
UnitPicks Unit_Picks();

// Stores the picks, writes UnitInfo.dat (a failure is told and the rest goes
// on), re-maps and re-formats every item row, recomputes the load inertia of
// the sizing values and sets DirtyFlag.
void Unit_Apply(const UnitPicks& picks);
