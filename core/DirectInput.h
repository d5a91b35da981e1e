// The two shortcuts of the settings grid that take the place of a component's
// dimensions: a directly entered inertia (InputMode 1, the cylinder load
// only) and directly entered masses (InputMode 2, the types with mass rows).
#pragma once

#include <cstdint>

#include "core/Tables.h"

// The boxes "Direct inertia input" (1) and "Direct mass input" (2).
struct DirectChecks {
    bool value1 = false, value2 = false;
    bool enabled1 = false, enabled2 = false;
};

// The boxes for an element of the type in the mode. False, with the boxes
// left alone, for a mass type in mode 1.
bool Check_Set(int16_t type, int16_t mode, DirectChecks& checks);

// Writes "--" into the rows that the element's direct entry makes useless.
void Rows_Grey(ElementRecord& element);

// Turns a direct entry on (the rows it replaces become "--") or off (when the
// element was in that mode, every row shows its Value again and the mode
// returns to 0). The direct inertia also takes row 13's Value as DirectValue.
// Neither marks the document changed.
void Direct_Inertia(ElementRecord& element, bool on);
void Direct_Mass(ElementRecord& element, bool on);
