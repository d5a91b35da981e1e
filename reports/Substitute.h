// The numbers put into a formula text of Param.ini, so that the second line
// of a general-parameter item shows the formula with the component's values.
#pragma once

#include <cstdint>
#include <string>

#include "core/Tables.h"

// Replaces, in this order and ignoring case: the first "p" by 3.14, the
// first "G" by 9.8, every "m1" by param.m1 (plus the motor mass for types 41
// and 42), the first "m2", "m3" and "inert1" by their fields, the first
// "Motor mass" by the motor mass, and every "[n]" by the Value of row n of
// Element(index). Numbers appear as NumberText.
void Results_Substitute(std::string& formula, int16_t type, int16_t index, const ParamRecord& param);
