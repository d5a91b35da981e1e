// Texts of the results file that come from values: the unit of a parameter
// row and the four-digit text of a torque.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The SI unit of a UnitKind in the single-byte code page ("kg\xB7m\xB2");
// "-" for 11 and every kind not in the list.
std::string_view Results_UnitText(int16_t unitKind);

// The value through the mask "#.0##E+0": 1.234E+1, 2.0E-3, .0E+0 for zero.
std::string TorqueText(double x);
