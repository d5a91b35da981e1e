// The texts of the settings grid of one element: grid rows 1 to 13 show item
// rows 0 to 12, grid row 14 the calculated inertia (item row 13).
#pragma once

#include <string>

#include "core/Tables.h"

inline constexpr int kItemGridRows = 14;

// One grid row, in the code page of the records. An item without a name
// leaves all three empty.
struct ItemGridRow {
    std::string name, unit, setting;
    bool grey = false;  // the setting is "--": the row does not apply
};

// The texts of grid row 1..14 of the element.
ItemGridRow Item_GridRow(const ElementRecord& element, int gridRow);
