// The values printed under the known names of a general-parameter item:
// the fields of the element's Param copy, and a few values formed here.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/Tables.h"

// The mass row of the motor, Element(0).Item(7).Value.
double Results_MotorMass();

// m1 as the block shows it: param.m1, plus the motor mass for types 41 and 42.
double Results_M1(int16_t type, const ParamRecord& param);

// The value of a known name ("inert0", "m_all", "JL", ...) of element index;
// false for any other name. Compared exactly, with case. "JL" runs the load
// inertia routine, with its side effects.
bool Results_NamedValue(std::string_view name, int16_t type, int16_t index, const ParamRecord& param,
                        double& value);
