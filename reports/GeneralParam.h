// The block "<Calculation Values for General Parameters>" that follows each
// component of the results file: for every item of the component type's
// section of Param.ini, the formula text, the same text with the numbers put
// in, and the value the calculation holds. The texts are display only.
#pragma once

#include <cstdint>
#include <string_view>

// Writes the block of element index of the given type; the status word is
// always 0 and no caller looks at it.
int16_t Results_GeneralParam(int16_t type, int16_t index);

// Blanks in front of the value line: the 1-based position of the first "="
// of the item (0 without one) plus 11, so that the "=" of the value stands
// under the "=" of the item.
int16_t Results_ValueColumn(std::string_view item);
