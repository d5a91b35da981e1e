// The rows of an operating pattern from a point table, under the rules a
// typed row obeys: every value cut to the precision of its grid column, the
// same checks on times and intervals, each value stored as a committed cell
// stores it, and at most 20 rows once every row whose speed changes sign is
// split at zero speed.
#pragma once

#include <string>

#include "core/Tables.h"
#include "pattern/PointTable.h"

// Why a point table is refused, under the title of its message box; an
// empty text accepts it.
struct PointRefusal {
    std::string text;
    std::string title;
};

inline constexpr const char* kImportTitle = "Import Pattern";

// Builds the rows of the table into rows from record 1 on, in the picked
// units; a header's units must be the picked ones. With the time column a
// first line of time 0 and speed 0 is the start point and makes no row.
// A speed brings TotalRatio up to date through the load inertia
// calculation, as a typed speed does; nothing else of the document changes.
PointRefusal PointTable_Rows(const PointTable& table, PatarnTable& rows);
